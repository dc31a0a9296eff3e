#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>

#include "support/ModalDialog.h"
#include "support/TemporaryFolder.h"
#include "ui/diagram/Bildausgabe.h"

namespace zerna {

TEST(DruckenTest, PictureFillsThePageThatTheUserPrintsToAFileLaidOutAsOnTheScreen)
{
    struct Row {
        const char* name;
        QSize size;
        bool landscape;
    };
    const TemporaryFolder folder;
    for (const Row& row : {Row{"wide", {800, 400}, true}, Row{"tall", {300, 600}, false}}) {
        SCOPED_TRACE(row.name);
        const std::string file = (folder / row.name).string() + ".pdf";
        const auto print = [&](QPrintDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Drucken");
            dialog.findChild<QComboBox*>("printers")->setFocus();
            press(Qt::Key_End); // the file stands below the printers
            auto* const output = dialog.findChild<QLineEdit*>("filename");
            ASSERT_TRUE(output->isEnabled());
            output->setFocus();
            output->selectAll();
            typeText(QString::fromStdString(file));
            press(Qt::Key_Return);
        };
        QRectF printed;
        QSizeF page;
        double letters = 0;
        const auto maler = [&](QPainter& painter, const Leinwand& leinwand) {
            printed = painter.transform().mapRect(QRectF(QPointF(0, 0), leinwand.size));
            page = QSizeF(painter.device()->width(), painter.device()->height());
            painter.setFont(leinwand.font);
            letters = painter.fontMetrics().height();
        };
        inDialog<QPrintDialog>(print, [&] { printPicture(nullptr, maler, {row.size, {}}); });
        EXPECT_EQ(page.width() > page.height(), row.landscape);
        EXPECT_DOUBLE_EQ(printed.width() / printed.height(), static_cast<double>(row.size.width()) / row.size.height());
        const double filled = std::max(printed.width() / page.width(), printed.height() / page.height());
        EXPECT_LE(filled, 1);
        EXPECT_GT(filled, 0.93) << "the date wants a line";
        EXPECT_NEAR(letters, QFontMetricsF(QFont()).height(), 1) << "as high in the picture as they were measured";
        EXPECT_TRUE(bytesOf(file).starts_with("%PDF-"));
    }
}

} // namespace zerna
