#include "ui/main/Hilfe.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QWheelEvent>

#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "support/FakeDesk.h"
#include "support/ModalDialog.h"
#include "ui/diagram/frmBild.h"
#include "ui/hilfe/frmHandbuch.h"
#include "ui/main/Hilfeziele.h"
#include "ui/main/Titeldialog.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmEinstellungen.h"
#include "ui/platform/Kontrast.h"
#include "ui/platform/QtText.h"
#include "ui/search/frmZielsuche.h"

namespace zerna {

struct HilfeTest : FakeDesk {
    frmHandbuch& handbuch() const { return find<frmHandbuch>("frmHandbuch"); }
    QTextBrowser& browser() const { return find<QTextBrowser>("txtHandbuch"); }
    std::string section() const { return fromQt(find<QTreeWidget>("lstInhalt").currentItem()->text(0)); }
    std::string block() const { return fromQt(browser().textCursor().block().text()); }

    void openAt(const char* section)
    {
        open();
        window->findChild<Hilfe*>()->zeigeAbschnitt(QString::fromUtf8(section));
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &handbuch(); }));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(&browser(), key, modifiers); }
};

TEST_F(HilfeTest, LongTitlesOfTheContentsAreWrappedWhereTheyFindNoRoom)
{
    openAt("einwaage");
    auto& contents = find<QTreeWidget>("lstInhalt");
    const auto lines = [&](int chapter) {
        return contents.visualItemRect(contents.topLevelItem(chapter - 1)).height() / contents.fontMetrics().height();
    };
    for (const auto& [width, fifthAndEighth] : {std::pair(450, 11), {180, 31}, {450, 11}}) {
        handbuch().findChild<QSplitter*>()->setSizes({width, handbuch().width() - width});
        EXPECT_TRUE(QTest::qWaitFor([&, all = fifthAndEighth] { return lines(5) * 10 + lines(8) == all; })) << width;
    }
}

TEST_F(HilfeTest, EveryControlAndEveryDialogHasASectionThatIsThere)
{
    settings["Komponenten"] = "4";
    openAt("einwaage");
    for (const Hilfeziel& ziel : hilfeziele())
        EXPECT_NE(findeAbschnitt(handbuch().abschnitte(), QString::fromUtf8(ziel.anker)), nullptr)
            << ziel.teil << " leads to " << ziel.anker;
    const QString beginning = hilfeziel(window.get());
    for (const QWidget* const control : window->findChildren<QWidget*>()) {
        const bool isSwitch = control->objectName().startsWith(QLatin1String("optButton"))
            || control->objectName().startsWith(QLatin1String("cmdKnopf1"));
        EXPECT_TRUE(control->focusPolicy() == Qt::NoFocus || isSwitch || hilfeziel(control) != beginning)
            << control->objectName().toStdString();
    }
    const frmBild picture([](QPainter&, const Leinwand&) {}, Bildvorgabe(), nullptr);
    const frmZielsuche search(*programm);
    const frmEinstellungen preferences(programm->settings());
    const Titeldialog title("", "", nullptr);
    const frmAbout about(programm->Loader());
    const QFileDialog file;
    const QInputDialog input;
    const QMessageBox box;
    for (const QWidget* const dialog :
        std::initializer_list<const QWidget*>{&picture, &search, &preferences, &title, &about, &file, &input, &box}) {
        EXPECT_FALSE(hilfeziel(dialog).isEmpty()) << dialog->metaObject()->className();
        for (const QWidget* const control : dialog->findChildren<QWidget*>())
            EXPECT_FALSE(hilfeziel(control).isEmpty()) << control->objectName().toStdString();
    }
}

TEST_F(HilfeTest, LinksInTheManualLeadSomewhere)
{
    openAt("einwaage");
    int links = 0;
    for (QTextBlock text = browser().document()->begin(); text.isValid(); text = text.next()) {
        for (auto it = text.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isImageFormat())
                EXPECT_FALSE(
                    QPixmap(handbuchbilderordner() + QLatin1Char('/') + format.toImageFormat().name()).isNull())
                    << format.toImageFormat().name().toStdString();
            else if (const QString target = format.anchorHref(); !target.isEmpty()) {
                EXPECT_NE(findeAbschnitt(handbuch().abschnitte(), target.mid(1)), nullptr) << target.toStdString();
                EXPECT_GE(kontrast(format.foreground().color(), browser().palette().color(QPalette::Base)), 4.5);
                ++links;
            }
        }
    }
    EXPECT_GE(links, 40);
}

