#include "ui/main/Dateibefehle.h"

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>

#include <gmock/gmock.h>

#include "dokument/Dokumentdatei.h"
#include "support/FakeDesk.h"
#include "support/ModalDialog.h"
#include "support/Traegerbilder.h"
#include "traeger/Svg.h"
#include "ui/controls/Befundzeile.h"
#include "ui/main/Titeldialog.h"
#include "ui/platform/QtText.h"

namespace zerna {

struct DateibefehleTest : FakeDesk {
    DateibefehleTest()
    {
        openAluminiumCopper();
        type("txtProzent_0", "60");
        saveDialog.answer = {(folder / "Al-Cu").string(), 1};
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    }

    /// The title bar: its text, and "*" if it shows that something is changed.
    std::string title() const { return window->windowTitle().toStdString() + (window->isWindowModified() ? " *" : ""); }

    /// Drops files on a control.
    void drop(const char* name, const QList<QUrl>& urls) const
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&find(name), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&find(name), &event);
        QTest::qWait(20);
    }
};

TEST_F(DateibefehleTest, TitleBarTellsFileAndChanges)
{
    EXPECT_EQ(title(), "Al-Cu.zerna[*] – Zerna");
    type("txtProzent_0", "70");
    EXPECT_EQ(title(), "Al-Cu.zerna[*] – Zerna *");
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtProzent_0") + title(), "60Al-Cu.zerna[*] – Zerna");
    QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(text("txtProzent_0") + title(), "50Zerna");
    auto& recent = find<QMenu>("mnuZuletzt");
    emit recent.aboutToShow();
    ASSERT_EQ(recent.actions().size(), 1);
    recent.actions().constFirst()->trigger();
    EXPECT_EQ(text("txtProzent_0") + title(), "60Al-Cu.zerna[*] – Zerna");
}

TEST_F(DateibefehleTest, ClosingAsksOnlyForAChangedFile)
{
    type("txtProzent_0", "70");
    boxes.way = 2;
    EXPECT_FALSE(window->close());
    EXPECT_EQ(boxes.asked.size(), 1U);
    boxes.way = 0;
    EXPECT_TRUE(window->close());
    EXPECT_EQ(boxes.asked.size(), 2U);
    EXPECT_THAT(bytesOf(folder / "Al-Cu.zerna"), testing::HasSubstr("\"prozent\": \"70\""));
}

TEST_F(DateibefehleTest, DroppedAndNamedFilesAreOpened)
{
    writeBytes(folder / "b.svg", svgMitDokument(Svgbild, bytesOf(folder / "Al-Cu.zerna")));
    type("txtProzent_0", "70");
    boxes.way = 1;
    const QUrl picture = QUrl::fromLocalFile(QString::fromStdString((folder / "b.svg").string()));
    drop("txtProzent_0", {picture});
    EXPECT_EQ(text("txtProzent_0") + title(), "60b.svg[*] – Zerna");
    drop("Pic_1_0", {picture, picture});
    window->oeffneArgumente({"a", "b"});
    window->oeffneArgumente({"-x"});
    window->oeffneArgumente({});
    std::string said;
    for (const auto& box : boxes.shown)
        said += box.text + '\n';
    EXPECT_EQ(said,
        "Zerna öffnet eine Datei auf einmal. Bitte nur eine hierher ziehen.\n"
        "Zerna öffnet eine Datei auf einmal; im Aufruf stehen 2.\r\nAufruf: zerna [DATEI]\n"
        "Die Option \"-x\" gibt es nicht.\r\nAufruf: zerna [DATEI]\n");
    const QString file = QString::fromStdString((folder / "Al-Cu.zerna").string());
    window->oeffneArgumente({file});
    EXPECT_EQ(title(), "Al-Cu.zerna[*] – Zerna");
    type("txtProzent_0", "77");
    const std::size_t asked = boxes.asked.size();
    window->oeffneArgumente({file});
    EXPECT_EQ(text("txtProzent_0"), "77") << "as it was restored";
    EXPECT_EQ(boxes.asked.size(), asked);
}

