#include "ui/platform/QtSaveFileDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

#include <utility>

#include "core/Datei.h"
#include "programm/Exportziel.h"
#include "ui/platform/Dateispalten.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// The folder of a path as far as it is there, and the rest of the path.
std::pair<QString, QString> splitAtMissing(const QString& path)
{
    const QString folder = toQt(utf8FromPath(vorhandenerOrdner(pathFromUtf8(fromQt(path)))));
    return {folder, path.mid(QDir(folder).filePath(QStringLiteral("x")).size() - 1)};
}

/// A dialog that answers with the name as it was typed and leaves it to the program to judge it. The toolkit's own
/// takes a name apart at quotation marks, and one that is too long it greys its button for and says nothing.
class Speicherdialog : public QFileDialog {
public:
    Speicherdialog(const QString& title, const QStringList& filters)
        : QFileDialog(QApplication::activeWindow(), title, QDir::currentPath())
    {
        setOption(DontUseNativeDialog); // which would not ask accept()
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        setNameFilters(filters);
        zeigeGanzeSpalten(*this);
        saveButton().installEventFilter(this);
        saveButton().setEnabled(true);
    }

    /// Shows a path again that may not exist.
    void offer(const QString& path)
    {
        const auto [folder, rest] = splitAtMissing(path);
        setDirectory(folder);
        name().setText(rest);
    }

    /// Folder and name.
    QString path() const
    {
        QString typed = name().text();
        if (typed == QLatin1String("~") || typed.startsWith(QLatin1String("~/")))
            typed.replace(0, 1, QDir::homePath());
        return QDir::isAbsolutePath(typed) ? typed : directory().absolutePath() + QLatin1Char('/') + typed;
    }

protected:
    void accept() override
    {
        const QFileInfo target(path());
        if (target.isDir() && QDir(target.filePath()) != directory())
            QFileDialog::accept(); // goes there
        else
            done(Accepted);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (object == &saveButton() && event->type() == QEvent::EnabledChange)
            saveButton().setEnabled(true);
        return QFileDialog::eventFilter(object, event);
    }

private:
    QLineEdit& name() const { return *findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }
    QPushButton& saveButton() const
    {
        return *findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(QDialogButtonBox::Save);
    }
};

/// The platform's own dialog. Replacing a file is the program's question.
class Systemdialog : public QFileDialog {
public:
    Systemdialog(const QString& title, const QStringList& filters)
        : QFileDialog(QApplication::activeWindow(), title, QDir::currentPath())
    {
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        setOption(DontConfirmOverwrite);
        setNameFilters(filters);
    }

    void offer(const QString& path)
    {
        const auto [folder, rest] = splitAtMissing(path);
        setDirectory(folder);
        if (!rest.isEmpty() && !rest.contains(QLatin1Char('/'))) // it opens no dialog for a name that it would refuse
            selectFile(rest);
    }

    QString path() const { return selectedFiles().value(0); }
};

template <class Dialog>
std::optional<SaveFileDialog::Choice> ask(
    const QString& title, const QStringList& filters, const std::optional<SaveFileDialog::Choice>& refused)
{
    Dialog dialog(title, filters);
    if (refused) {
        dialog.selectNameFilter(filters.value(refused->filterIndex - 1));
        dialog.offer(toQt(refused->path));
    }
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const auto filter = static_cast<int>(filters.indexOf(dialog.selectedNameFilter()));
    return SaveFileDialog::Choice{fromQt(dialog.path()), qMax(0, filter) + 1};
}

} // namespace

std::optional<SaveFileDialog::Choice> QtSaveFileDialog::choose(
    std::string_view title, std::span<const Exportart> arten, const std::optional<Choice>& refused)
{
    QStringList filters;
    for (const Exportart& art : arten)
        filters << toQt(art.beschreibung);
    m_title = toQt(title);
    return QApplication::testAttribute(Qt::AA_DontUseNativeDialogs) ? ask<Speicherdialog>(m_title, filters, refused)
                                                                    : ask<Systemdialog>(m_title, filters, refused);
}

bool QtSaveFileDialog::confirmReplace(std::string_view name)
{
    const QString question = QStringLiteral("Die Datei \"%1\" ist schon vorhanden.\nSoll sie ersetzt werden?");
    QMessageBox box(QMessageBox::Question, m_title, question.arg(toQt(name)), QMessageBox::Yes | QMessageBox::No,
        QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // a file may be called "<b>"
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace zerna
