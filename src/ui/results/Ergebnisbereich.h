#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "core/Zahlentext.h"
#include "model/rechnung/Einzelheiten.h"
#include "model/rechnung/Ergebnislage.h"
#include "model/rechnung/Ergebnisse.h"
#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"
#include "ui/results/Ergebnisgitter.h"

class QAction;
class QMenu;

namespace zerna {

class Ergebnisdetails;
class Befundzeile;
class Menue;
class StyledButton;
class Tabellenknopf;

/// The results panel: all free-electron quantities of the alloy in the calculator, three of which can be typed to
/// explore the model without a composition, the Friedel-minimum read-out, and the results text for clipboard and file.
class Ergebnisbereich : public QWidget {
    Q_OBJECT

public:
    Ergebnisbereich(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent = nullptr);

    /// Shows the calculator's results for an alloy that it has just been given; texts that are copied and saved name
    /// the alloy's rows. Lines without a value are empty.
    void zeige(const Eingabe& eingabe);

    /// Says above the results what is wrong with what is entered, and whether they still belong to it.
    void zeigeLage(const Eingabe& eingabe);

    void addBefehle(Menue& menue);

signals:
    /// What is wrong is to be mended there.
    void befundGewaehlt(int zeile, Eingabeort ort);
    /// It is asked at which part a quantity over compositions has a value.
    void anteilRequested(int groesse, const QString& wert);

private:
    /// Where the values come from.
    enum class Eingabemodus { Zusammensetzung = 0, ValenzOderDichte = 1, Kf2 = 2 };

    void createButtons();
    void createMenu();
    void addAnteil();
    QAction* addCopy(const QString& caption, const std::function<QString()>& text);
    void layOut();
    void aktualisieren(Eingabemodus modus);
    bool showFields(Eingabemodus modus);
    void fieldEdited(Ergebnisgitter::Feld feld);
    void markTyped(Ergebnisgitter::Feld feld);
    void showLage();
    void zurueck();
    bool darf(const std::string& frage, std::string_view caption, std::string_view go);
    void setTyped(Ergebnisgitter::Feld feld, float value);
    void stepFriedel(int step);
    void showFriedel();
    Einzelheiten einzelheitenVon(int zeile) const;
    void showHint(int zeile, const QPoint& globalPosition);
    void copyText();
    void copyTable(Dezimaltrenner trenner);
    void save();

    Programm& m_programm;
    SaveFileDialog& m_saveDialog;
    std::vector<Komponentenzeile> m_zeilen; // of the alloy that the results belong to
    Ergebnistexte m_texte = keineErgebnisse();
    Ergebnislage m_lage;
    std::array<bool, Ergebnisgitter::Felderzahl> m_getippt{};
    float m_friedelindex = 0; // n, 0 to 20
    Befundzeile* m_befundzeile = nullptr;
    Ergebnisgitter* m_gitter = nullptr;
    StyledButton* m_cmdKopieren = nullptr;
    Tabellenknopf* m_tabellenknopf = nullptr;
    StyledButton* m_cmdSpeichern = nullptr;
    Ergebnisdetails* m_details = nullptr;
    QMenu* m_menu = nullptr;
    int m_menuLine = 0;
};

} // namespace zerna
