#pragma once

#include <QWidget>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "model/einwaage/Wiegeauskunft.h"
#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"
#include "ui/platform/QtText.h"

class QGridLayout;
class QLabel;

namespace zerna {

class Massenablage;
class Massenfeld;
class Menue;
class Verlustbereich;
class Wiegeausgabe;
class Wiegemeldung;
class Wiegezeile;
struct AbgelegteMasse;
struct Wiegeprotokoll;

/// The weighing calculator: target masses for a wanted total, what the masses weighed come to, and what a loss of mass
/// would change. Follows the calculator's composition; all masses in milligrams.
class conWiegen : public QWidget {
    Q_OBJECT

public:
    conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent = nullptr);

    /// Rebuilds the panel for an alloy that the calculator has just been given. Masses stay with their components;
    /// those of components that are no longer there are taken out of the rows, with an offer to put them back.
    void Aktualisieren(const Eingabe& eingabe);

    /// Shows the weighing of the document, for the alloy in the calculator.
    void zeigeDokument();

    /// Offers no masses any more that were taken out: they belong to another document.
    void vergissAbgelegte();

    void addBefehle(Menue& menue);
    void drucke();

signals:
    void geschehen(const Schritt& schritt);

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
    QStringList komponenten() const;
    int zeileVon(const QString& komponente) const;
    void setzeIn(int from, int row);
    void putBack();

    std::optional<AbgelegteMasse> zeigeKomponente(int row);
    void computeTargets();
    std::optional<Laufzeitfehler> weigh();
    void showWeighed();
    void beziehe(const Wiegebezug& bezug);
    void setBezug(const std::optional<Wiegebezug>& bezug);
    void showTargets(float wanted);
    void showAuskunft();
    std::string wiegestandText() const;
    std::vector<float> massen() const;
    bool isAnythingWeighed() const;
    bool isEverythingWeighed() const;
    void bezieheOffenes();
    Wiegeprotokoll protokoll() const;

    Wiegedaten& daten() { return m_programm.Dokument().wiegen; }
    std::string& gewogen(int row) { return daten().gewogen.at(static_cast<std::size_t>(row)); }
    QString symbol(int row) const { return toQt(m_programm.Calc().Element_Symbol(row)); }
    Wiegezeile& at(int row) const { return *m_zeilen.at(static_cast<std::size_t>(row)); }

    Programm& m_programm;
    std::optional<Wiegebezug> m_offenerBezug; // waits for the at% of a document that came without
    int m_anzahl = 0; // components of the alloy that is weighed
    std::vector<float> m_sollmassen; // mg, one per component; none if they cannot be computed
    std::optional<Laufzeitfehler> m_sollFehler; // why not
    std::optional<Laufzeitfehler> m_istFehler; // why the masses give no at%
    Wiegemeldung* m_meldung = nullptr; // of the last change of a mass
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
