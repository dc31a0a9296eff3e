#pragma once

#include <QWidget>

#include <array>
#include <string>
#include <vector>

#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"

class QGridLayout;
class QLabel;
class QListWidget;

namespace zerna {

class StyledButton;
class Wertfeld;

/// The weighing calculator: target masses for a wanted total, what the masses weighed come to, and what a loss of mass
/// would change. Follows the calculator's composition; all masses in milligrams.
class conWiegen : public QWidget {
    Q_OBJECT

public:
    conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent = nullptr);

    /// Rebuilds the panel for an alloy that the calculator has just been given.
    void Aktualisieren(const Eingabe& eingabe);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Zeile {
        QLabel* Label = nullptr;
        QLabel* Sollmasse = nullptr;
        Wertfeld* Istmasse = nullptr;
        QLabel* IstProzent = nullptr;
        QLabel* Abweichung = nullptr;
        QLabel* MassProzent = nullptr;
        float istmasse = 0; // mg; Unbekannt while the field holds no number

        std::array<QWidget*, 6> widgets() const;
    };

    void createControls();
    void createTarget();
    void createLoss();
    void createRow(int row);
    void layOut();
    void layOutTable(QGridLayout& grid);

    void sollMasseChanged();
    void Istmasse_Change(int row);
    void Istmasse_KeyDown(int row);
    void verlustChanged();
    void showTargets();
    void showWeighed();
    void clearWeighed();
    void showDeviation(Zeile& zeile, float difference);
    std::vector<float> istmassen() const;
    bool isAnythingWeighed() const;
    std::string protokoll() const;
    void copy();
    void save();

    Zeile& at(int row) { return m_zeilen.at(static_cast<std::size_t>(row)); }
    const Zeile& at(int row) const { return m_zeilen.at(static_cast<std::size_t>(row)); }

    void read(Wertfeld& field, float& masse);

    Programm& m_programm;
    SaveFileDialog& m_saveDialog;
    int m_anzahl = 0; // components of the alloy that is weighed
    float m_sollmasse = 0; // mg; Unbekannt while its field holds no number
    float m_verlust = 0; // mg, likewise
    QLabel* m_sollMasseCaption = nullptr;
    Wertfeld* m_txtSollMasse = nullptr;
    std::array<QLabel*, 6> m_heads{};
    std::array<Zeile, MaxKomponenten> m_zeilen;
    QLabel* m_gesamt = nullptr;
    QLabel* m_hinweis = nullptr;
    QLabel* m_verlustCaption = nullptr;
    Wertfeld* m_txtVerlust = nullptr;
    QListWidget* m_lstVerlust = nullptr;
    StyledButton* m_kopieren = nullptr;
    StyledButton* m_speichern = nullptr;
};

} // namespace zerna