/// Nothing of the document before is seen, and nothing of the file is lost when its at% come.
TEST_F(DateibefehleTest, AnIncompleteAlloyIsShownWithWhatBelongsToIt)
{
    click("cmdKnopf1_1");
    type("Istmasse_0", "100");
    type("Istmasse_1", "200,5");
    QTest::keyClick(&find("Istmasse_1"), Qt::Key_Return);
    type("txtProzent_0", "");
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    const Dokument saved = programm->Dokument();
    ASSERT_TRUE(saved.wiegen.bezug);
    QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
    choose("cmbElement_0", "Zn");
    find<QAction>("mnuKom_1").trigger();
    ASSERT_EQ(programm->Eingabe().anzahl(), 1);
    boxes.way = 1;
    window->oeffneArgumente({QString::fromStdString((folder / "Al-Cu.zerna").string())});
    const char* const incomplete = "Aluminium|Kupfer|100|200,5|||Bezug|Gesamtmasse = 300,5 mg|"
                                   "Sollmassen nicht berechenbar: Aluminium hat keine lesbaren at%.|||";
    const std::vector<const char*> seen{"Label_0", "Label_1", "Istmasse_0", "Istmasse_1", "Sollmasse_0", "Abweichung_0",
        "Bezug_1", "lblGesamtmasse", "lblHinweis", "txtMFE_1", "txtMFE_2", "lblMFE_3"};
    EXPECT_EQ(texts(seen), incomplete);
    EXPECT_EQ(
        find<Befundzeile>("lblBefund").befund(), QStringLiteral("Komponente 1 (Al): at% fehlt. Eine Zahl eintragen."));
    EXPECT_EQ(title(), "Al-Cu.zerna[*] – Zerna");
    EXPECT_FALSE(find("conDisplay1").isVisible()); // it says why there is no diagram
    type("txtProzent_0", "60");
    EXPECT_TRUE(find("conDisplay1").isVisible());
    EXPECT_EQ(texts({"Istmasse_0", "Istmasse_1", "Sollmasse_0", "Bezug_1"}), "100|200,5|127,698|Bezug");
    EXPECT_EQ(programm->Dokument().wiegen, saved.wiegen);
    QTest::keyClick(&find("txtProzent_0"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texts(seen), incomplete);
    EXPECT_EQ(title(), "Al-Cu.zerna[*] – Zerna");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(DateibefehleTest, AMassWaitsForItsElement)
{
    type("Istmasse_0", "100");
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    std::string bytes = bytesOf(folder / "Al-Cu.zerna");
    bytes.replace(bytes.find("\"Al\""), 4, "\"\"");
    writeBytes(folder / "x.zerna", bytes);
    window->oeffneArgumente({QString::fromStdString((folder / "x.zerna").string())});
    EXPECT_EQ(texts({"Label_0", "Istmasse_0", "Sollmasse_1", "lblHinweis"}),
        "(kein Element)|100||Sollmassen nicht berechenbar: Komponente 1 hat kein Element.\n"
        "Atomprozente nicht berechenbar: Komponente 1 hat keine bekannte Atommasse.");
    choose("cmbElement_0", "Al");
    EXPECT_EQ(texts({"Label_0", "Istmasse_0", "IstProzent_0"}), "Aluminium|100|100");
}

TEST_F(DateibefehleTest, TitleAndRemarkAreAStep)
{
    const auto answer = [](Titeldialog& dialog) {
        typeText("Größe");
        press(Qt::Key_Tab);
        typeText("x");
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    };
    inDialog<Titeldialog>(answer, [this] { find<QAction>("mnuTitel").trigger(); });
    EXPECT_EQ(programm->Dokument().titel + *programm->Dokument().bemerkung, "Größex");
    EXPECT_EQ(title(), "Al-Cu.zerna[*] – Zerna *");
    find<QAction>("mnuRueckgaengig").trigger();
    EXPECT_EQ(programm->Dokument().titel + title(), "Al-Cu.zerna[*] – Zerna");

    const std::string longest = "😀" + std::string(LaengstesFeld - 1, 'x'); // takes a place more there
    for (const bool isTooLong : {false, true}) {
        Titeldialog dialog(longest + (isTooLong ? "x" : ""), {}, nullptr);
        EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled(), !isTooLong);
        EXPECT_EQ(fromQt(dialog.findChild<Befundzeile*>("lblZuLang")->befund()),
            isTooLong ? "Der Titel hat 32768 Zeichen, höchstens 32767 sind möglich." : "");
        EXPECT_EQ(dialog.titel().size(), longest.size() + (isTooLong ? 1 : 0));
    }
}

} // namespace zerna
