#include <QStackedWidget>

#include <tuple>

#include "ui/comparison/Vergleichsbereich.h"
#include "ui/composition/Kompositionsbereich.h"
#include "ui/controls/Menue.h"
#include "ui/controls/Spaltenpaar.h"
#include "ui/main/Dateibefehle.h"
#include "ui/main/Hilfe.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmEinstellungen.h"
#include "ui/main/frmMain.h"
#include "ui/pages/Diagrammbereich.h"
#include "ui/results/Ergebnisbereich.h"
#include "ui/weighing/conWiegen.h"

namespace zerna {

/// The panels add what belongs to them, in the order in which it is to stand in a section.
void frmMain::fillMenu()
{
    using enum Menue::Abschnitt;
    addSchritte();
    m_dateien->addBefehle(*m_menue);
    m_ergebnisse->addBefehle(*m_menue);
    m_conWiegen1->addBefehle(*m_menue);
    m_diagramm->addBefehle(*m_menue);
    m_komposition->addBefehle(*m_menue);
    m_vergleich->addBefehle(*m_menue);
    addAnsichten();
    addHilfe();
    m_menue->add(Drucken,
        {.text = {},
            .name = "mnuDrucken",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_P)},
            .tun = [this] { drucke(); },
            .moeglich = [this] { return m_pic1->isVisible() && (istEinwaageDran() || m_diagramm->istDruckbar()); },
            .beschriftung =
                [this] {
                    return istEinwaageDran() ? QStringLiteral("Wiegezettel d&rucken ...")
                                             : QStringLiteral("Diagramm d&rucken ...");
                }});
    m_menue->add(
        Einstellungen, {.text = QStringLiteral("Ein&stellungen ..."), .name = "mnuEinstellungen", .tun = [this] {
                            frmEinstellungen(m_programm.settings(), this).exec();
                        }});
    m_menue->add(Ende,
        {.text = QStringLiteral("&Beenden"),
            .name = "mnuBeenden",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_Q)},
            .tun = [this] { close(); },
            .immer = true});
    m_menue->add(
        Info, {.text = QStringLiteral("&Info ..."), .name = "mnuInfo", .tun = [this] { showAbout(); }, .immer = true});
}

void frmMain::addAnsichten()
{
    using enum Menue::Abschnitt;
    for (const auto& [text, name, panel] : {std::tuple(QStringLiteral("&Rechner"), "mnuPanel_0", 0),
             {QStringLiteral("&Periodensystem"), "mnuPanel_1", 1}, {QStringLiteral("&Vergleich"), "mnuPanel_2", 2}}) {
        m_menue->add(Bereiche,
            {.text = text,
                .name = name,
                .tun = [this, panel = panel] { showPanel(panel); },
                .gewaehlt = [this, panel = panel] { return m_panels->currentIndex() == panel; }});
    }
    for (const auto& [text, name, area] :
        {std::tuple(QStringLiteral("&Ergebnisse"), "mnuArea_0", 0), {QStringLiteral("Ein&waage"), "mnuArea_1", 1}}) {
        m_menue->add(Links,
            {.text = text,
                .name = name,
                .tun =
                    [this, area = area] {
                        showPanel(0);
                        showLowerArea(area);
                    },
                .gewaehlt = [this, area = area] { return m_lowerArea->currentIndex() == area; }});
    }
}

void frmMain::addHilfe()
{
    m_menue->add(Menue::Abschnitt::Handbuch,
        {.text = QStringLiteral("&Handbuch"),
            .name = "mnuHandbuch",
            .tasten = {QKeySequence(Qt::Key_F1)},
            .tun = [this] { m_hilfe->zeige(); },
            .immer = true});
    m_menue->add(Menue::Abschnitt::Handbuch,
        {.text = QStringLiteral("Die ersten &zehn Minuten"),
            .name = "mnuZehnMinuten",
            .tun = [this] { m_hilfe->zeigeAbschnitt(QStringLiteral("die-ersten-zehn-minuten")); },
            .immer = true});
}

/// Whether the weighing has the focus; else it is the diagram that is printed.
bool frmMain::istEinwaageDran() const
{
    const QWidget* const focused = focusWidget();
    return focused != nullptr && m_conWiegen1->isVisible() && m_conWiegen1->isAncestorOf(focused);
}

void frmMain::drucke()
{
    if (istEinwaageDran())
        m_conWiegen1->drucke();
    else
        m_diagramm->drucke();
}

void frmMain::oeffneArgumente(const QStringList& argumente) { m_dateien->oeffneArgumente(argumente); }

void frmMain::showAbout() { frmAbout(m_programm.Loader(), this).exec(); }

} // namespace zerna
