#include <QAbstractItemView>
#include <QCheckBox>
#include <QScreen>
#include <QTabBar>

#include "support/Dialogreihe.h"
#include "support/Messkurven.h"
#include "ui/controls/Masse.h"
#include "ui/controls/Wertanzeige.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/Lesbarkeit.h"

namespace zerna {

/// The window and its dialogs at the sizes of texts and screens that people use.
struct FensterlayoutTest : Dialogreihe {
    FensterlayoutTest()
    {
        settings["Komponenten"] = "4";
        QApplication::setStyle(new LesbarerStil);
    }
    ~FensterlayoutTest() override
    {
        QApplication::setFont(usual);
        QApplication::setStyle(QStringLiteral("fusion"));
    }

    /// The toolkit's file dialog shows the folder it stands in and types that may end in many names.
    static bool showsAnyLength(const QComboBox& list)
    {
        return list.objectName() == QLatin1String("lookInCombo") || list.objectName() == QLatin1String("fileTypeCombo");
    }

    static int neededWidth(const QWidget& widget)
    {
        if (const auto* const list = qobject_cast<const QComboBox*>(&widget))
            return showsAnyLength(*list) ? 0
                                         : listenbreite(*list, list->currentText()) - 4; // the toolkit's room beside it
        if (const auto* const field = qobject_cast<const QLineEdit*>(&widget)) // names and titles may be long
            return qobject_cast<const Wertfeld*>(field) != nullptr ? feldbreite(*field, field->text()) : 0;
        if (const auto* const box = qobject_cast<const QCheckBox*>(&widget))
            return box->minimumSizeHint().width();
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            return button->hasHeightForWidth()
                ? 0
                : button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget))
            return tabs->tabRect(tabs->count() - 1).right();
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        const bool isOneLine =
            (label != nullptr && !label->wordWrap()) || qobject_cast<const Wertanzeige*>(&widget) != nullptr;
        return isOneLine ? widget.minimumSizeHint().width() : 0;
    }

    /// What takes several lines, and what has a hint that tells the rest.
    static int neededHeight(const QWidget& widget)
    {
        const bool hasText = qobject_cast<const QLabel*>(&widget) != nullptr
            || qobject_cast<const QLineEdit*>(&widget) != nullptr
            || qobject_cast<const Wertanzeige*>(&widget) != nullptr
            || (qobject_cast<const QAbstractButton*>(&widget) != nullptr
                && widget.property("text").toString().size() > 1);
        if (hasText && widget.hasHeightForWidth() && widget.toolTip().isEmpty())
            return widget.heightForWidth(widget.width());
        return hasText ? widget.fontMetrics().height() : 0;
    }

    /// Tabs and their page overlap by the line between them, and the handle in the corner lies on all; the choice of
    /// colours stands in the corner that the periodic table leaves free.
    static bool mayOverlap(const QWidget& one, const QWidget& other)
    {
        return qobject_cast<const QTabWidget*>(one.parentWidget()) != nullptr || one.inherits("QSizeGrip")
            || other.inherits("QSizeGrip") || one.objectName() == QLatin1String("picPSE")
            || other.objectName() == QLatin1String("picPSE");
    }

    void checkWidget(const QWidget& widget) const
    {
        SCOPED_TRACE((widget.parentWidget()->objectName() + '/' + widget.objectName() + ' '
            + widget.metaObject()->className() + ' ' + widget.property("text").toString().left(60))
                         .toStdString());
        EXPECT_GE(widget.width(), neededWidth(widget));
        EXPECT_GE(widget.height(), neededHeight(widget));
        if (qobject_cast<const QLabel*>(&widget) != nullptr || qobject_cast<const QLineEdit*>(&widget) != nullptr
            || qobject_cast<const Wertanzeige*>(&widget) != nullptr) {
            EXPECT_GE(widget.font().pointSizeF(), QApplication::font().pointSizeF());
        }
        EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry()));
        for (const QObject* const other : widget.parentWidget()->children()) {
            const auto* const sibling = qobject_cast<const QWidget*>(other);
            if (sibling == nullptr || sibling == &widget || !sibling->isVisible() || sibling->isWindow())
                continue;
            EXPECT_FALSE(!mayOverlap(widget, *sibling) && sibling->geometry().intersects(widget.geometry()))
                << "overlaps " << other->objectName().toStdString();
        }
    }

    void checkAll(const QWidget& shown) const
    {
        for (const QWidget* const widget : shown.findChildren<QWidget*>()) {
            const bool scrolls = widget->parentWidget()->objectName() == QLatin1String("qt_scrollarea_viewport");
            if (widget->isVisible() && !widget->isWindow() && widget->window() == &shown && !scrolls)
                checkWidget(*widget);
        }
    }

    void checkAll() const { checkAll(*window); }

    /// Everything that the panels show only on occasion.
    void fill()
    {
        QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
        writeBytes(folder / "g.txt", messdatei(glasmodell().punkte(0.15, 0.001, 1000, 0.001, 1)));
        openDialog.answer = (folder / "g.txt").string();
        find<QAction>("mnuMesskurve").trigger();
        click("cmdKnopf1_1");
        for (const char* const mass : {"Istmasse_0", "Istmasse_1"})
            type(mass, "12345,678");
        QTest::keyClick(&find("Istmasse_1"), Qt::Key_Return);
    }

    const QFont usual = QApplication::font();
};

