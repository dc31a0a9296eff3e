#include "ui/main/frmMain.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QMenuBar>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <functional>
#include <map>

#include "support/FakeDesk.h"
#include "support/FilesTest.h"
#include "ui/main/frmAbout.h"

namespace zerna {

struct frmMainTest : FakeDesk {
    /// The window with all its rows shows its areas one after the other.
    void forEachView(const std::function<void()>& check)
    {
        settings["Komponenten"] = "4";
        open();
        for (const char* const areaSwitch : {"cmdKnopf1_0", "cmdKnopf1_1", "optButton_1_1", "optButton_1_2"}) {
            SCOPED_TRACE(areaSwitch);
            click(areaSwitch);
            check();
        }
    }

    template <class Widget>
    std::vector<Widget*> visible() const
    {
        std::vector<Widget*> widgets;
        for (auto* const widget : window->findChildren<Widget*>()) {
            if (widget->isVisible())
                widgets.push_back(widget);
        }
        return widgets;
    }

    static std::string named(const QWidget& widget)
    {
        return (widget.parentWidget()->objectName() + '/' + widget.objectName()).toStdString();
    }

    QRect area(const QWidget& widget) const { return {widget.mapTo(window.get(), QPoint()), widget.size()}; }
};

TEST_F(frmMainTest, TabFollowsTheReadingOrder)
{
    forEachView([this] {
        std::vector<QWidget*> stops;
        find("optButton_1_0").setFocus();
        do {
            stops.push_back(QApplication::focusWidget());
            QTest::keyClick(stops.back(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != stops.front() && stops.size() < 200);
        EXPECT_GE(stops.size(), 5U);
        for (auto later = stops.begin(); later != stops.end(); ++later) {
            const QRect second = area(**later);
            const auto outOfOrder = std::find_if(stops.begin(), later, [&](const QWidget* earlier) {
                const QRect first = area(*earlier);
                const bool sameColumn = first.left() <= second.right() && second.left() <= first.right();
                const bool sameRow = first.top() <= second.bottom() && second.top() <= first.bottom();
                return sameColumn ? second.top() < first.top() : sameRow && second.left() < first.left();
            });
            if (outOfOrder != later)
                ADD_FAILURE() << named(**later) << " comes after " << named(**outOfOrder);
        }
    });
}

TEST_F(frmMainTest, WorkBeginsAtTheFirstAtPercent)
{
    open();
    EXPECT_EQ(QApplication::focusWidget(), &find("txtProzent_0"));
    EXPECT_TRUE(find<QLineEdit>("txtProzent_0").hasSelectedText());
}

TEST_F(frmMainTest, EveryControlHasANameForScreenReadersAndNoMnemonicComesTwice)
{
    forEachView([this] {
        std::map<QString, int> uses;
        for (QWidget* const widget : visible<QWidget>()) {
            const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
            EXPECT_TRUE(widget->focusPolicy() == Qt::NoFocus || !name.isEmpty()) << named(*widget);
            const auto* const button = qobject_cast<QAbstractButton*>(widget);
            const auto* const label = qobject_cast<QLabel*>(widget);
            if (button != nullptr || (label != nullptr && label->buddy() != nullptr))
                ++uses[QKeySequence::mnemonic(button != nullptr ? button->text() : label->text()).toString()];
        }
        for (const QAction* const menu : find<QMenuBar>("mnuMain").actions())
            ++uses[QKeySequence::mnemonic(menu->text()).toString()];
        uses.erase(QString());
        EXPECT_GE(uses.size(), 7U);
        for (const auto& [key, count] : uses)
            EXPECT_EQ(count, 1) << key.toStdString();
    });
    click("optButton_1_0");
    EXPECT_EQ(find<QComboBox>("cmbElement_1").itemData(28, Qt::AccessibleTextRole), QStringLiteral("Cu Kupfer"));
}

TEST_F(frmMainTest, TheWheelScrollsOpenListsAndChoosesInNone)
{
    const auto turn = [](QWidget& widget) {
        const QPointF at = widget.rect().center();
        QWheelEvent wheel(
            at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    };
    forEachView([&] {
        for (QComboBox* const list : visible<QComboBox>()) {
            const int chosen = list->currentIndex();
            turn(*list);
            list->setFocus();
            turn(*list);
            EXPECT_EQ(list->currentIndex(), chosen) << named(*list);
        }
    });
    click("optButton_1_0");
    auto& elements = find<QComboBox>("cmbElement_0");
    elements.showPopup();
    const int top = elements.view()->verticalScrollBar()->value();
    turn(*elements.view()->viewport());
    EXPECT_GT(elements.view()->verticalScrollBar()->value(), top);
    elements.hidePopup();
}

TEST_F(frmMainTest, SwitchesShowOnePanelAndOneArea)
{
    open();
    const auto shown = [this] {
        std::string names;
        for (const char* const name : {"Pic_1_0", "Pic_1_1", "Pic_1_2", "lblMFE_7", "conWiegen1"})
            names += find(name).isVisible() ? std::string(name) + ' ' : "";
        return names;
    };
    EXPECT_EQ(shown(), "Pic_1_0 lblMFE_7 ");
    for (const auto& [key, names] : {std::pair(Qt::Key_W, "Pic_1_0 conWiegen1 "), {Qt::Key_P, "Pic_1_1 "},
             {Qt::Key_V, "Pic_1_2 "}, {Qt::Key_R, "Pic_1_0 conWiegen1 "}, {Qt::Key_E, "Pic_1_0 lblMFE_7 "}}) {
        QTest::keyClick(window.get(), key, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&, expected = names] { return shown() == expected; })) << shown();
    }
}

TEST_F(frmMainTest, ClosingReleasesTheProgram)
{
    open();
    type("txtProzent_2", "7"); // the balance row writes its rest when it loses the focus
    window->close();
    EXPECT_EQ(errorNumber([this] { programm->Calc(); }), 91);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(frmMainTest, AboutBoxTellsVersionAndBuild)
{
    open();
    bool closed = false;
    QTimer::singleShot(0, [&] {
        auto* const box = QApplication::activeModalWidget();
        const clsLoader& loader = programm->Loader();
        EXPECT_EQ(box->findChild<QLabel*>("lblVersion")->text().toStdString(), "Version " + loader.Version());
        EXPECT_EQ(box->findChild<QLabel*>("lblKompiliert")->text().toStdString(),
            "kompiliert am " + loader.Creation_Date() + " um " + loader.Creation_Time() + " Uhr\n7131 Codezeilen");
        QTest::mouseClick(box->findChild<QWidget*>("cmdSchliessen"), Qt::LeftButton);
        closed = !box->isVisible();
    });
    click("cmdAbout");
    EXPECT_TRUE(closed);
}

TEST_F(frmMainTest, AWindowWithoutElementsSaysWhyAndOffersNothing)
{
    writeBytes(folder / "elemente.dat", std::string(4, '\0'));
    open();
    EXPECT_NE(text("lblSperre").find("enthält keine Elemente"), std::string::npos);
    EXPECT_FALSE(find("txtProzent_0").isVisible() || find("optButton_1_1").isEnabled() || programm->StartupDone());
    QTest::keyClick(window.get(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(find("lblSperre").isVisible());
    EXPECT_TRUE(window->close());
}

} // namespace zerna
