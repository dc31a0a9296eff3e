#include "ui/main/PSEbereich.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

#include "core/Laufzeitfehler.h"
#include "model/PSEReihe.h"
#include "ui/main/Elementkarte.h"
#include "ui/main/Periodentafel.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int NachGruppe = -1; // item data of the colouring by group

} // namespace

PSEbereich::PSEbereich(Programm& programm, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    m_picPSE = new Periodentafel(programm.ElementCollection(), this);
    m_picPSE->setObjectName(QStringLiteral("picPSE"));
    m_farbwahl = new QWidget(this);
    auto* caption = new QLabel(QStringLiteral("&Farbe:"), m_farbwahl);
    m_cmbFarbe = new QComboBox(m_farbwahl);
    m_cmbFarbe->setObjectName(QStringLiteral("cmbFarbe"));
    m_cmbFarbe->setAccessibleName(QStringLiteral("Färbung der Zellen"));
    m_cmbFarbe->addItem(QStringLiteral("Gruppe"), NachGruppe);
    for (const int kennzahl : psegroessen())
        m_cmbFarbe->addItem(toQt(findGroesse(kennzahl)->name), kennzahl);
    caption->setBuddy(m_cmbFarbe);
    auto* row = new QHBoxLayout(m_farbwahl);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    row->addWidget(m_cmbFarbe, 1);
    m_picInfo = new Elementkarte(this);
    m_picInfo->setObjectName(QStringLiteral("PicInfo"));
    connect(m_picPSE, &Periodentafel::selected, this, &PSEbereich::select);
    connect(m_picPSE, &Periodentafel::activated, this, &PSEbereich::offerComponents);
    connect(m_cmbFarbe, &QComboBox::activated, this, &PSEbereich::colour);
}

void PSEbereich::layOut()
{
    constexpr double TableShare = 0.66;
    constexpr double InfoShare = 0.33;
    const int tableWidth = static_cast<int>(width() * TableShare);
    m_picPSE->setGeometry(0, 0, tableWidth, height());
    m_picInfo->setGeometry(tableWidth, 0, static_cast<int>(width() * InfoShare), height());
    const QRect free = m_picPSE->freeArea();
    m_farbwahl->setGeometry(free.left(), free.top(), free.width(), 28);
    m_picPSE->setSelected(m_programm.SelectedElement());
    m_picInfo->setElement(m_programm.SelectedElement());
}

void PSEbereich::resizeEvent(QResizeEvent*) { layOut(); }

void PSEbereich::select(const std::shared_ptr<clsElement>& element)
{
    m_programm.setSelectedElement(element);
    m_picInfo->setElement(element);
}

void PSEbereich::colour()
{
    const int groesse = m_cmbFarbe->currentData().toInt();
    try {
        m_picPSE->setFaerbung(groesse == NachGruppe
                ? Tafelfaerbung()
                : Tafelfaerbung(pseReihe(m_programm.ElementCollection(), m_programm.Calc(), groesse)));
    } catch (const Laufzeitfehler&) {
        m_picPSE->setFaerbung({}); // without a calculator by group
    }
}

void PSEbereich::offerComponents(const QPoint& position)
{
    const auto element = m_programm.SelectedElement();
    if (!element)
        return;
    QMenu menu(this);
    for (int row = 0; row < m_programm.Eingabe().anzahl(); ++row)
        menu.addAction(QStringLiteral("Als Komponente &%1 übernehmen").arg(row + 1), this,
            [this, row, element] { emit componentChosen(row, toQt(element->symbol())); });
    menu.exec(position);
}

} // namespace zerna
