#pragma once

#include <QWidget>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"

class QLabel;
class QListWidget;

namespace zerna {

struct Einwaagezeile;
class Massenfeld;
class StyledButton;
class Wiegezeile;

/// The weighing calculator: target masses for a wanted total, what the masses weighed come to, and what a loss of mass
/// would change. Follows the calculator's composition; all masses in milligrams.
class conWiegen : public QWidget {
    Q_OBJECT

public:
    conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent = nullptr);

    /// Rebuilds the panel for an alloy that the calculator has just been given.
    void Aktualisieren(const Eingabe& eingabe);

private:
    void createControls();
    void createTarget();
    void createLoss();
    void layOut();

    void sollMasseChanged();
    void Istmasse_Change();
    void reportLater();
    void report();
    void Istmasse_KeyDown(int row);
    void verlustChanged();
    QString sollGrund(const Laufzeitfehler& error) const;
    void showHinweis();
    void showTargets();
    void showWeighed();
    void clearWeighed();
    void showMangel();
    std::vector<float> istmassen() const;
    bool isAnythingWeighed() const;
    std::vector<Einwaagezeile> einwaagen() const;
    std::string protokoll() const;
    void copy();
    void save();

    Wiegezeile& at(int row) const { return *m_zeilen.at(static_cast<std::size_t>(row)); }

    Programm& m_programm;
    SaveFileDialog& m_saveDialog;
    int m_anzahl = 0; // components of the alloy that is weighed
    std::optional<Laufzeitfehler> m_meldung; // of the last change of a mass, not shown yet
    QString m_sollGrund; // why there are no target masses
    QString m_istGrund; // why there are no at%
    QLabel* m_sollMasseCaption = nullptr;
    Massenfeld* m_txtSollMasse = nullptr;
    std::array<Wiegezeile*, MaxKomponenten> m_zeilen{};
    QLabel* m_gesamt = nullptr;
    QLabel* m_hinweis = nullptr;
    QLabel* m_verlustCaption = nullptr;
    Massenfeld* m_txtVerlust = nullptr;
    QListWidget* m_lstVerlust = nullptr;
    StyledButton* m_kopieren = nullptr;
    StyledButton* m_speichern = nullptr;
};

} // namespace zerna
