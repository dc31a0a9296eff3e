#include "support/Dialogreihe.h"
#include "ui/platform/Kontrast.h"
#include "ui/platform/Lesbarkeit.h"

namespace zerna {

/// Whoever works with keys sees where the focus is, on whatever desktop.
struct FokusbildTest : Dialogreihe {
    FokusbildTest() { QApplication::setStyle(new LesbarerStil); }
    ~FokusbildTest() override
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(usual);
    }

    static QPalette highContrast()
    {
        QPalette palette(Qt::black, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
            palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::Highlight, QColor(255, 255, 0));
        palette.setColor(QPalette::HighlightedText, Qt::black);
        return lesbar(palette);
    }

    static QImage picture(QWidget& widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    /// The strongest contrast between a pixel with and without the focus.
    static double difference(const QImage& one, const QImage& other)
    {
        double most = 1;
        for (int y = 0; y < one.height() && most < Grafikkontrast; ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) != other.pixel(x, y))
                    most = std::max(most, kontrast(one.pixelColor(x, y), other.pixelColor(x, y)));
            }
        }
        return most;
    }

    static void checkAll(const QWidget& shown)
    {
        std::vector<QWidget*> all;
        for (QWidget* const widget : shown.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0
                && widget->focusProxy() == nullptr && widget->window() == &shown)
                all.push_back(widget);
        }
        if (all.size() < 2)
            return; // it has the focus all the time
        for (QWidget* const widget : all) {
            QWidget& other = *all.at(widget == all.front() ? 1 : 0);
            other.setFocus(Qt::TabFocusReason);
            if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0)
                continue;
            const QImage without = picture(*widget);
            widget->setFocus(Qt::TabFocusReason);
            if (widget->hasFocus()) {
                EXPECT_GE(difference(without, picture(*widget)), Grafikkontrast)
                    << widget->objectName().toStdString() << ' ' << widget->metaObject()->className();
            }
        }
    }

    const QPalette usual = QApplication::palette();
};

TEST_F(FokusbildTest, EveryControlShowsThatItHasTheFocus)
{
    for (const auto& [name, palette] : {std::pair("usual", lesbar(usual)), {"high contrast", highContrast()}}) {
        QApplication::setPalette(palette);
        openAluminiumCopper();
        QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
        for (const char* const view : {"optButton_1_0", "cmdKnopf1_1", "optButton_1_1", "optButton_1_2"}) {
            SCOPED_TRACE(testing::Message() << name << ", " << view);
            click(view);
            QCoreApplication::processEvents();
            checkAll(*window);
        }
        choose("cmbDiagramm_Typ", "PSE");
        checkAll(*window);
    }
}

TEST_F(FokusbildTest, EveryControlOfADialogShowsThatItHasTheFocus)
{
    for (const auto& [name, palette] : {std::pair("usual", lesbar(usual)), {"high contrast", highContrast()}}) {
        SCOPED_TRACE(name);
        QApplication::setPalette(palette);
        openAluminiumCopper();
        eachDialog([](const QWidget& dialog) { checkAll(dialog); });
    }
}

} // namespace zerna
