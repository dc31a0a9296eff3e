#pragma once

#include <QWidget>

#include <span>
#include <string>
#include <vector>

#include "model/rechnung/clsCalc.h"

class QListWidget;

namespace zerna {

class Massenfeld;

/// A loss of mass and what composition it leaves: the field txtVerlust and the list lstVerlust.
class Verlustbereich : public QWidget {
    Q_OBJECT

public:
    explicit Verlustbereich(QWidget* parent = nullptr);

    /// Lists what the loss does to the masses weighed, of which those that are no numbers are Unbekannt. An empty field
    /// is a loss of 0; the list is empty while there is neither a loss nor a mass.
    void zeige(const clsCalc& calc, std::span<const float> massen);

    /// Writes the loss without taking it for typing; the list stays.
    void setVerlust(const QString& text);

    /// The list's lines if a loss has been entered.
    std::vector<std::string> zeilen() const;

signals:
    void verlustEntered(const QString& text);

private:
    Massenfeld* m_txtVerlust = nullptr;
    QListWidget* m_lstVerlust = nullptr;
};

} // namespace zerna
