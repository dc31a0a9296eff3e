#include "ui/pages/Messseite.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTableWidget>
#include <QUrl>

#include <gmock/gmock.h>

#include "support/FakeDesk.h"
#include "support/Messkurven.h"
#include "support/Textkaesten.h"
#include "ui/diagram/Diagrammflaeche.h"

namespace zerna {

struct MessseiteTest : FakeDesk {
    MessseiteTest()
    {
        openAluminiumCopper();
        const Messmodell faktor{{{30.5, 2.4, 1.3}, {52, 0.9, 3}}, 23};
        writeBytes(folder / "g.txt", messdatei(glasmodell().punkte(0.15, 0.001, 1000, 0.001, 1)));
        std::string text = "K (1/Å); S(K)\n";
        for (const Messpunkt& punkt : faktor.punkte(5, 0.2, 400, 0.001, 1))
            text += fixedText(punkt.x / 10, 3) + ";" + fixedText(punkt.y, 5) + "\n";
        writeBytes(folder / "s.txt", text);
    }

    void openCurve(const char* name)
    {
        openDialog.answer = (folder / name).string();
        find<QAction>("mnuMesskurve").trigger();
    }

    /// The table's lines with "|" between the cells that are shown.
    std::vector<std::string> lines() const
    {
        const auto& table = find<QTableWidget>("tblMaxima");
        std::vector<std::string> lines;
        for (int row = 0; row < table.rowCount() && table.isVisible(); ++row) {
            std::string line;
            for (int column = 0; column < table.columnCount(); ++column)
                if (!table.isColumnHidden(column))
                    line += (line.empty() ? "" : "|") + table.item(row, column)->text().toStdString();
            lines.push_back(line);
        }
        return lines;
    }

    void undo() const { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier); }

    std::size_t curves() { return programm->Dokument().messkurven->size(); }
};

