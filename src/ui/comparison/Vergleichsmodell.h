#pragma once

#include <QAbstractTableModel>

#include "model/dokument/Vergleichstabelle.h"

namespace zerna {

/// The kept alloys as a view shows them: quantities down, alloys across.
class Vergleichsmodell : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Besides the usual roles: whether a column is the reference, and whether a line is one of the results.
    enum Rolle { ReferenzRolle = Qt::UserRole, ErgebnisRolle };

    using QAbstractTableModel::QAbstractTableModel;

    void setze(const Vergleich& vergleich, const clsCalc& calc);
    void setArt(Vergleichsart art);

    const Vergleichstabelle& tabelle() const { return m_tabelle; }
    Vergleichsart art() const { return m_art; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant alloyData(std::size_t column, int role) const;
    QVariant lineData(std::size_t row, int role) const;
    QString spoken(std::size_t row, std::size_t column) const;

    Vergleichstabelle m_tabelle;
    Vergleichsart m_art = Vergleichsart::Wert;
};

} // namespace zerna
