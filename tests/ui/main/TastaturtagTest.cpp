#include <QAbstractButton>
#include <QMenu>
#include <QTableWidget>

#include "support/FakeDesk.h"
#include "support/ModalDialog.h"
#include "ui/diagram/frmBild.h"

namespace zerna {

/// A whole day's work without the mouse: every key goes to whatever has the focus, as it does on a desk.
struct TastaturtagTest : FakeDesk {
    /// Goes with the tab key to a control.
    static void tabTo(const char* name)
    {
        constexpr int Most = 80;
        for (int i = 0; i < Most && focused().objectName() != QLatin1String(name); ++i)
            press(Qt::Key_Tab);
        ASSERT_EQ(focused().objectName().toStdString(), name) << "not reached";
    }

    static void enter(const char* field, const char* typed)
    {
        tabTo(field);
        press(Qt::Key_A, Qt::ControlModifier);
        typeText(QString::fromUtf8(typed));
    }

    static void alt(Qt::Key key)
    {
        SCOPED_TRACE(testing::Message() << "Alt+" << static_cast<char>(key));
        press(key, Qt::AltModifier);
        QTest::qWait(1); // a mnemonic shows its button pressed
    }

    static void inMenu(Qt::Key key)
    {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        QTest::keyClick(QApplication::activePopupWidget(), key);
    }

    /// What a window manager does after a menu, a popup or another window.
    void back() const
    {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    std::string focusName() const { return focused().objectName().toStdString(); }
};

TEST_F(TastaturtagTest, AlloyResultsAndVariants)
{
    open();
    enter("txtFormel", "Al60Cu40");
    press(Qt::Key_Return);
    EXPECT_EQ(texts({"cmbElement_0", "txtProzent_0", "cmbElement_1", "txtProzent_1"}), "Al|60|Cu|40");
    alt(Qt::Key_M); // a row more
    EXPECT_TRUE(QTest::qWaitFor([this] { return text("lblAnzahl") == "3"; }));
    tabTo("cmbElement_2");
    typeText("Mg");
    enter("txtProzent_1", "30");
    EXPECT_EQ(texts({"cmbElement_2", "txtProzent_2"}), "Mg|10");

    tabTo("lblMFE_2");
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "lblMFE_3");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(clipboard().empty());
    press(Qt::Key_Return);
    EXPECT_TRUE(find("Ergebnisdetails").isVisible());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_FALSE(find("Ergebnisdetails").isVisible());
    back();

    press(Qt::Key_D, Qt::ControlModifier);
    enter("txtProzent_0", "50");
    press(Qt::Key_D, Qt::ControlModifier);
    alt(Qt::Key_V);
    EXPECT_TRUE(QTest::qWaitFor([] { return focused().objectName() == QLatin1String("tblVergleich"); }));
    press(Qt::Key_Home);
    press(Qt::Key_Return); // loads the first
    EXPECT_EQ(text("txtProzent_0"), "60");

    saveDialog.answer = SaveFileDialog::Choice{(folder / "tag.zerna").string(), 1};
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(std::filesystem::exists(folder / "tag.zerna"));
    enter("txtProzent_0", "55");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtProzent_0"), "60");
    enter("txtProzent_0", "70");
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(boxes.asked.size(), 1U) << "what is not saved";
}

TEST_F(TastaturtagTest, DiagramsSearchAndPicture)
{
    openAluminiumCopper();
    tabTo("cmbDiagramm");
    typeText("Fermie");
    tabTo("conDisplay1");
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Right);
    EXPECT_EQ(text("LabelPos"), "Anteile wie eingetragen: 2,00 at% Al - 7,33 eV");

    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return focused().objectName() == QLatin1String("txtSuche_Ziel"); }));
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("9,5");
    alt(Qt::Key_M); // the parts sum up to 100 %
    auto& series = find<QAbstractButton>("chkSuche_Mischungsreihe");
    EXPECT_TRUE(QTest::qWaitFor([&series] { return series.isChecked(); }));
    tabTo("txtSuche_Ziel");
    press(Qt::Key_Return);
    ASSERT_EQ(focusName(), "tblSuche_Anteile")
        << find<QAbstractButton>("lblSuche_Anteil").accessibleName().toStdString();
    press(Qt::Key_Return); // takes the first answer over
    EXPECT_NE(text("txtProzent_0"), "50");
    press(Qt::Key_Escape);
    back();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtProzent_0"), "50");

    saveDialog.next = SaveFileDialog::Choice{(folder / "bild").string(), 2};
    alt(Qt::Key_A); // file menu
    inDialog<frmBild>(
        [](frmBild&) {
            tabTo("txtBreite");
            press(Qt::Key_A, Qt::ControlModifier);
            typeText("120");
            press(Qt::Key_S, Qt::AltModifier);
        },
        [] { inMenu(Qt::Key_I); });
    EXPECT_TRUE(std::filesystem::exists(folder / "bild.svg"));
    EXPECT_EQ(text("lblMeldung"), "✓  „bild.svg“ gespeichert");

    writeBytes(folder / "kurve.txt", "1 0\n2 1\n3 0\n4 2\n5 0\n");
    openDialog.answer = (folder / "kurve.txt").string();
    alt(Qt::Key_A);
    inMenu(Qt::Key_M);
    back();
    tabTo("picDiagramm");
    press(Qt::Key_End);
    EXPECT_FALSE(text("LabelPos").empty());
    tabTo("tblMaxima");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_NE(clipboard().find("4"), std::string::npos);
}

TEST_F(TastaturtagTest, PeriodicTableAndWeighing)
{
    openAluminiumCopper();
    alt(Qt::Key_P);
    ASSERT_TRUE(QTest::qWaitFor([] { return focused().objectName() == QLatin1String("picPSE"); }));
    typeText("Zn");
    QTimer::singleShot(0, [] { inMenu(Qt::Key_2); });
    press(Qt::Key_Return);
    EXPECT_EQ(text("cmbElement_1"), "Zn");
    back();
    alt(Qt::Key_R);
    ASSERT_TRUE(QTest::qWaitFor([this] { return find("Pic_1_0").isVisible(); }));
    alt(Qt::Key_W);
    ASSERT_TRUE(QTest::qWaitFor([this] { return find("conWiegen1").isVisible(); }));
    alt(Qt::Key_G);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("1000");
    press(Qt::Key_Return);
    const std::string wanted = text("lblGesamtmasse");
    enter("Istmasse_0", "300");
    press(Qt::Key_Return);
    EXPECT_NE(text("lblGesamtmasse"), wanted);
    press(Qt::Key_Z, Qt::ControlModifier); // what the other masses rest on
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("Istmasse_0"), "");
    for (int i = 0; i < 120; ++i) { // once around all controls, and back again
        press(Qt::Key_Tab);
        EXPECT_TRUE(focused().isVisible());
    }
}

} // namespace zerna
