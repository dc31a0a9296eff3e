#include <QAbstractItemView>

#include <cstdlib>
#include <map>
#include <sstream>

#include "support/FakeDesk.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/frmBild.h"
#include "ui/platform/Lesbarkeit.h"
#include "ui/results/Ergebnisgitter.h"

namespace zerna {

namespace {

const QString Bilder = QStringLiteral(ZERNA_TESTS_DIR "/../docs/bilder/");

/// Mean difference of two pictures in a tile, 0 to 255.
double difference(const QImage& a, const QImage& b, const QRect& tile)
{
    int sum = 0;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        for (int x = tile.left(); x <= tile.right(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    }
    return static_cast<double>(sum) / (tile.width() * tile.height());
}

/// The part of a picture, in tiles, that another one shows otherwise.
double changedShare(const QImage& a, const QImage& b)
{
    constexpr int Tile = 16;
    int changed = 0;
    int count = 0;
    for (int y = 0; y < a.height(); y += Tile) {
        for (int x = 0; x < a.width(); x += Tile, ++count)
            changed += difference(a, b, QRect(x, y, Tile, Tile) & a.rect()) > 8 ? 1 : 0;
    }
    return static_cast<double>(changed) / count;
}

} // namespace

/// The window as the manual shows it. With ZERNA_AUFZEICHNEN set the pictures are written anew, which docs/bilder.sh
/// does; else they may differ from the window in details, but must show what it looks like.
struct HandbuchbilderTest : FakeDesk {
    HandbuchbilderTest()
    {
        QApplication::setStyle(new LesbarerStil);
        QFont font(QStringLiteral("DejaVu Sans"), 9);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::NoSubpixelAntialias);
        QApplication::setFont(font);
        settings["Komponenten"] = "1";
        open();
        window->resize(1120, 720); // small enough to be legible on a page
    }

    void enter(const char* formula) const
    {
        type("txtFormel", formula);
        QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    }

    /// A line of the results, by its name.
    std::string result(const char* name) const
    {
        auto& grid = *window->findChild<Ergebnisgitter*>();
        const auto rows = std::map<std::string, int>{{"Fermienergie", 7}, {"2 kF", 8}};
        return grid.wertUndEinheitIn(rows.at(name)).toStdString();
    }

    QRect placeOf(const QWidget& part) const { return {part.mapTo(window.get(), QPoint()), part.size()}; }

    const QWidget& byClass(const char* name) const
    {
        for (const QWidget* const part : window->findChildren<QWidget*>()) {
            if (qstrcmp(part->metaObject()->className(), name) == 0 && part->isVisible())
                return *part;
        }
        throw std::logic_error(std::string("no visible ") + name);
    }

