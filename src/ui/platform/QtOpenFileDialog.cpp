#include "ui/platform/QtOpenFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

#include "ui/platform/Dateispalten.h"
#include "ui/platform/QtText.h"

namespace zerna {

std::optional<std::string> QtOpenFileDialog::choose(Dateiwahl wahl)
{
    const bool isAlloy = wahl == Dateiwahl::Legierung;
    QFileDialog dialog(QApplication::activeWindow(),
        isAlloy ? QStringLiteral("Legierung öffnen") : QStringLiteral("Messkurve öffnen"), QDir::currentPath());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({isAlloy ? QStringLiteral("Legierungen und Bilder (*.zerna *.png *.svg *.svgz *.pdf)")
                                   : QStringLiteral("Messkurven (*.txt *.dat *.csv *.tsv *.xy *.asc *.gr *.sq *.chi)"),
        QStringLiteral("Alle Dateien (*)")});
    if (QApplication::testAttribute(Qt::AA_DontUseNativeDialogs))
        zeigeGanzeSpalten(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return fromQt(dialog.selectedFiles().constFirst());
}

} // namespace zerna
