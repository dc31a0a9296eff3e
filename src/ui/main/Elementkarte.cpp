#include "ui/main/Elementkarte.h"

#include <QPainter>

#include "model/PSEAuskunft.h"
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
}

void Elementkarte::setElement(const std::shared_ptr<clsElement>& element)
{
    m_element = element;
    m_lstInfo->setLines(element ? elementauskunft(*element) : std::vector<std::string>());
    update();
}

void Elementkarte::resizeEvent(QResizeEvent*)
{
    m_lstInfo->setGeometry(Rand, Kopfhoehe, qMax(0, width() - 2 * Rand), qMax(0, height() - Kopfhoehe - Rand));
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
