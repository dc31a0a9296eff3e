#pragma once

#include <QWidget>

#include <string>
#include <vector>

#include "model/eingabe/Eingabefeld.h"
#include "programm/Programm.h"

class QFormLayout;

namespace zerna {

class Befundzeile;
class StyledButton;
class Suchliste;

/// A page of the search: what is asked for above, a list of what is found, a sentence about it, and the buttons that
/// take an answer over and copy the list.
class Suchseite : public QWidget {
    Q_OBJECT

public:
    /// Names and texts of what all pages have.
    struct Beschriftung {
        const char* liste; ///< objectName
        QString listenname; ///< accessible name
        const char* satz; ///< objectName
        const char* uebernehmen; ///< objectName
        QString uebernahme; ///< what taking over does
        const char* kopieren; ///< objectName
        QString kopie; ///< what is copied
    };

    Suchseite(Programm& programm, const Beschriftung& beschriftung, QWidget* parent);

    /// Looks for the value; without one, or where there can be no answer, it says why.
    virtual void suche(int groesse, const Eingabefeld& ziel) = 0;

    /// Puts the focus on the answers, if there are any.
    void gehZuAntworten();

protected:
    /// Puts the question above the rest; its fields come first for the tab key, too.
    void layOut(QFormLayout* frage, std::vector<QWidget*> felder);

    virtual void uebernehme() = 0;

    /// Why nothing can be looked for in the entered alloy; empty if it can.
    std::string hindernis(const Eingabefeld& ziel) const;

    Programm& programm() const { return m_programm; }
    Suchliste& liste() const { return *m_liste; }
    Befundzeile& satz() const { return *m_lblSatz; }

    void setUebernehmbar(bool an);
    void setKopierbar(bool an);
    bool istUebernehmbar() const;

private:
    Programm& m_programm;
    Suchliste* m_liste = nullptr;
    Befundzeile* m_lblSatz = nullptr;
    StyledButton* m_cmdUebernehmen = nullptr;
    StyledButton* m_cmdKopieren = nullptr;
};

} // namespace zerna
