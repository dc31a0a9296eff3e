#pragma once

#include "ui/pages/Diagrammseite.h"

class QCheckBox;

namespace zerna {

/// A property over the elements of the periodic table, "PSE". What is shown beside the given curve is remembered.
class PSEseite : public Diagrammseite {
    Q_OBJECT

public:
    PSEseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent);

    QString titel() const override { return QStringLiteral("PSE"); }
    std::span<const int> groessen() const override;
    void zeigeAuswahl(const Eingabe& eingabe) override;
    void zeichne(const Eingabe& eingabe) override;
    std::vector<QWidget*> tabOrder() const override;
    std::vector<StyledButton*> knoepfe() const override { return {m_cmdLuecken}; }
    void addBefehle(Menue& menue) override;

private:
    void stelleUm();
    void zeigeSchalter();
    bool istGezeigt();

    QCheckBox* m_chkSymbole = nullptr;
    QCheckBox* m_chkKristallin = nullptr;
    StyledButton* m_cmdLuecken = nullptr;
};

} // namespace zerna
