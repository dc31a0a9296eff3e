#include "ui/platform/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>

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

} // namespace zerna
