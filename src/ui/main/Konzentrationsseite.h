#pragma once

#include <array>

#include "ui/main/Diagrammseite.h"

namespace zerna {

class conLabel;

/// A quantity over the at% of one component, "2 D". Its strip holds a value label for each row.
class Konzentrationsseite : public Diagrammseite {
    Q_OBJECT

public:
    Konzentrationsseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent);

    QString titel() const override { return QStringLiteral("2 D"); }
    std::span<const int> groessen() const override { return legierungsgroessen(); }
    bool hatKomponente() const override { return true; }
    void zeigeAuswahl(const Eingabe& eingabe) override;
    void zeichne(const Eingabe& eingabe) override;
    std::vector<QWidget*> tabOrder() const override;
    int zeilenhoehe() const; ///< of its strip, for the strips of all

signals:
    /// A value label has stepped the at% of a row.
    void prozentStepped(int row, int prozent);

private:
    const Eingabe* zuZeichnen(const Eingabe& eingabe);
    void drawSeries(const Eingabe& eingabe);

    std::array<conLabel*, MaxKomponenten> m_conLabel{};
};

} // namespace zerna