/// As small as the user can make them too.
TEST_F(FensterlayoutTest, DialogsShowAllTheirTextsOnSmallScreens)
{
    const QSize screen = QSize(1024, 700).expandedTo(QGuiApplication::primaryScreen()->size());
    constexpr int TitleBar = 30;
    for (const int points : {9, 16}) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
        open();
        eachDialog([&](QWidget& dialog) {
            SCOPED_TRACE(testing::Message() << points << " pt");
            checkAll(dialog);
            EXPECT_LE(dialog.width(), screen.width());
            EXPECT_LE(dialog.height(), screen.height() - TitleBar);
            if (dialog.inherits("QFileDialog"))
                return; // the toolkit's own cuts off its paths when it is small
            dialog.resize(1, 1);
            QCoreApplication::processEvents();
            checkAll(dialog);
        });
    }
}

TEST_F(FensterlayoutTest, NothingIsCutOffOrOverlaps)
{
    for (const int points : {9, 16}) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
        open();
        fill();
        for (const QSize size : {QSize(1, 1), QSize(700, 500), QSize(1024, 700), QSize(1280, 800), QSize(2560, 1600)}) {
            window->resize(size);
            for (const char* const view :
                {"cmdKnopf1_0", "cmdKnopf1_1", "optButton_1_1", "optButton_1_2", "optButton_1_0"}) {
                SCOPED_TRACE(testing::Message() << points << " pt, " << size.width() << " px, " << view);
                click(view);
                if (find("cmbDiagramm_Typ").isVisible())
                    choose("cmbDiagramm_Typ", view == std::string("cmdKnopf1_0") ? "2 D" : "Messkurve");
                QCoreApplication::processEvents();
                checkAll();
            }
        }
    }
}

/// Where the window is too small for both columns, the diagram stands below the other one.
TEST_F(FensterlayoutTest, SmallWindowsScrollToADiagramOfUse)
{
    settings["Komponenten"] = "2";
    open();
    for (const QSize size : {QSize(800, 600), QSize(700, 500), QSize(640, 480), QSize(500, 400), QSize(360, 300)}) {
        window->resize(size);
        ASSERT_EQ(window->size(), size);
        for (const char* const type : {"PSE", "3 D - ternär", "2 D"}) {
            SCOPED_TRACE(testing::Message() << size.width() << " px, " << type);
            choose("cmbDiagramm_Typ", type);
            find("cmdDiagramm_Speichern").setFocus();
            QCoreApplication::processEvents();
            checkAll();
            const QWidget& diagram = find("picDiagramm");
            EXPECT_GE(diagram.width(), std::min(size.width() - 40, 600));
            EXPECT_GE(diagram.height(), 270);
            const QWidget& button = find("cmdDiagramm_Speichern");
            EXPECT_FALSE(button.visibleRegion().isEmpty()) << "scrolled to";
        }
    }
    window->resize(1024, 700);
    QCoreApplication::processEvents();
    EXPECT_GT(find("picDiagramm").mapTo(window.get(), QPoint()).x(), 600) << "beside each other again";
}

TEST_F(FensterlayoutTest, WindowEnlargedInAnotherViewShowsAllOfTheCalculator)
{
    open();
    const auto view = [&](const char* button, const QSize& size) {
        click(button);
        window->resize(size);
        QCoreApplication::processEvents();
    };
    view("optButton_1_0", {800, 600});
    view("optButton_1_1", {1280, 800});
    view("optButton_1_0", {1280, 800});
    EXPECT_FALSE(find("cmdDiagramm_Speichern").visibleRegion().isEmpty());
}

TEST_F(FensterlayoutTest, DiagramKeepsItsOffsetsAndFewComponentsLeaveNoGap)
{
    open();
    for (const QSize size : {QSize(1024, 700), QSize(1280, 800)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        const QSize menu(0, find("mnuMain").height());
        EXPECT_LT(menu.height(), 2 * find("mnuMain").fontMetrics().height()); // one line
        EXPECT_EQ(find("Pic_1_0").mapTo(window.get(), QPoint()), QPoint(4, 40 + menu.height()));
        EXPECT_EQ(find("Pic_1_0").size(), size - menu - QSize(4, 40));
        EXPECT_EQ(find("picDiagramm").size(), size - menu - QSize(640, 190));
    }
    const int below = find("cmdKnopf1_0").y();
    click("cmdKom_1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return find("cmdKnopf1_0").y() < below - find("txtProzent_0").height(); }));
}

TEST_F(FensterlayoutTest, DiagramStaysInPlaceWithEveryType)
{
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    settings["Komponenten"] = "2";
    open();
    auto& types = find<QComboBox>("cmbDiagramm_Typ");
    types.setFocus();
    QTest::qWait(20);
    const int top = find("picDiagramm").y();
    for (int type = 0; type < 3; ++type) {
        EXPECT_EQ(types.currentIndex(), type);
        EXPECT_FALSE(QTest::qWaitFor([&] { return find("picDiagramm").y() != top; }, 50)) << type;
        QTest::keyClick(&types, Qt::Key_Down);
    }
}

} // namespace zerna