TEST_F(HilfeTest, F1OpensWhatIsSaidAboutTheFocus)
{
    settings["Komponenten"] = "2";
    open();
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"2 D", "txtProzent_0", "2. Zusammensetzung"},
        {"2 D", "txtValenz_1", "3. Formeln für die Valenz"},
        {"2 D", "cmbDiagramm", "6. Konzentrationsdiagramme"},
        {"3 D - ternär", "picDiagramm", "8. Ternäres Diagramm"},
        {"PSE", "picDiagramm", "7. Diagramme über der Ordnungszahl"},
        {"PSE", "cmdMFE_Speichern", "5. Ergebnisse: eintippen, blättern, kopieren, speichern"},
    };
    for (const auto& [diagram, control, expected] : rows) {
        SCOPED_TRACE(control);
        window->activateWindow();
        choose("cmbDiagramm_Typ", diagram);
        find(control).setEnabled(true);
        find(control).setFocus();
        QTest::keyClick(&find(control), Qt::Key_F1);
        EXPECT_TRUE(handbuch().isVisible());
        EXPECT_EQ(section(), expected);
    }
    QTest::keyClick(&handbuch(), Qt::Key_Escape);
    EXPECT_FALSE(handbuch().isVisible());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(HilfeTest, F1InADialogLeavesBothUsable)
{
    openAt("einwaage");
    window->activateWindow();
    inDialog<QMessageBox>(
        [this](QMessageBox& box) {
            QTest::keyClick(&box, Qt::Key_F1);
            EXPECT_TRUE(QTest::qWaitForWindowActive(&handbuch()));
            EXPECT_EQ(block(), "„Dichte für … ist Null!“, „ist unbekannt!“, „ist keine gültige Zahl!“");
            EXPECT_TRUE(find("cmdZurueck").isEnabled()) << "the way back is kept";
            QTest::keyClicks(&find("txtSuche"), QStringLiteral("Ka"));
            EXPECT_TRUE(text("lblTreffer").starts_with("Treffer 1 von ")) << text("lblTreffer");
            box.accept();
        },
        [this] {
            QMessageBox box(window.get());
            box.setText(QStringLiteral("Dichte für Aluminium ist Null!"));
            box.exec();
        });
    EXPECT_TRUE(handbuch().isVisible());
}

TEST_F(HilfeTest, MessagesAreFoundByTheirWords)
{
    openAt("einwaage");
    const std::pair<const char*, const char*> rows[] = {
        {"Error 11 (Division durch Null) in procedure Istmasse_Change of Benutzersteuerelement conWiegen",
            "„Error 11 (Division durch Null) in procedure Istmasse_Change …“"},
        {"Die Datei \"a.dat\" konnte nicht gespeichert werden:\nDatenträger voll", "„Die Datei \"…\" konnte nicht"},
        {"Fehler in Formel. (Funktion 'foo' nicht definiert?)", "Fenster „Fehler in Formel."},
        {"Diese zuletzt gewählten Elemente fehlen in der Datei elemente.dat: Xx", "„Diese zuletzt gewählten Elemente"},
        {"Die jetzige Legierung steht in keiner Datei. Soll sie gespeichert werden?",
            "„Die Legierung \"…\" ist geändert."},
        {"Die Datei \"a.zerna\" hat inzwischen ein anderes Programm geändert.\r\nSoll sie überschrieben werden?",
            "„Die Datei \"…\" hat inzwischen"},
        {"Es ist kein Drucker eingerichtet. „Speichern“ gibt den Wiegezettel auch als PDF-Dokument aus.",
            "„Es ist kein Drucker eingerichtet. … den Wiegezettel"},
        {"Was niemand erklärt", "15. Meldungen"},
    };
    for (const auto& [message, begin] : rows) {
        handbuch().zeigeMeldung(QString::fromUtf8(message));
        EXPECT_TRUE(block().starts_with(begin)) << message << " leads to " << block();
    }
}

