#include "ui/pages/Diagrammauswahl.h"

#include <QComboBox>
#include <QHBoxLayout>

#include <array>

#include "model/rechnung/Groessen.h"
#include "ui/controls/Masse.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/pages/Lehrbuchmarke.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"

namespace zerna {

namespace {

/// Intended: right after the start "Elektronendichte" stands last although its code is 2.
constexpr std::array AnfangsGroessen{0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 2};

/// A list that likes to be as wide as an empty one: that has room for every symbol, whichever stand in it.
class Symbolliste : public QComboBox {
public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override
    {
        const int symbol = 7 * fontMetrics().horizontalAdvance(QLatin1Char('x'));
        return {listenbreite(*this, {}) + symbol, QComboBox::sizeHint().height()};
    }
};

} // namespace

Diagrammauswahl::Diagrammauswahl(Programm& programm, const std::vector<Diagrammseite*>& seiten, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_seiten(seiten)
    , m_cmbDiagrammTyp(makeList(new QComboBox(this), "cmbDiagramm_Typ", QStringLiteral("Diagrammtyp")))
    , m_cmbDiagramm(makeList(new QComboBox(this), "cmbDiagramm", QStringLiteral("Größe")))
    , m_lehrbuch(new Lehrbuchmarke(programm, this))
    , m_cmbDiagrammElement(
          makeList(new Symbolliste(this), "cmbDiagramm_Element", QStringLiteral("Komponente entlang der Achse")))
{
    for (const Diagrammseite* const seite : m_seiten)
        m_cmbDiagrammTyp->addItem(seite->titel());
    connect(m_cmbDiagrammTyp, &QComboBox::activated, this, &Diagrammauswahl::typChosen);
    connect(m_cmbDiagramm, &QComboBox::activated, this, [this] {
        wahl().groesse = m_cmbDiagramm->currentData().toInt();
        emit groesseChosen(m_cmbDiagramm->currentText());
    });
    connect(m_cmbDiagrammElement, &QComboBox::activated, this, [this] {
        wahl().komponente = m_cmbDiagrammElement->currentData().toInt();
        emit komponenteChosen(m_cmbDiagrammElement->currentText());
    });
    layOut();
}

QComboBox* Diagrammauswahl::makeList(QComboBox* list, const char* name, const QString& accessibleName)
{
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(accessibleName);
    list->setToolTip(accessibleName);
    folgeSchrift(list, [list] { list->setFixedHeight(feldhoehe(*list)); });
    return list;
}

void Diagrammauswahl::layOut()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(m_cmbDiagrammTyp);
    row->addWidget(m_cmbDiagramm, 1);
    row->addWidget(m_lehrbuch);
    row->addWidget(m_cmbDiagrammElement);
}

std::vector<QWidget*> Diagrammauswahl::tabOrder() const
{
    return {m_cmbDiagrammTyp, m_cmbDiagramm, m_lehrbuch, m_cmbDiagrammElement};
}

void Diagrammauswahl::load() { fillQuantities(AnfangsGroessen); }

void Diagrammauswahl::setTyp(Diagrammtyp typ)
{
    wechsleTyp(wahl(), typ);
    m_cmbDiagrammTyp->setCurrentIndex(static_cast<int>(typ));
    const Diagrammseite& seite = *m_seiten.at(static_cast<std::size_t>(typ));
    fillQuantities(seite.groessen());
    m_cmbDiagrammElement->setVisible(seite.hatKomponente());
}

void Diagrammauswahl::fillQuantities(std::span<const int> quantities)
{
    m_cmbDiagramm->setVisible(!quantities.empty());
    if (quantities.empty()) // another kind finds its quantity again
        return;
    m_cmbDiagramm->clear();
    for (const int kennzahl : quantities)
        m_cmbDiagramm->addItem(toQt(findGroesse(kennzahl)->name), kennzahl);
    m_cmbDiagramm->setCurrentIndex(qMax(0, m_cmbDiagramm->findData(wahl().groesse)));
    wahl().groesse = m_cmbDiagramm->currentData().toInt();
}

void Diagrammauswahl::listKomponenten(const Eingabe& eingabe)
{
    while (m_cmbDiagrammElement->count() > eingabe.anzahl())
        m_cmbDiagrammElement->removeItem(m_cmbDiagrammElement->count() - 1);
    for (int row = 0; row < eingabe.anzahl(); ++row) {
        const auto& element = eingabe.zeile(row).element;
        const QString text = element ? toQt(element->symbol()) : QString();
        if (row < m_cmbDiagrammElement->count())
            m_cmbDiagrammElement->setItemText(row, text);
        else
            m_cmbDiagrammElement->addItem(text, row);
    }
    m_cmbDiagrammElement->setCurrentIndex(0);
    wahl().komponente = 0;
}

void Diagrammauswahl::setKomponente(int row)
{
    if (row < 0 || row >= m_cmbDiagrammElement->count())
        return;
    m_cmbDiagrammElement->setCurrentIndex(row);
    wahl().komponente = row;
}

void Diagrammauswahl::zeigeLehrbuch() { m_lehrbuch->zeige(wahl().groesse); }

} // namespace zerna
