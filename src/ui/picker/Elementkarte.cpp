#include "ui/picker/Elementkarte.h"

#include <QLabel>
#include <QPainter>

#include "model/rechnung/Herkunft.h"
#include "model/rechnung/PSEAuskunft.h"
#include "ui/controls/Auskunftsliste.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int Kopfhoehe = 112;
constexpr int Rand = 12;

} // namespace

Elementkarte::Elementkarte(QWidget* parent)
    : QWidget(parent)
{
    m_lstInfo = new Auskunftsliste(this);
    m_lstInfo->setObjectName(QStringLiteral("lstInfo"));
    m_lstInfo->setAccessibleName(QStringLiteral("Daten des Elements"));
    m_lblHerkunft = new QLabel(this);
    m_lblHerkunft->setObjectName(QStringLiteral("lblHerkunft"));
    m_lblHerkunft->setWordWrap(true);
    m_lblHerkunft->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_lblHerkunft->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_lstInfo, &QListWidget::currentRowChanged, this, &Elementkarte::showHerkunft);
}

void Elementkarte::setElement(const std::shared_ptr<clsElement>& element)
{
    m_element = element;
    m_herkunft = element ? auskunftsherkunft(*element) : std::vector<std::string>();
    m_lstInfo->setLines(element ? elementauskunft(*element) : std::vector<std::string>(), m_herkunft);
    setAccessibleName(!element ? QString()
                               : QStringLiteral("%1, %2, Ordnungszahl %3, %4")
                                     .arg(toQt(element->symbol()), toQt(element->Name()))
                                     .arg(element->OZ())
                                     .arg(toQt(element->Elektronenkonfiguration())));
    showHerkunft();
    update(0, 0, width(), Kopfhoehe);
}

void Elementkarte::showHerkunft()
{
    const auto row = static_cast<std::size_t>(m_lstInfo->currentRow()); // none is beyond all of them
    m_lblHerkunft->setText(row < m_herkunft.size() ? toQt(m_herkunft[row])
            : m_element                            ? QStringLiteral("Zeile wählen: woher ihr Wert kommt")
                                                   : QString());
}

/// The list takes what its lines need, the text below it the rest, at least some lines.
void Elementkarte::resizeEvent(QResizeEvent*)
{
    constexpr int Zeilen = 5;
    const int textHeight = Zeilen * fontMetrics().height();
    const int lines = m_lstInfo->count() * qMax(0, m_lstInfo->sizeHintForRow(0)) + 2 * m_lstInfo->frameWidth();
    const int free = height() - Kopfhoehe - 2 * Rand;
    const QSize list(qMax(0, width() - 2 * Rand), qMax(0, qMin(lines, free - textHeight)));
    m_lstInfo->setGeometry({{Rand, Kopfhoehe}, list});
    m_lblHerkunft->setGeometry(Rand, Kopfhoehe + list.height() + Rand, list.width(), qMax(0, free - list.height()));
}

void Elementkarte::paintEvent(QPaintEvent*)
{
    if (!m_element)
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    QFont large = font();
    large.setPixelSize(48);
    large.setBold(true);
    painter.setFont(large);
    const QRect kopf(Rand, 4, width() - 2 * Rand, Kopfhoehe - 8);
    const QString symbol =
        painter.fontMetrics().elidedText(toQt(m_element->symbol()), Qt::ElideRight, kopf.width() / 2);
    painter.drawText(kopf, Qt::AlignLeft | Qt::AlignTop, symbol);
    const int beside = painter.fontMetrics().horizontalAdvance(symbol) + 2 * Rand;
    QFont medium = font();
    medium.setPixelSize(24);
    painter.setFont(medium);
    const QRect nameArea = kopf.adjusted(beside, 8, 0, 0);
    painter.drawText(nameArea, Qt::AlignLeft | Qt::AlignTop,
        painter.fontMetrics().elidedText(toQt(m_element->Name()), Qt::ElideRight, nameArea.width()));
    painter.setFont(font());
    painter.drawText(kopf.adjusted(0, 68, 0, 0), Qt::AlignLeft | Qt::AlignTop,
        QStringLiteral("Ordnungszahl %1      %2").arg(m_element->OZ()).arg(toQt(m_element->Elektronenkonfiguration())));
}

} // namespace zerna
