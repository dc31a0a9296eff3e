#include "ui/platform/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "ui/platform/QtText.h"

namespace zerna {

namespace {

void fill(QMessageBox& box, QMessageBox::Icon icon, std::string_view caption, std::string_view text)
{
    box.setIcon(icon);
    box.setWindowTitle(toQt(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(text).remove(QLatin1Char('\r')));
}

} // namespace

void QtMessageBoxes::show(Icon icon, std::string_view caption, std::string_view text)
{
    QMessageBox box(QApplication::activeWindow());
    fill(box, icon == Icon::Exclamation ? QMessageBox::Warning : QMessageBox::NoIcon, caption, text);
    box.exec();
}

bool QtMessageBoxes::ask(std::string_view caption, std::string_view text, std::string_view go)
{
    QMessageBox box(QApplication::activeWindow());
    fill(box, QMessageBox::Question, caption, text);
    const QAbstractButton* const goOn = box.addButton(toQt(go), QMessageBox::AcceptRole);
    QPushButton* const cancel = box.addButton(QStringLiteral("&Abbrechen"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == goOn;
}

std::size_t QtMessageBoxes::choose(
    std::string_view caption, std::string_view text, std::span<const std::string_view> ways)
{
    QMessageBox box(QApplication::activeWindow());
    fill(box, QMessageBox::Question, caption, text);
    QList<QAbstractButton*> buttons;
    for (std::size_t i = 0; i < ways.size(); ++i) {
        const auto role = i == 0   ? QMessageBox::AcceptRole
            : i + 1 == ways.size() ? QMessageBox::RejectRole
                                   : QMessageBox::DestructiveRole;
        buttons.append(box.addButton(toQt(ways[i]), role));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.first()));
    box.setEscapeButton(buttons.last());
    box.exec();
    return static_cast<std::size_t>(buttons.indexOf(box.clickedButton()));
}

} // namespace zerna
