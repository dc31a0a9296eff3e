#include "ui/picker/PSEbereich.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

#include "core/Laufzeitfehler.h"
#include "model/reihen/PSEReihe.h"
#include "ui/controls/Kurzmeldung.h"
#include "ui/controls/Masse.h"
#include "ui/picker/Elementkarte.h"
#include "ui/picker/Periodentafel.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int NachGruppe = -1; // item data of the colouring by group
constexpr const char* Anleitung = "Doppelklick oder Eingabetaste: als Komponente übernehmen";

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
    m_lblUebernahme = new Kurzmeldung(this);
    m_lblUebernahme->schreibe(QString::fromUtf8(Anleitung));
    m_lblUebernahme->setObjectName(QStringLiteral("lblUebernahme"));
    m_lblUebernahme->setAlignment(Qt::AlignCenter);
    m_picInfo = new Elementkarte(this);
    m_picInfo->setObjectName(QStringLiteral("PicInfo"));
    setFocusProxy(m_picPSE);
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
    m_farbwahl->setGeometry(free.left(), free.top(), free.width(), feldhoehe(*m_cmbFarbe));
    m_lblUebernahme->setGeometry(m_picPSE->gap());
    showKomponenten();
    m_picPSE->setSelected(m_programm.SelectedElement());
    m_picInfo->setElement(m_programm.SelectedElement());
}

/// The size from which on cells and lines can be read.
QSize PSEbereich::minimumSizeHint() const { return {fontMetrics().height() * 56, fontMetrics().height() * 34}; }

void PSEbereich::resizeEvent(QResizeEvent*) { layOut(); }

void PSEbereich::select(const std::shared_ptr<clsElement>& element)
{
    m_programm.setSelectedElement(element);
    m_picInfo->setElement(element);
    m_lblUebernahme->schreibe(QString::fromUtf8(Anleitung));
}

void PSEbereich::colour()
{
    const int groesse = m_cmbFarbe->currentData().toInt();
    try {
        m_picPSE->setFaerbung(groesse == NachGruppe
                ? Tafelfaerbung()
                : Tafelfaerbung(tafelreihe(m_programm.ElementCollection(), m_programm.Calc(), groesse)));
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
    for (int row = 0; row < m_programm.Eingabe().anzahl(); ++row) {
        const auto& there = m_programm.Eingabe().zeile(row).element;
        const QString now = there ? QStringLiteral(" (%1)").arg(toQt(there->symbol())) : QString();
        menu.addAction(QStringLiteral("Als Komponente &%1%2 übernehmen").arg(row + 1).arg(now), this,
            [this, row, element] { take(row, element); });
    }
    menu.exec(position);
}

/// An element that stands in the row already is left as it is, with what was chosen for it.
void PSEbereich::take(int row, const std::shared_ptr<clsElement>& element)
{
    const auto before = m_programm.Eingabe().zeile(row).element;
    const QString symbol = toQt(element->symbol());
    if (before == element) {
        m_lblUebernahme->zeige(QStringLiteral("Komponente %1 ist schon %2").arg(row + 1).arg(symbol));
        return;
    }
    emit componentChosen(row, symbol);
    showKomponenten();
    const QString instead = before ? QStringLiteral(" statt %1").arg(toQt(before->symbol())) : QString();
    m_lblUebernahme->zeige(QStringLiteral("✓  Komponente %1 ist jetzt %2%3").arg(row + 1).arg(symbol, instead));
}

void PSEbereich::showKomponenten()
{
    std::vector<std::string> symbols;
    for (int row = 0; row < m_programm.Eingabe().anzahl(); ++row) {
        const auto& element = m_programm.Eingabe().zeile(row).element;
        symbols.push_back(element ? element->symbol() : std::string());
    }
    m_picPSE->setKomponenten(std::move(symbols));
}

} // namespace zerna
