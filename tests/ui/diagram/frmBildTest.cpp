#include "ui/diagram/frmBild.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "support/ModalDialog.h"
#include "ui/controls/Befundzeile.h"
#include "ui/diagram/Bildvorschau.h"
#include "ui/platform/QtText.h"

namespace zerna {

struct frmBildTest : testing::Test {
    Leinwand painted;
    frmBild dialog{[this](QPainter&, const Leinwand& leinwand) { painted = leinwand; }, Bildvorgabe(), nullptr};

    frmBildTest()
    {
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    template <class Widget>
    Widget& find(const char* name) const
    {
        return *dialog.findChild<Widget*>(QLatin1String(name));
    }

    void type(const char* name, const char* text) const
    {
        auto& field = find<QLineEdit>(name);
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, QLatin1String(text));
    }

    std::string befund() const { return fromQt(find<Befundzeile>("lblBefund").befund()); }
    bool canSave() const { return find<QPushButton>("cmdSpeichern").isEnabled(); }
};

TEST_F(frmBildTest, WrongNumbersAreNamedAndCannotBeSaved)
{
    const struct {
        const char* field;
        const char* text;
        const char* befund;
        const char* good;
    } rows[] = {
        {"txtBreite", "0", "Breite: erwartet wird eine Zahl von 20 bis 500 mm", "85,5"},
        {"txtBreite", "10000", "Breite: erwartet wird eine Zahl von 20 bis 500 mm", "85"},
        {"txtHoehe", "abc", "Höhe: erwartet wird eine Zahl von 20 bis 500 mm", "60"},
        {"txtSchriftgroesse", "", "Schriftgröße: erwartet wird eine Zahl von 4 bis 36 pt", "8"},
        {"txtLinienbreite", "-1", "Linienbreite: erwartet wird eine Zahl von 0,1 bis 6 pt", "0,5"},
        {"txtAufloesung", "99999", "Auflösung: erwartet wird eine Zahl von 50 bis 1200 dpi", "600"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.field) + " " + row.text);
        type(row.field, row.text);
        EXPECT_EQ(befund(), row.befund);
        EXPECT_FALSE(canSave());
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        type(row.field, row.good);
        EXPECT_EQ(befund(), "");
        EXPECT_TRUE(canSave());
    }
    const Bildvorgabe& chosen = dialog.vorgabe();
    EXPECT_EQ(std::tuple(chosen.breite, chosen.hoehe, chosen.schriftgroesse, chosen.linienbreite, chosen.aufloesung),
        std::tuple(85, 60, 8, 0.5, 600));
    for (const char* const field : {"txtBreite", "txtHoehe"})
        type(field, "400");
    EXPECT_TRUE(canSave());
    type("txtAufloesung", "1200");
    EXPECT_TRUE(befund().starts_with("Bei 1200 dpi hätte das Bild 358 Millionen Pixel")) << befund();
    EXPECT_FALSE(canSave());
    QTest::mouseClick(&find<QPushButton>("cmdVorgabe"), Qt::LeftButton);
    EXPECT_EQ(dialog.vorgabe(), Bildvorgabe());
    EXPECT_TRUE(canSave());
}

TEST_F(frmBildTest, PreviewShowsWhatIsChosenInItsProportions)
{
    auto& preview = find<Bildvorschau>("picVorschau");
    auto& widths = find<QComboBox>("cmbBreite");
    EXPECT_EQ(widths.currentIndex(), 1) << "two columns";
    widths.setFocus();
    QTest::keyClick(&widths, Qt::Key_Up);
    EXPECT_EQ(find<QLineEdit>("txtBreite").text(), "85");
    EXPECT_EQ(find<QLineEdit>("txtHoehe").text(), "65") << "not so low that texts would be missing";
    type("txtHoehe", "100");
    EXPECT_EQ(widths.currentIndex(), 0);
    type("txtBreite", "50");
    EXPECT_EQ(widths.currentIndex(), 2) << "free";
    EXPECT_NEAR(preview.blatt().height() / preview.blatt().width(), 2, 1e-9);
    EXPECT_TRUE(QRectF(preview.rect()).contains(preview.blatt()));
    for (const char* const box : {"chkTitel", "chkLegende", "chkRundeTeilung", "chkGrau"})
        QTest::keyClick(&find<QWidget>(box), Qt::Key_Space);
    QTest::keyClick(&find<QComboBox>("cmbDezimal"), Qt::Key_Down);
    preview.grab();
    EXPECT_EQ(painted.stil, (Bildstil{false, Dezimaltrenner::Punkt, true, 4.0 / 3, false, false, false}));
    EXPECT_EQ(painted.size, QSize(188, 377)) << "50 and 100 mm";
}

} // namespace zerna
