#pragma once

#include <QWidget>

#include <optional>
#include <vector>

#include "model/eingabe/Legierungsformel.h"
#include "programm/Programm.h"

class QAction;
class QMenu;

namespace zerna {

class Befundzeile;
class StyledButton;
class Wertfeld;

/// One field into which a whole alloy is typed, taken with Enter and cleared with Esc, and a button that copies the
/// entered alloy as a formula. A line below it, which is there only while it has something to say, tells why a text is
/// no alloy and offers to take one that was put elsewhere.
class Formelfeld : public QWidget {
    Q_OBJECT

public:
    explicit Formelfeld(Programm& programm, QWidget* parent = nullptr);

    /// Offers to take a text that was entered elsewhere if it is an alloy of several elements; with any other text the
    /// line speaks of the field again.
    void biete(std::string_view text);

    /// Takes the alloy that is on offer; nothing if there is none.
    void nimmAngebot();

    /// Puts the ways to copy the alloy as a formula into a menu.
    void addKopien(QMenu& menu);

    /// What takes the keyboard focus, in this order.
    std::vector<QWidget*> tabOrder() const;

signals:
    void legierungEntered(const Legierungsformel& formel);
    void menuOpens();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createControls();
    void createKopien();
    void taken(const Legierungsformel& formel);
    void layOut();
    void edited();
    void take();
    void lineClicked();
    void showLine();

    Programm& m_programm;
    Wertfeld* m_txtFormel = nullptr;
    StyledButton* m_cmdFormel = nullptr;
    Befundzeile* m_zeile = nullptr;
    std::vector<QAction*> m_kopien;
    Formellesung m_lesung; // of the field's text
    bool m_refused = false; // the text was not taken, and has not become an alloy since
    QString m_hinweis; // about the alloy that was taken
    QString m_angebotstext;
    std::optional<Legierungsformel> m_angebot;
};

} // namespace zerna
