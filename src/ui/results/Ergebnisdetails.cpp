#include "ui/results/Ergebnisdetails.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>

#include "core/Anzeigetext.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

QString formelHtml(const std::string& text)
{
    static const QRegularExpression index(QStringLiteral("_(\\w)"));
    static const QRegularExpression power(QStringLiteral("\\^\\(([^)]*)\\)"));
    return toQt(text)
        .toHtmlEscaped()
        .replace(QStringLiteral(" = "), QStringLiteral("&nbsp;=&nbsp;")) // no line begins or ends with it
        .replace(index, QStringLiteral("<sub>\\1</sub>"))
        .replace(power, QStringLiteral("<sup>\\1</sup>"));
}

QString alsText(const Einzelheiten& einzelheiten)
{
    QStringList zeilen;
    for (const Einzelheiten::Zeile& zeile : einzelheiten.zeilen)
        zeilen << toQt(zeile.titel) + QStringLiteral(": ") + toQt(zeile.text);
    return zeilen.join(QLatin1Char('\n'));
}

} // namespace

QString einzelheitenHtml(const Einzelheiten& einzelheiten)
{
    QString html = QStringLiteral(
        "<p style='margin: 0'><b>%1</b></p><table cellspacing='0' cellpadding='2' style='margin-top: 4px'>")
                       .arg(formelHtml(einzelheiten.groesse));
    for (const Einzelheiten::Zeile& zeile : einzelheiten.zeilen)
        html += QStringLiteral("<tr><td style='white-space: nowrap; padding-right: 10px'>%1:</td><td>%2</td></tr>")
                    .arg(toQt(zeile.titel), formelHtml(anzeigetext(zeile.text)));
    return html + QStringLiteral("</table>");
}

QPoint platzNeben(const QRect& area, const QSize& size, const QRect& screen)
{
    constexpr int Gap = 4;
    const bool fitsBelow = area.bottom() + Gap + size.height() <= screen.bottom();
    const int y = fitsBelow ? area.bottom() + Gap : area.top() - Gap - size.height();
    return {qMax(screen.left(), qMin(area.left(), screen.right() - size.width())),
        qMax(screen.top(), qMin(y, screen.bottom() - size.height()))};
}

Ergebnisdetails::Ergebnisdetails(QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("Ergebnisdetails"));
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    m_text->setObjectName(QStringLiteral("lblEinzelheiten"));
    m_text->setTextFormat(Qt::RichText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setWordWrap(true);
    m_text->setForegroundRole(QPalette::Text);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 10);
    column->addWidget(m_text);
}

void Ergebnisdetails::zeige(const Einzelheiten& einzelheiten, const QRect& area)
{
    constexpr int Letters = 66; // of a line that is read with ease
    const QScreen* const at = QGuiApplication::screenAt(area.center());
    const QRect screen = (at != nullptr ? at : QGuiApplication::primaryScreen())->availableGeometry();
    setAccessibleName(QStringLiteral("Einzelheiten: ") + toQt(einzelheiten.groesse));
    m_text->setAccessibleName(accessibleName());
    m_text->setAccessibleDescription(alsText(einzelheiten));
    m_text->setText(einzelheitenHtml(einzelheiten));
    m_text->setFixedWidth(qMin(fontMetrics().averageCharWidth() * Letters, screen.width() - 40));
    m_text->setFixedHeight(m_text->heightForWidth(m_text->width()));
    adjustSize();
    move(platzNeben(area, size(), screen));
    show();
    m_text->setFocus();
}

void Ergebnisdetails::keyPressEvent(QKeyEvent* event)
{
    // What opened it closes it, too.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->matches(QKeySequence::Cancel))
        close();
    else
        QFrame::keyPressEvent(event);
}

} // namespace zerna
