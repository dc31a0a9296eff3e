#include "ui/controls/Menue.h"

#include <QActionGroup>
#include <QMenu>

#include <utility>

namespace zerna {

Menue::Menue(QWidget* parent)
    : QMenuBar(parent)
{
    const std::array<std::pair<QString, Abschnitt>, 4> menus{{
        {QStringLiteral("D&atei"), Abschnitt::Ende},
        {QStringLiteral("&Bearbeiten"), Abschnitt::Einstellungen},
        {QStringLiteral("A&nsicht"), Abschnitt::Diagramm},
        {QStringLiteral("Hi&lfe"), Abschnitt::Info},
    }};
    for (const Abschnitt section : {Abschnitt::Bereiche, Abschnitt::Links, Abschnitt::Diagrammtyp})
        m_wahl[section] = new QActionGroup(this);
    std::size_t section = 0;
    for (const auto& [title, last] : menus) {
        QMenu* const menu = addMenu(title);
        for (; section <= static_cast<std::size_t>(last); ++section)
            m_enden.at(section) = menu->addSeparator(); // the toolkit shows none at the end and no two in a row
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { aktualisiere(*menu); });
        connect(menu, &QMenu::aboutToHide, this, &Menue::gibFrei);
    }
}

QMenu& Menue::menuOf(Abschnitt abschnitt) const
{
    return *static_cast<QMenu*>(m_enden.at(static_cast<std::size_t>(abschnitt))->parent());
}

void Menue::add(Abschnitt abschnitt, QAction* action)
{
    menuOf(abschnitt).insertAction(m_enden.at(static_cast<std::size_t>(abschnitt)), action);
}

QMenu* Menue::addUntermenue(Abschnitt abschnitt, const QString& text)
{
    auto* const menu = new QMenu(text, this);
    add(abschnitt, menu->menuAction());
    return menu;
}

QAction* Menue::add(Abschnitt abschnitt, Befehl befehl)
{
    auto* const action = new QAction(befehl.text, this);
    action->setObjectName(QLatin1String(befehl.name));
    action->setShortcuts(befehl.tasten);
    action->setCheckable(static_cast<bool>(befehl.gewaehlt));
    if (const auto wahl = m_wahl.find(abschnitt); wahl != m_wahl.end())
        wahl->second->addAction(action);
    const std::size_t entry = m_eintraege.size();
    connect(action, &QAction::triggered, this, [this, entry] {
        const Befehl& asked = m_eintraege.at(entry).befehl;
        if (istMoeglich(asked))
            asked.tun();
    });
    add(abschnitt, action);
    m_eintraege.push_back({action, std::move(befehl)});
    return action;
}

void Menue::sperre() { m_gesperrt = true; }

bool Menue::istMoeglich(const Befehl& befehl) const
{
    return befehl.immer || (!m_gesperrt && (!befehl.moeglich || befehl.moeglich()));
}

void Menue::aktualisiere(const QMenu& menu)
{
    for (const auto& [action, befehl] : m_eintraege) {
        if (!menu.actions().contains(action))
            continue;
        action->setEnabled(istMoeglich(befehl));
        if (befehl.gewaehlt)
            action->setChecked(befehl.gewaehlt());
        if (befehl.beschriftung)
            action->setText(befehl.beschriftung());
    }
}

/// The state of an entry is that of the moment its menu opened; a key asks anew.
void Menue::gibFrei()
{
    for (const Eintrag& eintrag : m_eintraege)
        eintrag.action->setEnabled(true);
}

} // namespace zerna