TEST_F(MessseiteTest, ShowsMaximaBesideWhatFollowsOfTheAlloyWhileItIsTyped)
{
    openCurve("g.txt");
    EXPECT_EQ(texts({"cmbDiagramm_Typ", "cmbMesskurve", "cmbMessart", "cmbMesseinheit"}), "Messkurve|g.txt|g(r)|nm");
    const auto before = lines();
    ASSERT_EQ(before.size(), 5U);
    EXPECT_THAT(before[0], testing::StartsWith("0,2485"));
    type("txtProzent_0", "90");
    EXPECT_THAT(lines(), testing::SizeIs(5));
    EXPECT_NE(lines(), before) << "the minima have moved";
    EXPECT_EQ(lines()[0].substr(0, 7), before[0].substr(0, 7)) << "the maxima have not";

    openCurve("s.txt");
    EXPECT_EQ(texts({"cmbMesskurve", "cmbMessart", "cmbMesseinheit"}), "s.txt|S(K)|1/Å");
    ASSERT_EQ(lines().size(), 1U);
    EXPECT_THAT(lines()[0], testing::StartsWith("30,5"));
    find("tblMaxima").setFocus();
    QTest::keyClick(&find("tblMaxima"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(
        clipboard(), testing::StartsWith("Kurve\tKp in 1/nm\tS(Kp)\t2 kF in 1/nm\tKp − 2 kF in 1/nm\r\ns.txt\t30,5"));
    click("cmdDiagramm_Anteil");
    EXPECT_EQ(text("txtSuche_Ziel"), lines()[0].substr(0, 6)) << "2 kF = Kp is looked for";
    choose("cmbMesskurve", "g.txt");
    EXPECT_EQ(lines().size(), 5U);
}

TEST_F(MessseiteTest, NoTextIsCutOffOrTouchesAnother)
{
    openCurve("s.txt");
    openCurve("g.txt");
    const Messdiagramm& diagramm = find<Diagrammflaeche>("picDiagramm").messdiagramm();
    Leinwand leinwand;
    for (const char* const name : {"s.txt", "g.txt"}) {
        choose("cmbMesskurve", name);
        for (const auto& [width, height] : {std::pair(240, 200), {384, 510}, {640, 610}, {690, 225}, {1920, 1400}}) {
            for (const bool isRound : {false, true}) {
                leinwand.size = {width, height};
                leinwand.stil.rundeTeilung = isRound;
                const auto texts = textkaesten(diagramm.maler(), leinwand);
                EXPECT_EQ(schlechteTexte(texts, leinwand.size), "") << name << ' ' << width << ' ' << height;
                EXPECT_GT(texts.size(), 8U) << name << ' ' << width << ' ' << height;
            }
        }
    }
}

TEST_F(MessseiteTest, EveryChangeIsOneStepThatLeadsBack)
{
    openCurve("g.txt");
    openCurve("s.txt");
    const Dokument both = programm->Dokument();
    for (int again = 0; again < 2; ++again) // of which the second changes nothing
        choose("cmbMesseinheit", "1/nm");
    EXPECT_THAT(lines().at(0), testing::StartsWith("3,05"));
    choose("cmbMessart", "g(r)");
    EXPECT_THAT(lines().back(), testing::StartsWith("s.txt|5,")) << "both curves are drawn";
    click("cmdMesskurve_Entfernen");
    EXPECT_EQ(text("cmbMesskurve") + std::to_string(curves()), "g.txt1");
    for (int step = 0; step < 3; ++step)
        undo();
    EXPECT_TRUE(programm->Dokument() == both);
    EXPECT_EQ(texts({"cmbMessart", "cmbMesseinheit"}), "S(K)|1/Å");
    undo();
    EXPECT_EQ(curves(), 1U);
    undo();
    EXPECT_EQ(text("cmbDiagramm_Typ") + std::to_string(curves()), "2 D0");
    EXPECT_TRUE(find("cmbDiagramm").isVisible());
    EXPECT_FALSE(find("tblMaxima").isVisible());
}

TEST_F(MessseiteTest, DroppedTextsAreMeasuredCurvesAndBrokenOnesSayWhy)
{
    writeBytes(folder / "kaputt.txt", "1;2\n2;x\n3;4\n");
    QMimeData data;
    QList<QUrl> urls;
    for (const char* const name : {"g.txt", "kaputt.txt", "s.txt"})
        urls << QUrl::fromLocalFile(QString::fromStdString((folder / name).string()));
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&find("picDiagramm"), &enter);
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&find("picDiagramm"), &event);
    QTest::qWait(20);
    EXPECT_EQ(curves(), 2U);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text,
        "Die Messkurve \"kaputt.txt\" konnte nicht geöffnet werden:\r\nZeile 2: \"x\" ist keine Zahl.");
    undo();
    EXPECT_EQ(curves(), 0U) << "one step for all";
    openDialog.answer = (folder / "fehlt.txt").string();
    find<QAction>("mnuMesskurve").trigger();
    EXPECT_THAT(boxes.shown.back().text, testing::EndsWith("Datei nicht gefunden."));
    EXPECT_EQ(text("cmbDiagramm_Typ"), "2 D");
}

TEST_F(MessseiteTest, SavesWhatCanBeOpenedAgain)
{
    openCurve("g.txt");
    saveDialog.answer = {(folder / "werte").string(), 1};
    click("cmdDiagramm_Speichern");
    const std::vector<Messpunkt> points = *programm->Dokument().messkurven->front().punkte;
    openCurve("werte.dat");
    EXPECT_TRUE(*programm->Dokument().messkurven->back().punkte == points);
    saveDialog.answer = {(folder / "maxima").string(), 2};
    click("cmdDiagramm_Speichern");
    EXPECT_THAT(bytesOf(folder / "maxima.csv"), testing::StartsWith("\xEF\xBB\xBFKurve;r in nm;g(r);n;"));
}

} // namespace zerna
