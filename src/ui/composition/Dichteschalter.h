#pragma once

#include <QWidget>

#include "model/eingabe/Eingabe.h"

class QComboBox;
class QLabel;

namespace zerna {

/// One choice of the density for all rows: a list with its caption, and a line of its own that names the elements that
/// have no such density.
class Dichteschalter : public QWidget {
    Q_OBJECT

public:
    explicit Dichteschalter(QWidget* parent = nullptr);

    /// Shows the choice that all rows have in common, if there is one, and nothing in the line.
    void zeige(const Eingabe& eingabe);

    /// Names the elements that lack a density of that choice and stay as they were; none clear the line.
    void zeigeOhneDichte(std::string_view wahl, const std::vector<std::string>& symbole);

    /// The line, for the layout of the parent.
    QLabel* meldung() const { return m_lblMeldung; }

signals:
    void chosen(const QString& wahl);

private:
    QComboBox* m_cmbDichteart = nullptr;
    QLabel* m_lblMeldung = nullptr;
};

} // namespace zerna
