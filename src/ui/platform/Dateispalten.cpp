#include "ui/platform/Dateispalten.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QTreeView>

namespace zerna {

void zeigeGanzeSpalten(QFileDialog& dialog)
{
    constexpr QSize Roomy(760, 480);
    constexpr QMargins Frame(8, 40, 8, 8); // of the desktop
    const QSize room = dialog.screen()->availableGeometry().marginsRemoved(Frame).size();
    dialog.resize(dialog.size().expandedTo(Roomy).boundedTo(room)); // the toolkit's grows with the font past the screen
    QHeaderView& header = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
    header.setStretchLastSection(false);
    QAbstractItemView& kinds = *dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->view();
    kinds.setMinimumWidth(kinds.sizeHintForColumn(0) + 2 * kinds.frameWidth());
}

} // namespace zerna
