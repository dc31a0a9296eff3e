#include "ui/comparison/Vergleichsmodell.h"

#include <QFont>

#include "ui/platform/QtText.h"

namespace zerna {

void Vergleichsmodell::setze(const Vergleich& vergleich, const clsCalc& calc)
{
    beginResetModel();
    m_tabelle.setze(vergleich, calc);
    endResetModel();
}

void Vergleichsmodell::setArt(Vergleichsart art)
{
    m_art = art;
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int Vergleichsmodell::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tabelle.zeilen().size());
}

int Vergleichsmodell::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tabelle.spaltenzahl());
}

QVariant Vergleichsmodell::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return toQt(m_tabelle.anzeige(row, column, m_art));
    case Qt::TextAlignmentRole:
        return {Qt::AlignRight | Qt::AlignVCenter};
    case Qt::AccessibleTextRole:
        return spoken(row, column);
    case ReferenzRolle:
        return m_tabelle.istReferenz(column);
    case ErgebnisRolle:
        return m_tabelle.zeilen().at(row).istErgebnis;
    default:
        return {};
    }
}

/// "Fermienergie, Al60Cu40: 9,1078 eV".
QString Vergleichsmodell::spoken(std::size_t row, std::size_t column) const
{
    const std::string shown = m_tabelle.anzeige(row, column, m_art);
    const bool hasUnit = shown.ends_with('%');
    return toQt(m_tabelle.zeilen().at(row).name + ", " + m_tabelle.name(column) + ": ")
        + (shown.empty() ? QStringLiteral("unbekannt")
                         : toQt(hasUnit ? shown : shown + ' ' + m_tabelle.zeilen().at(row).einheit));
}

QVariant Vergleichsmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    const auto number = static_cast<std::size_t>(section);
    return orientation == Qt::Horizontal ? alloyData(number, role) : lineData(number, role);
}

QVariant Vergleichsmodell::alloyData(std::size_t column, int role) const
{
    const QString name = toQt(m_tabelle.name(column));
    const bool isReference = m_tabelle.istReferenz(column);
    switch (role) {
    case Qt::DisplayRole:
        return isReference ? name + QStringLiteral("\nReferenz") : name;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return isReference ? name + QStringLiteral(", Referenz") : name;
    case Qt::TextAlignmentRole:
        return {Qt::AlignRight | Qt::AlignVCenter};
    case Qt::FontRole: {
        QFont font;
        font.setBold(isReference);
        return font;
    }
    default:
        return {};
    }
}

QVariant Vergleichsmodell::lineData(std::size_t row, int role) const
{
    const Vergleichstabelle::Zeile& line = m_tabelle.zeilen().at(row);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return toQt(line.name + " [" + line.einheit + ']');
    case Qt::TextAlignmentRole:
        return {Qt::AlignLeft | Qt::AlignVCenter};
    default:
        return {};
    }
}

} // namespace zerna
