#pragma once

#include <array>

#include "ui/pages/Diagrammseite.h"

class QLabel;

namespace zerna {

/// A quantity over the three components of an alloy, "3 D - ternär". Its strip holds the resolution.
class Ternaerseite : public Diagrammseite {
    Q_OBJECT

public:
    Ternaerseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent);

    QString titel() const override { return QStringLiteral("3 D - ternär"); }
    std::span<const int> groessen() const override { return legierungsgroessen(); }
    QString warumKeines(const Eingabe& eingabe) const override;
    void zeigeAuswahl(const Eingabe& eingabe) override;
    void zeichne(const Eingabe& eingabe) override;
    std::vector<QWidget*> tabOrder() const override;
    void addBefehle(Menue& menue) override;
    void setMarken(const Suchmarken& marken) override;

private:
    void stepResolution(int step);
    void showSteps();

    int m_steps = 5; // resolution as it is shown, 1 to 10
    QLabel* m_lblSteps = nullptr;
    std::array<StyledButton*, 2> m_cmdSteps{};
};

} // namespace zerna