    void picture(const char* name, QWidget& shown, const QRect& part = {})
    {
        SCOPED_TRACE(name);
        QApplication::processEvents();
        const QImage image =
            shown.grab(part.isNull() ? shown.rect() : part).toImage().convertToFormat(QImage::Format_RGB32);
        const QString file = Bilder + QLatin1String(name) + QStringLiteral(".png");
        if (std::getenv("ZERNA_AUFZEICHNEN") != nullptr) {
            EXPECT_TRUE(image.save(file, "PNG", 0));
            return;
        }
        const QImage stored = QImage(file).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(image.size(), stored.size());
        EXPECT_LT(changedShare(image, stored), 0.1) << "make the pictures anew with docs/bilder.sh";
    }
};

TEST_F(HandbuchbilderTest, CalculatorAndDiagrams)
{
    enter("Al60Cu40");
    choose("cmbDiagramm", "Fermienergie");
    find("txtProzent_0").setFocus();
    picture("hauptfenster", *window);
    frmBild dialog(find<Diagrammflaeche>("picDiagramm").diagramm().maler(), Bildvorgabe(), nullptr);
    dialog.show();
    QTest::qWait(50); // the preview comes a moment later
    picture("bild-speichern", dialog);
    const QRect diagram = placeOf(byClass("zerna::Diagrammbereich"));
    choose("cmbDiagramm_Typ", "PSE");
    choose("cmbDiagramm", "Fermienergie");
    picture("elementdiagramm", *window, diagram);
    enter("Al60Cu30Mg10");
    choose("cmbDiagramm_Typ", "3 D - ternär");
    choose("cmbDiagramm", "Fermienergie");
    picture("ternaer", *window, diagram);
    find<Diagrammflaeche>("picDiagramm").setAnsicht({.flach = true});
    picture("ternaer-flach", *window, diagram);
}

TEST_F(HandbuchbilderTest, CompositionAndWeighing)
{
    enter("Al60Cu40");
    for (const auto& [list, field, formula] :
        {std::tuple("cmbValenz_0", "txtValenz_0", "5/2"), {"cmbValenz_1", "txtValenz_1", "z_Al-"}}) {
        choose(list, "<andere>");
        type(field, formula);
    }
    QApplication::processEvents(); // the reason takes two lines
    const QRect above = placeOf(byClass("zerna::Kompositionsbereich"));
    picture("komposition", *window, above.united(placeOf(byClass("zerna::Befundzeile"))).adjusted(-4, -4, 4, 4));
    enter("Al50Cu50");
    choose("cmbValenz_0", "Standard");
    choose("cmbValenz_1", "Standard");
    click("cmdKnopf1_1");
    type("Istmasse_0", "300,2");
    QTest::keyClick(&find("Istmasse_0"), Qt::Key_Return);
    type("Istmasse_1", "705,9");
    type("txtVerlust", "3");
    picture("einwaage", *window, above.united(placeOf(find("conWiegen1"))).adjusted(-4, -4, 4, -100));
}

TEST_F(HandbuchbilderTest, PeriodicTableAndComparison)
{
    for (const char* const alloy : {"Al50Cu50", "Al60Cu40", "Al75Cu25", "Al60Cu30Mg10"}) {
        enter(alloy);
        choose("cmbDichteart", "kristallin");
        QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    }
    click("optButton_1_2");
    choose("cmbVergleich_Art", "Differenz zur Referenz");
    picture("vergleich", *window);
    enter("Al60Cu40");
    click("optButton_1_1");
    find("picPSE").setFocus();
    QTest::keyClicks(&find("picPSE"), QStringLiteral("Cu"));
    for (int row = 0; row < 8; ++row)
        QTest::keyClick(&find("lstInfo"), Qt::Key_Down); // to the liquid density, whose source is named
    picture("periodensystem", *window);
    choose("cmbFarbe", "Atomradius");
    picture("periodensystem-farbe", *window);
}

TEST_F(HandbuchbilderTest, MeasuredCurvesGoAsTheExampleSays)
{
    const std::string manual = bytesOf(ZERNA_TESTS_DIR "/../docs/handbuch.md");
    std::istringstream lines(manual.substr(manual.find("    K in 1/nm;S(K)\n")));
    std::string curve;
    for (std::string line; std::getline(lines, line) && line.starts_with("    ");)
        curve += line.substr(4) + "\n";
    writeBytes(folder / "beispiel.csv", curve);
    openDialog.answer = (folder / "beispiel.csv").string();
    enter("Al50Cu50");
    choose("cmbDiagramm_Typ", "Messkurve");
    click("cmdMesskurve_Oeffnen");
    const QAbstractItemModel& maxima = *find<QAbstractItemView>("tblMaxima").model();
    std::string cells;
    for (int column = 0; column < maxima.columnCount(); ++column)
        cells += maxima.index(0, column).data().toString().toStdString() + "|";
    for (const char* const value : {"30,883", "30,923", "−0,040"})
        EXPECT_NE(cells.find(value), std::string::npos) << value << " is not in " << cells;
    picture("messkurve", *window, placeOf(byClass("zerna::Diagrammbereich")));
}

TEST_F(HandbuchbilderTest, TheFirstTenMinutesGoAsWritten)
{
    enter("Al60Cu40");
    EXPECT_EQ(result("Fermienergie") + result("2 kF"), "9,4835 eV31,554 1/nm");
    choose("cmbDichteart", "kristallin");
    EXPECT_EQ(result("Fermienergie") + result("2 kF"), "10,294 eV32,875 1/nm");
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    type("txtProzent_0", "50");
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    click("optButton_1_2");
    EXPECT_EQ(find<QAbstractItemView>("tblVergleich").model()->columnCount(), 2);
    click("optButton_1_0");
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    choose("cmbSuche_Groesse", "2 Kf");
    click("chkSuche_Mischungsreihe");
    type("txtSuche_Ziel", "32");
    picture("suche", find("frmZielsuche"));
    click("cmdSuche_Uebernehmen");
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "47,1786|52,8214");
    EXPECT_EQ(result("2 kF"), "32 1/nm");
    click("cmdKnopf1_1");
    EXPECT_EQ(texts({"Sollmasse_0", "Sollmasse_1"}), "274,963|725,037");
}

} // namespace zerna
