#include "ui/platform/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "ui/platform/QtText.h"

namespace zerna {

void QtMessageBoxes::show(Icon icon, std::string_view caption, std::string_view text)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(icon == Icon::Exclamation ? QMessageBox::Warning : QMessageBox::NoIcon);
    box.setWindowTitle(toQt(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(text).remove(QLatin1Char('\r')));
    box.exec();
}

bool QtMessageBoxes::ask(std::string_view caption, std::string_view text, std::string_view go)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(toQt(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(text).remove(QLatin1Char('\r')));
    const QAbstractButton* const goOn = box.addButton(toQt(go), QMessageBox::AcceptRole);
    QPushButton* const cancel = box.addButton(QStringLiteral("&Abbrechen"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == goOn;
}

} // namespace zerna
