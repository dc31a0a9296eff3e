#include "ui/platform/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <vector>

#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// A question that can be cancelled.
class Frage : public QMessageBox {
public:
    Frage(std::string_view caption, std::string_view text)
        : QMessageBox(QApplication::activeWindow())
        , m_cancel(addButton(QStringLiteral("&Abbrechen"), RejectRole))
    {
        setIcon(Question);
        setWindowTitle(toQt(caption));
        setTextFormat(Qt::PlainText);
        setText(toQt(text).remove(QLatin1Char('\r')));
        setEscapeButton(m_cancel);
    }

    QPushButton* cancel() const { return m_cancel; }

private:
    QPushButton* m_cancel;
};

} // namespace

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
    Frage box(caption, text);
    const QAbstractButton* const goOn = box.addButton(toQt(go), QMessageBox::AcceptRole);
    box.setDefaultButton(box.cancel());
    box.exec();
    return box.clickedButton() == goOn;
}

std::optional<std::size_t> QtMessageBoxes::choose(
    std::string_view caption, std::string_view text, std::span<const std::string_view> buttons)
{
    Frage box(caption, text);
    std::vector<QPushButton*> made;
    for (const std::string_view button : buttons) // all of one role, which keeps their order
        made.push_back(box.addButton(toQt(button), QMessageBox::AcceptRole));
    box.setDefaultButton(made.front());
    box.exec();
    const auto clicked = std::ranges::find(made, box.clickedButton());
    return clicked == made.end() ? std::nullopt : std::optional<std::size_t>(clicked - made.begin());
}

} // namespace zerna
