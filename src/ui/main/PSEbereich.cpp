#include "ui/main/PSEbereich.h"

#include <QListWidget>

namespace zerna {

PSEbereich::PSEbereich(QWidget* parent)
    : QWidget(parent)
{
    m_picPSE = new QWidget(this);
    m_picPSE->setObjectName(QStringLiteral("picPSE"));
    m_picPSE->setAccessibleName(QStringLiteral("Periodensystem"));
    m_picInfo = new QWidget(this);
    m_picInfo->setObjectName(QStringLiteral("PicInfo"));
    m_lstInfo = new QListWidget(m_picInfo);
    m_lstInfo->setObjectName(QStringLiteral("lstInfo"));
    m_lstInfo->setAccessibleName(QStringLiteral("Daten des Elements"));
}

void PSEbereich::layOut()
{
    constexpr double TableShare = 0.66;
    constexpr double InfoShare = 0.33;
    constexpr int HeadHeight = 90;
    const int tableWidth = static_cast<int>(width() * TableShare);
    m_picPSE->setGeometry(0, 0, tableWidth, height());
    m_picInfo->setGeometry(tableWidth, 0, static_cast<int>(width() * InfoShare), height());
    m_lstInfo->setGeometry(0, HeadHeight, m_picInfo->width(), qMax(0, m_picInfo->height() - HeadHeight - 8));
}

void PSEbereich::resizeEvent(QResizeEvent*) { layOut(); }

} // namespace zerna
