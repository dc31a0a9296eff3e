#pragma once

#include <QWidget>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "model/Wiegeauskunft.h"
#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"

class QGridLayout;
class QLabel;

namespace zerna {

class Massenablage;
class Massenfeld;
class Menue;
class Verlustbereich;
class Wiegeausgabe;
class Wiegezeile;
struct Wiegeprotokoll;

/// The weighing calculator: target masses for a wanted total, what the masses weighed come to, and what a loss of mass
/// would change. Follows the calculator's composition; all masses in milligrams.
class conWiegen : public QWidget {
    Q_OBJECT

public:
    conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent = nullptr);

    /// Rebuilds the panel for an alloy that the calculator has just been given. Masses weighed of a component that is
    /// no longer there are taken out of the rows, with an offer to put them back.
    void Aktualisieren(const Eingabe& eingabe);

    void addBefehle(Menue& menue);
    void drucke();

private:
    void createControls(SaveFileDialog& saveDialog);
    void createTarget();
    void createRows();
    void createAuskunft();
    void layOut();
    QGridLayout* table();

    void Istmasse_Change(int row);
    void Istmasse_KeyDown(int row);
    void zeigeVerlust();
    void reportLater();
    void report();
    void putBack();

    void computeTargets();
    std::optional<Laufzeitfehler> weigh();
    void showWeighed();
    void beziehe(int row);
    void setBezug(const std::optional<Wiegebezug>& bezug);
    void showTargets(float wanted);
    void showAuskunft();
    QString sollGrund() const;
    QString istGrund() const;
    std::string wiegestandText() const;
    std::vector<float> massen() const;
    bool isAnythingWeighed() const;
    bool isEverythingWeighed() const;
    Wiegeprotokoll protokoll() const;

    Wiegezeile& at(int row) const { return *m_zeilen.at(static_cast<std::size_t>(row)); }

    Programm& m_programm;
    int m_anzahl = 0; // components of the alloy that is weighed
    std::vector<float> m_sollmassen; // mg, one per component; none if they cannot be computed
    std::optional<Laufzeitfehler> m_sollFehler; // why not
    std::optional<Wiegebezug> m_bezug; // what the target masses were set to match, unless the wanted total
    std::optional<Laufzeitfehler> m_istFehler; // why the masses give no at%
    std::optional<Laufzeitfehler> m_meldung; // of the last change of a mass, not shown yet
    QLabel* m_sollMasseCaption = nullptr;
    Massenfeld* m_txtSollMasse = nullptr;
    std::array<Wiegezeile*, MaxKomponenten> m_zeilen{};
    QLabel* m_gesamt = nullptr;
    QLabel* m_hinweis = nullptr;
    Massenablage* m_ablage = nullptr;
    Verlustbereich* m_verlust = nullptr;
    Wiegeausgabe* m_ausgabe = nullptr;
};

} // namespace zerna
