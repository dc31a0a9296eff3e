#include "ui/platform/QtOpenFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

#include "ui/platform/Dateispalten.h"
#include "ui/platform/QtText.h"

namespace zerna {

std::optional<std::string> QtOpenFileDialog::choose()
{
    QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Legierung öffnen"), QDir::currentPath());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({QStringLiteral("Legierungen und Bilder (*.zerna *.png *.svg *.svgz *.pdf)"),
        QStringLiteral("Alle Dateien (*)")});
    zeigeGanzeSpalten(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return fromQt(dialog.selectedFiles().constFirst());
}

} // namespace zerna
