#include "ui/platform/QtSaveFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QStringList>

#include "ui/platform/QtText.h"

namespace zerna {

std::optional<SaveFileDialog::Choice> QtSaveFileDialog::choose(std::string_view title, std::span<const Exportart> arten)
{
    QFileDialog dialog(QApplication::activeWindow(), toQt(title), QDir::currentPath());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    QStringList filters;
    for (const Exportart& art : arten)
        filters << toQt(art.beschreibung);
    dialog.setNameFilters(filters);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const auto filter = static_cast<int>(filters.indexOf(dialog.selectedNameFilter()));
    return Choice{fromQt(dialog.selectedFiles().constFirst()), qMax(0, filter) + 1}; // some dialogs do not tell it
}

bool QtSaveFileDialog::confirmReplace(std::string_view name)
{
    const QString question = QStringLiteral("Die Datei \"%1\" ist schon vorhanden.\nSoll sie ersetzt werden?");
    QMessageBox box(QMessageBox::Question, toQt(Exporttitel), question.arg(toQt(name)),
        QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // a file may be called "<b>"
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace zerna
