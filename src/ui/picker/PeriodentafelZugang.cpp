#include "ui/picker/PeriodentafelZugang.h"

#include <algorithm>

#include "ui/picker/ElementzellenZugang.h"
#include "ui/picker/Periodentafel.h"

namespace zerna {

namespace {

constexpr int Perioden = 7; // above the series of the f elements

/// The place of the first element that meets a condition; -1 for none.
template <class Condition>
int placeWhere(const ElementCollection& elements, const Condition& condition)
{
    const auto found = std::ranges::find_if(elements, condition);
    return found == elements.end() ? -1 : static_cast<int>(found - elements.begin());
}

} // namespace

PeriodentafelZugang::PeriodentafelZugang(Periodentafel& tafel)
    : Zugang(&tafel, QAccessible::Table)
    , m_tafel(tafel)
{
}

PeriodentafelZugang::~PeriodentafelZugang()
{
    for (const QAccessible::Id id : m_zellen) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* PeriodentafelZugang::zelle(int place) const
{
    const auto index = static_cast<std::size_t>(place);
    if (place < 0 || place >= childCount())
        return nullptr;
    m_zellen.resize(std::max(m_zellen.size(), index + 1));
    QAccessible::Id& id = m_zellen[index];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new ElementzellenZugang(m_tafel, *(m_tafel.elemente().begin() + place)));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface* PeriodentafelZugang::gewaehlteZelle() const
{
    return zelle(placeWhere(m_tafel.elemente(), [this](const auto& e) { return e == m_tafel.gewaehlt(); }));
}

QString PeriodentafelZugang::text(QAccessible::Text kind) const
{
    // What is selected is told by its cell.
    return kind == QAccessible::Description
        ? QStringLiteral("Pfeiltasten oder Anfangsbuchstaben wählen ein Element, Eingabetaste übernimmt es")
        : Zugang::text(kind);
}

void* PeriodentafelZugang::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return Zugang::interface_cast(type);
}

int PeriodentafelZugang::childCount() const
{
    return static_cast<int>(m_tafel.elemente().end() - m_tafel.elemente().begin());
}

int PeriodentafelZugang::indexOfChild(const QAccessibleInterface* child) const
{
    const auto found = std::ranges::find_if(
        m_zellen, [child](QAccessible::Id id) { return id != 0 && QAccessible::accessibleInterface(id) == child; });
    return found == m_zellen.end() ? -1 : static_cast<int>(found - m_zellen.begin());
}

QAccessibleInterface* PeriodentafelZugang::childAt(int x, int y) const
{
    const QPointF place = m_tafel.mapFromGlobal(QPoint(x, y));
    return zelle(placeWhere(m_tafel.elemente(), [&](const auto& e) { return m_tafel.cellOf(*e).contains(place); }));
}

QAccessibleInterface* PeriodentafelZugang::focusChild() const
{
    return m_tafel.hasFocus() ? gewaehlteZelle() : nullptr;
}

QAccessibleInterface* PeriodentafelZugang::cellAt(int row, int column) const
{
    return zelle(placeWhere(m_tafel.elemente(), [row, column](const auto& e) {
        return ElementzellenZugang::reihe(*e) == row && ElementzellenZugang::spalte(*e) == column;
    }));
}

QList<QAccessibleInterface*> PeriodentafelZugang::selectedCells() const
{
    QAccessibleInterface* const cell = gewaehlteZelle();
    return cell == nullptr ? QList<QAccessibleInterface*>() : QList<QAccessibleInterface*>{cell};
}

QString PeriodentafelZugang::columnDescription(int column) const { return QStringLiteral("Spalte %1").arg(column + 1); }

QString PeriodentafelZugang::rowDescription(int row) const
{
    return row < Perioden ? QStringLiteral("Periode %1").arg(row + 1) : QStringLiteral("Lanthanoide und Actinoide");
}

int PeriodentafelZugang::columnCount() const
{
    int most = 0;
    for (const auto& element : m_tafel.elemente())
        most = std::max(most, ElementzellenZugang::spalte(*element) + 1);
    return most;
}

int PeriodentafelZugang::rowCount() const
{
    int most = 0;
    for (const auto& element : m_tafel.elemente())
        most = std::max(most, ElementzellenZugang::reihe(*element) + 1);
    return most;
}

void sageZelle(Periodentafel& tafel)
{
    if (!QAccessible::isActive() || !tafel.hasFocus())
        return;
    const auto* const zugang = dynamic_cast<PeriodentafelZugang*>(QAccessible::queryAccessibleInterface(&tafel));
    QAccessibleInterface* const cell = zugang == nullptr ? nullptr : zugang->gewaehlteZelle();
    if (cell == nullptr)
        return;
    for (const auto type : {QAccessible::Selection, QAccessible::Focus}) {
        QAccessibleEvent event(cell, type);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace zerna
