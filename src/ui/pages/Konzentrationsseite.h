#pragma once

#include <array>

#include "bild/Konzentrationsbild.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/platform/Dialoge.h"

namespace zerna {

class Kurvenmenue;
class conLabel;

/// A quantity over the at% of one component, "2 D". Its strip holds a value label for each row.
class Konzentrationsseite : public Diagrammseite {
    Q_OBJECT

public:
    Konzentrationsseite(Programm& programm, Dialoge dialoge, Diagrammflaeche& flaeche, QWidget* parent);

    QString titel() const override { return QStringLiteral("2 D"); }
    std::span<const int> groessen() const override { return legierungsgroessen(); }
    bool hatKomponente() const override { return true; }
    void zeigeAuswahl(const Eingabe& eingabe) override;
    void zeichne(const Eingabe& eingabe) override;
    std::vector<QWidget*> tabOrder() const override;
    std::vector<StyledButton*> knoepfe() const override { return {m_cmdKurven}; }
    void addBefehle(Menue& menue) override;
    void setMarken(const Suchmarken& marken) override;
    void setMischungsreihe(bool an); ///< as if chosen in the menu
    QString angebot() const override;
    void nimmAn() override;
    int zeilenhoehe() const; ///< of its strip, for the strips of all

signals:
    /// A value label has stepped the at% of a row.
    void prozentStepped(int row, int prozent);

protected:
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const Eingabe* zuZeichnen(const Eingabe& eingabe);
    void createMenu();
    void drawSeries(const Eingabe& eingabe);
    void showBild();
    Tabelle tabelle();

    Dialoge m_dialoge;
    std::array<conLabel*, MaxKomponenten> m_conLabel{};
    StyledButton* m_cmdKurven = nullptr;
    Kurvenmenue* m_menue = nullptr; // of the button
    std::optional<Konzentrationsbild> m_bild; // what is shown
    Suchmarken m_marken;
};

} // namespace zerna
