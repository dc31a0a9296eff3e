#pragma once

#include <QTableView>

#include "core/Zahlentext.h"

namespace zerna {

class Vergleichsmodell;

/// The table of the kept alloys. The alloy that something is done with is that of the current cell; a click on its name
/// makes it current, too, and its name can be dragged to another place.
class Vergleichsansicht : public QTableView {
    Q_OBJECT

public:
    explicit Vergleichsansicht(Vergleichsmodell& modell, QWidget* parent = nullptr);

    /// The alloy of the current cell; -1 for none.
    int legierung() const { return currentIndex().column(); }

    /// Makes the alloy current, in the line that was it before, and shows it.
    void waehle(int legierung);

    /// Makes the columns as wide as their texts.
    void passeBreitenAn();

    /// The cells that are selected with all their digits, as lines of tab-separated cells; empty if that is all of
    /// them or none.
    QString auswahl(Dezimaltrenner trenner) const;

signals:
    void legierungGewaehlt();
    void verschoben(int von, int nach);
    void doppelklick();
    void menuRequested(const QPoint& globalPosition);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void createHeaders();
    void moved(int logical, int from, int to);

    Vergleichsmodell& m_modell;
    int m_zeile = 0; // of the last current cell
};

} // namespace zerna
