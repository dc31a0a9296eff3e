#pragma once

#include <QWidget>

#include <array>
#include <memory>

#include "programm/Programm.h"
#include "ui/main/Sitzung.h"
#include "ui/main/Verlauf.h"
#include "ui/platform/Dialoge.h"

class QStackedWidget;

namespace zerna {

class Dateibefehle;
class Diagrammbereich;
class Ergebnisbereich;
class Hilfe;
class Kompositionsbereich;
class Kurzmeldung;
class Menue;
class PSEbereich;
class Spaltenpaar;
class Speichermelder;
class StyledButton;
class Vergleichsbereich;
class conWiegen;
class frmZielsuche;

/// The main window: a strip with the panel switches, and below it the calculator panel, the periodic table or the kept
/// alloys. It ties the panels together: an edit of the composition is handed to the calculator here, and then to the
/// panels that show it.
class frmMain : public QWidget, public Hauptfenster {
    Q_OBJECT

public:
    frmMain(Programm& programm, Dialoge dialoge);
    ~frmMain() override;

    /// Selects an entry of an element list and runs the element choice of its row; nothing for a position outside.
    void ComboElementListIndex(int index, int listIndex) override;

    void addElement(std::string_view symbol, int itemData) override;
    std::string elementEntry(int position) const override;
    int findElementEntry(std::string_view text) const override;
    void selectFirstDiagram() override;
    void compute() override;
    void sperren(std::string_view grund) override;
    void show() override;

    /// Every panel shows the document, which has become another one without an edit.
    void zeigeDokument();

    /// Shows a document that the program has just been given: no way leads back from it.
    void beginneDokument();

    /// Opens what the program was called with.
    void oeffneArgumente(const QStringList& argumente);

    OffeneDatei offeneDatei() const;

    /// Shows a document that was restored.
    void setzeFort(const Sitzung::Stand& stand);

    /// Ends every user's change of the document, after all that follows from it.
    void geschehen(const Schritt& schritt);
    Verlauf& verlauf() { return m_verlauf; }

signals:
    /// A document has been opened, begun or restored.
    void begonnen();

    /// The window goes, and the document with it.
    void schliesst();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void load();
    void createControls();
    void createCalculatorPanel(Dialoge dialoge);
    void connectPanels();
    void connectVerlauf();
    void zeigeEigenes();
    void zeigeStand(const Verlauf::Stand& stand, const Verlauf::Stand& vorher);
    void fillMenu();
    QAction* addSchritt(const QString& text, const char* name, const QList<QKeySequence>& tasten);
    void addSchritte();
    void addAnsichten();
    void addHilfe();
    bool istEinwaageDran() const;
    void drucke();
    void showAbout();
    void layOut();
    void layOutCalculator();
    void uebernehmen(const Aenderung& aenderung);
    void lade(const QString& name, const zerna::Eingabe& eingabe);
    void showPanel(int panel);
    void showLowerArea(int area);
    void connectSuche();
    frmZielsuche& suche();
    void frageAnteil(int groesse, const QString& wert);
    void zeigeSuche();

    Programm& m_programm;
    Verlauf m_verlauf;
    Menue* m_menue = nullptr;
    Dateibefehle* m_dateien = nullptr;
    Hilfe* m_hilfe = nullptr;
    std::array<StyledButton*, 3> m_optButton1{};
    Kurzmeldung* m_meldung = nullptr; // beside the switches
    std::unique_ptr<Speichermelder> m_speichern; // the dialog that all panels save with
    StyledButton* m_cmdAbout = nullptr;
    Spaltenpaar* m_pic1 = nullptr; // the calculator panel
    QWidget* m_left = nullptr; // its left column
    QStackedWidget* m_lowerArea = nullptr; // of the left column: results or weighing
    QStackedWidget* m_panels = nullptr;
    PSEbereich* m_pse = nullptr; // the second panel
    Vergleichsbereich* m_vergleich = nullptr; // the third panel
    Kompositionsbereich* m_komposition = nullptr;
    std::array<StyledButton*, 2> m_cmdKnopf1{};
    Ergebnisbereich* m_ergebnisse = nullptr;
    conWiegen* m_conWiegen1 = nullptr;
    Diagrammbereich* m_diagramm = nullptr;
    frmZielsuche* m_suche = nullptr; // null until the first search
};

} // namespace zerna
