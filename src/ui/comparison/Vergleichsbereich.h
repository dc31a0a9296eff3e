#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

#include "core/Zahlentext.h"
#include "programm/Programm.h"
#include "ui/platform/Dialoge.h"

class QAction;
class QComboBox;
class QMenu;
class QStackedWidget;

namespace zerna {

class Menue;
class StyledButton;
class Tabellenknopf;
class Vergleichsansicht;
class Vergleichsmodell;

/// The panel of the kept alloys: their quantities side by side, and what can be done with them. Each operation puts
/// another Vergleich into the document and says what it was.
class Vergleichsbereich : public QWidget {
    Q_OBJECT

public:
    Vergleichsbereich(Programm& programm, Dialoge dialoge, QWidget* parent = nullptr);

    /// Makes the controls, unless they are there. Most runs need none of them.
    void baue();

    /// Shows what the document keeps.
    void zeige();

    /// Keeps the entered alloy, or says why not.
    void merke();

    void addBefehle(Menue& menue);

signals:
    /// The document is another one now, by a step of that name: "Variante merken".
    void geschehen(const QString& schritt);

    /// What was done, for the eye.
    void gemeldet(const QString& text);

    /// The alloy is to be entered again.
    void ladenRequested(const QString& name, const Eingabe& eingabe);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    using Operation = std::function<void(Vergleich&)>;

    QAction* makeAction(
        const QString& text, const char* name, const QList<QKeySequence>& keys, void (Vergleichsbereich::*act)());
    StyledButton* makeButton(const QString& caption, const char* name, QAction* action);
    void createActions();
    void createControls();
    void createSeiten();
    std::vector<StyledButton*> createBar();
    void layOut();
    void showState();

    const Vergleich& vergleich() const { return *m_programm.Dokument().vergleich; }
    std::size_t gewaehlt() const;
    const std::string& name() const { return vergleich().varianten.at(gewaehlt()).name; }
    void aendere(const QString& schritt, std::size_t danach, const Operation& operation);
    void verschiebe(std::size_t von, std::size_t nach);

    void lade();
    void alsReferenz();
    void benenneUm();
    void nachLinks();
    void nachRechts();
    void loesche();
    void copySelection();
    void copyTable(Dezimaltrenner trenner);
    void save();

    Programm& m_programm;
    Dialoge m_dialoge;
    Vergleichsmodell* m_modell = nullptr;
    Vergleichsansicht* m_ansicht = nullptr;
    Geteilt<Vergleich> m_gezeigt;
    QMenu* m_menu = nullptr;
    QAction *m_laden = nullptr, *m_referenz = nullptr, *m_umbenennen = nullptr, *m_links = nullptr, *m_rechts = nullptr,
            *m_loeschen = nullptr, *m_kopieren = nullptr;
    QComboBox* m_cmbArt = nullptr;
    Tabellenknopf* m_tabellenknopf = nullptr;
    StyledButton* m_cmdSpeichern = nullptr;
    QStackedWidget* m_seiten = nullptr; // what the panel is for, or the table
};

} // namespace zerna
