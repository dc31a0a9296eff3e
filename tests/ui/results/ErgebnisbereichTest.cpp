#include "ui/results/Ergebnisbereich.h"

#include <QMimeData>
#include <QTextDocument>
#include <QTextTable>

#include <QAction>

#include "support/FakeDesk.h"

namespace zerna {

/// What the lines show, and what is asked, copied and saved, is recorded in stunde.txt.
using ErgebnisbereichTest = FakeDesk;

TEST_F(ErgebnisbereichTest, ATableForSpreadsheetsAndWordProcessors)
{
    openAluminiumCopper();
    click("cmdMFE_Tabelle");
    EXPECT_NE(clipboard().find("\t1,487537E-16\tN/m²\t148,75371\tGPa"), std::string::npos);
    find<QAction>("mnuMFE_Punkt").trigger();
    click("cmdMFE_Tabelle");
    EXPECT_NE(clipboard().find("\t1.487537E-16\tN/m²\t148.75371\tGPa"), std::string::npos) << "remembered";
    QTextDocument document;
    document.setHtml(QApplication::clipboard()->mimeData()->html());
    const auto* const table = qobject_cast<QTextTable*>(document.rootFrame()->childFrames().value(0));
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->columns(), 5);
    EXPECT_EQ(table->rows(), 19);
    EXPECT_EQ(table->cellAt(18, 3).firstCursorPosition().block().text().toStdString(), "148.75371");
}

} // namespace zerna