TEST_F(HilfeTest, SearchMarksAllAndBeginsWithTheHeading)
{
    openAt("einwaage");
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(find("txtSuche").hasFocus());
    QTest::keyClicks(&find("txtSuche"), QStringLiteral("eigene elementtabelle"));
    EXPECT_EQ(block(), "Eigene Elementtabelle: ein Beispiel");
    const auto count = browser().extraSelections().size();
    EXPECT_GE(count, 3);
    EXPECT_TRUE(text("lblTreffer").ends_with(" von " + std::to_string(count)));
    const std::string first = text("lblTreffer");
    QTest::keyClick(&find("txtSuche"), Qt::Key_Return);
    EXPECT_NE(text("lblTreffer"), first);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(text("lblTreffer"), first);
    QTest::keyClicks(&find("txtSuche"), QStringLiteral("xyz"));
    EXPECT_EQ(text("lblTreffer"), "kein Treffer");
    QTest::keyClick(&find("txtSuche"), Qt::Key_Escape);
    EXPECT_TRUE(browser().extraSelections().isEmpty() && handbuch().isVisible());
}

TEST_F(HilfeTest, TheWayLeadsBackAndForwardAndTheSizeOfLettersStays)
{
    openAt("einwaage");
    EXPECT_FALSE(find("cmdZurueck").isEnabled());
    handbuch().zeigeAbschnitt(QStringLiteral("tastatur"));
    EXPECT_EQ(section(), "11. Tastatur");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(section(), "10. Einwaage");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(section(), "11. Tastatur");
    const double size = browser().document()->defaultFont().pointSizeF();
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(browser().document()->defaultFont().pointSizeF(), size);
    EXPECT_EQ(section(), "11. Tastatur");
    EXPECT_EQ(settings["Handbuchzoom"], "110");
    openAt("einwaage");
    EXPECT_EQ(text("lblZoom"), "110 %");
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(text("lblZoom"), "100 %");
    const auto turn = [this](QPoint angle) {
        QWheelEvent wheel({5, 5}, {}, {}, angle, {}, Qt::ControlModifier, {}, false);
        QApplication::sendEvent(browser().viewport(), &wheel);
        return text("lblZoom");
    };
    EXPECT_EQ(turn({120, 0}), "100 %"); // sideways
    EXPECT_EQ(turn({0, 70}), "100 %"); // a notch in two parts
    EXPECT_EQ(turn({0, 50}), "110 %");
    EXPECT_EQ(turn({0, -120}), "100 %");
}

TEST_F(HilfeTest, LinesFitTheWindowWithLargeLettersToo)
{
    settings["Handbuchzoom"] = "250";
    openAt("einwaage");
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(text("lblZoom"), "300 %");
    EXPECT_EQ(browser().horizontalScrollBar()->maximum(), 0);
}

TEST_F(HilfeTest, TabGoesOnFromWhatIsSeen)
{
    openAt("die-erste-legierung");
    const int heading = browser().textCursor().position();
    press(Qt::Key_Tab);
    EXPECT_TRUE(browser().textCursor().charFormat().isAnchor());
    EXPECT_GT(browser().textCursor().position(), heading);
    EXPECT_LT(browser().textCursor().position(), heading + 1000);
    openAt("die-erste-legierung");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(browser().textCursor().charFormat().isAnchor());
    EXPECT_LT(browser().textCursor().position(), heading);
}

/// The steps of the manual's example in the window; the commands before them are run with all others of the manual.
TEST_F(HilfeTest, TheExampleOfATableOfOnesOwnWorks)
{
    std::string csv = bytesOf(ZERNA_DATA_DIR "/elemente.csv");
    csv.replace(csv.find("8.96,,"), 6, "8.96,8.3,");
    csv += "18,7,X,Probe,104,100,,,2,,5,,,,,[Rn] (7)s2,0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 2 0 0,H\n";
    saveElements(folder / "elemente.dat", readElementCsv(csv));
    settings["Komponenten"] = "1";
    open();
    type("txtFormel", "Cu50X50");
    QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    EXPECT_EQ(texts({"cmbElement_0", "cmdDichte_0", "txtDichte_0", "cmbElement_1", "cmdDichte_1", "txtDichte_1"}),
        "Cu|amorph|8,3|X|kristallin|5");
}

} // namespace zerna
