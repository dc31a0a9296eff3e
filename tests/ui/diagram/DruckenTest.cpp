#include <QPainter>
#include <QPrinter>

#include <fstream>

#include "support/Druckdialog.h"
#include "support/TemporaryFolder.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/platform/Druckausgang.h"

namespace zerna {

TEST(DruckenTest, PictureFillsThePageThatTheUserPrintsToAFileLaidOutAsOnTheScreen)
{
    const TemporaryFolder folder;
    for (const QSize size : {QSize(800, 400), QSize(300, 600)}) {
        SCOPED_TRACE(size.width());
        const std::string file = (folder / "bild").string() + std::to_string(size.width()) + ".pdf";
        QRectF printed;
        QSizeF page;
        double letters = 0;
        const auto maler = [&](QPainter& painter, const Leinwand& leinwand) {
            printed = painter.transform().mapRect(QRectF(QPointF(0, 0), leinwand.size));
            page = QSizeF(painter.device()->width(), painter.device()->height());
            painter.setFont(leinwand.font);
            letters = painter.fontMetrics().height();
        };
        std::optional<std::string> named;
        printTo(file, "Drucken", [&] { named = printPicture(nullptr, maler, {size, {}}); });
        EXPECT_EQ(named, std::filesystem::path(file).filename().string());
        EXPECT_EQ(page.width() > page.height(), size.width() > size.height());
        EXPECT_DOUBLE_EQ(printed.width() / printed.height(), static_cast<double>(size.width()) / size.height());
        const double filled = std::max(printed.width() / page.width(), printed.height() / page.height());
        EXPECT_LE(filled, 1);
        EXPECT_GT(filled, 0.93) << "the date wants a line";
        EXPECT_NEAR(letters, QFontMetricsF(QFont()).height(), 1) << "as high in the picture as they were measured";
        EXPECT_TRUE(bytesOf(file).starts_with("%PDF-"));
    }
}

TEST(DruckenTest, AFileThatTheDiskHadNoRoomForIsNotPrinted)
{
    const TemporaryFolder folder;
    QPrinter printer;
    printer.setOutputFileName(QString::fromStdString((folder / "bild.pdf").string()));
    for (const char* const written : {"", "%PDF-1.4 1 0 obj", "%PDF-1.4 trailer 1234 %%EOF\n"}) {
        std::ofstream(folder / "bild.pdf") << written;
        EXPECT_EQ(istGedruckt(printer), std::string_view(written).ends_with('\n')) << written;
    }
}

} // namespace zerna
