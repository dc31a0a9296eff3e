#pragma once

#include <QWidget>

#include <array>
#include <optional>

#include "model/eingabe/Legierung.h"

class QLabel;

namespace zerna {

class StyledButton;

/// A weighed mass that was taken out of its row because its component went away.
struct AbgelegteMasse {
    QString komponente;
    QString masse; ///< mg, as typed
};

/// Keeps the masses that were taken out of the rows, says which, and offers to put them back where they stood. Keeps
/// its place while there are none.
class Massenablage : public QWidget {
    Q_OBJECT

public:
    explicit Massenablage(QWidget* parent = nullptr);

    void legeAb(int row, AbgelegteMasse masse);

    /// The component whose mass was taken out of a row; empty for none.
    QString komponente(int row) const;

    /// The mass taken out of a row, which is then forgotten; no value if there is none.
    std::optional<AbgelegteMasse> nimm(int row);

    void leere() { m_massen.fill({}); }

    /// Shows what there is, with the offer if one of the masses stood in a row that has a component now.
    void zeige(const QStringList& komponenten);

    bool bietetAn() const; ///< what can be put back now

signals:
    void zurueckholen();

private:
    std::array<std::optional<AbgelegteMasse>, MaxKomponenten> m_massen;
    QLabel* m_text = nullptr;
    StyledButton* m_zurueckholen = nullptr;
};

} // namespace zerna
