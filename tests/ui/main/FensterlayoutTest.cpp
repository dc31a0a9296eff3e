#include <QAbstractButton>

#include "support/FakeDesk.h"
#include "ui/controls/Masse.h"
#include "ui/controls/Wertanzeige.h"

namespace zerna {

/// The window at the sizes of texts and screens that people use.
struct FensterlayoutTest : FakeDesk {
    FensterlayoutTest() { settings["Komponenten"] = "4"; }
    ~FensterlayoutTest() override { QApplication::setFont(usual); }

    static int neededWidth(const QWidget& widget)
    {
        if (const auto* const list = qobject_cast<const QComboBox*>(&widget))
            return listenbreite(*list, list->currentText());
        if (const auto* const field = qobject_cast<const QLineEdit*>(&widget))
            return feldbreite(*field, field->text());
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        const bool isOneLine =
            (label != nullptr && !label->wordWrap()) || qobject_cast<const Wertanzeige*>(&widget) != nullptr;
        return isOneLine ? widget.minimumSizeHint().width() : 0;
    }

    void checkWidget(const QWidget& widget) const
    {
        SCOPED_TRACE((widget.parentWidget()->objectName() + '/' + widget.objectName()).toStdString());
        EXPECT_GE(widget.width(), neededWidth(widget));
        if (widget.property("text").isValid() && qobject_cast<const QAbstractButton*>(&widget) == nullptr) {
            EXPECT_GE(widget.height(), widget.fontMetrics().height());
            EXPECT_EQ(widget.font().pointSizeF(), QApplication::font().pointSizeF());
        }
        EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry()));
        for (const QObject* const other : widget.parentWidget()->children()) {
            const auto* const sibling = qobject_cast<const QWidget*>(other);
            if (sibling == nullptr || sibling == &widget || !sibling->isVisible() || sibling->isWindow())
                continue;
            // The choice of colours stands in the corner that the periodic table leaves free.
            const bool isTable =
                widget.objectName() == QLatin1String("picPSE") || sibling->objectName() == QLatin1String("picPSE");
            EXPECT_FALSE(!isTable && sibling->geometry().intersects(widget.geometry()))
                << "overlaps " << other->objectName().toStdString();
        }
    }

    void checkAll() const
    {
        for (const QWidget* const widget : window->findChildren<QWidget*>()) {
            const bool scrolls = widget->parentWidget()->objectName() == QLatin1String("qt_scrollarea_viewport");
            if (widget->isVisible() && !widget->isWindow() && !scrolls)
                checkWidget(*widget);
        }
    }

    const QFont usual = QApplication::font();
};

TEST_F(FensterlayoutTest, NothingIsCutOffOrOverlaps)
{
    for (const int points : {9, 12, 16}) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
        open();
        QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
        for (const QSize size : {QSize(1, 1), QSize(700, 500), QSize(1024, 700), QSize(1280, 800), QSize(2560, 1600)}) {
            window->resize(size);
            for (const char* const view :
                {"cmdKnopf1_0", "cmdKnopf1_1", "optButton_1_1", "optButton_1_2", "optButton_1_0"}) {
                SCOPED_TRACE(testing::Message() << points << " pt, " << size.width() << " px, " << view);
                click(view);
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
