#include "ui/platform/Dateispalten.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

namespace zerna {

void zeigeGanzeSpalten(QFileDialog& dialog)
{
    constexpr QSize Roomy(760, 480);
    dialog.resize(dialog.size().expandedTo(Roomy));
    QHeaderView& header = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
    header.setStretchLastSection(false);
}

} // namespace zerna
