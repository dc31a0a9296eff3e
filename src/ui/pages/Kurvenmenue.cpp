#include "ui/pages/Kurvenmenue.h"

#include <algorithm>

#include "bild/Konzentrationstexte.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/platform/QtText.h"

namespace zerna {

Kurvenmenue::Kurvenmenue(Programm& programm, QWidget* parent)
    : QMenu(QStringLiteral("K&urven"), parent)
    , m_programm(programm)
{
    setObjectName(QStringLiteral("mnuKurven"));
    m_mischungsreihe = addSchalter(QStringLiteral("&Mischungsreihe (Summe 100 %)"), "mnuMischungsreihe",
        Mischungsreihenschluessel, &Kurvenschalter::mischungsreihe);
    m_ganzeKurve =
        addSchalter(QStringLiteral("&Ganze Kurve zeigen"), "mnuGanzeKurve", "GanzeKurve", &Kurvenschalter::ganzeKurve);
    QMenu* const zweite = addMenu(QStringLiteral("&Zweite Größe"));
    connect(zweite, &QMenu::aboutToShow, this, [this, zweite] { fillZweite(*zweite); });
    addSeparator();
    m_festhalten = add({}, "mnuKurve_Festhalten", &Kurvenmenue::halteFest);
    m_entfernen = addMenu(QStringLiteral("Festgehaltene Kurven &entfernen"));
    connect(m_entfernen, &QMenu::aboutToShow, this, [this] { fillEntfernen(*m_entfernen); });
    m_varianten = addAction(QStringLiteral("&Varianten zeigen"));
    m_varianten->setObjectName(QStringLiteral("mnuKurven_Varianten"));
    m_varianten->setCheckable(true);
    connect(m_varianten, &QAction::triggered, this, [this](bool on) {
        dokument().diagramm.varianten = on;
        emit umgestellt({on ? QStringLiteral("Varianten zeigen") : QStringLiteral("Varianten verbergen")});
    });
    addSeparator();
    m_mitKurve = {add(QStringLiteral("Kurven als &Tabelle speichern ..."), "mnuKurven_Speichern",
                      &Kurvenmenue::tabelleSaveRequested),
        add(QStringLiteral("Kurven als Tabelle &kopieren"), "mnuKurven_Kopieren", &Kurvenmenue::tabelleCopyRequested)};
    connect(this, &QMenu::aboutToShow, this, &Kurvenmenue::aktualisiere);
}

QAction* Kurvenmenue::add(const QString& text, const char* name, void (Kurvenmenue::*tun)())
{
    QAction* const action = addAction(text, this, tun);
    action->setObjectName(QLatin1String(name));
    return action;
}

/// A switch that is remembered.
QAction* Kurvenmenue::addSchalter(
    const QString& text, const char* name, std::string_view key, bool Kurvenschalter::*value)
{
    m_schalter.*value = m_programm.settings().istAn(key);
    QAction* const action = addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    action->setChecked(m_schalter.*value);
    connect(action, &QAction::toggled, this, [this, key, value](bool on) {
        m_schalter.*value = on;
        m_programm.settings().setAn(key, on);
        emit schalterChanged();
    });
    return action;
}

/// None, or one of the others.
void Kurvenmenue::fillZweite(QMenu& menu)
{
    menu.clear();
    const auto offer = [&](const QString& text, std::optional<int> groesse) {
        QAction* const action = menu.addAction(text, this, [this, text, groesse] {
            dokument().diagramm.zweiteGroesse = groesse;
            emit umgestellt({QStringLiteral("Zweite Größe: %1").arg(text)});
        });
        action->setCheckable(true);
        action->setChecked(groesse == dokument().diagramm.zweiteGroesse);
    };
    offer(QStringLiteral("keine"), {});
    menu.addSeparator();
    for (const int groesse : legierungsgroessen()) {
        if (groesse != dokument().diagramm.groesse)
            offer(toQt(findGroesse(groesse)->name), groesse);
    }
}

void Kurvenmenue::fillEntfernen(QMenu& menu)
{
    menu.clear();
    for (std::size_t i = 0; const GehalteneKurve& kurve : *dokument().kurven) {
        const QString name =
            QStringLiteral("%1: %2").arg(toQt(kurvenname(kurve)), toQt(findGroesse(kurve.groesse)->name));
        menu.addAction(menuetext(name), this, [this, i] { entferne(i); });
        ++i;
    }
    menu.addSeparator();
    menu.addAction(QStringLiteral("&Alle"), this, [this] { setKurven({}, QStringLiteral("Kurven entfernen")); });
}

void Kurvenmenue::aktualisiere()
{
    const auto& kept = *dokument().kurven;
    const bool isFull = kept.size() >= MaxKurven;
    const bool isKept = m_kurve && std::ranges::find(kept, *m_kurve) != kept.end();
    m_festhalten->setText(isFull ? QStringLiteral("Kurve festhalten (es sind schon sechs)")
            : isKept             ? QStringLiteral("Kurve ist festgehalten")
                                 : QStringLiteral("Kurve &festhalten"));
    m_festhalten->setEnabled(m_kurve && !isFull && !isKept);
    m_entfernen->setEnabled(!kept.empty());
    m_varianten->setChecked(dokument().diagramm.varianten);
    m_varianten->setEnabled(!dokument().vergleich->varianten.empty() || m_varianten->isChecked());
    for (QAction* const action : m_mitKurve)
        action->setEnabled(m_kurve.has_value());
}

void Kurvenmenue::halteFest()
{
    aktualisiere();
    if (!m_festhalten->isEnabled())
        return;
    std::vector<GehalteneKurve> kurven = *dokument().kurven;
    kurven.push_back(*m_kurve);
    setKurven(std::move(kurven), QStringLiteral("Kurve festhalten"));
}

void Kurvenmenue::entferne(std::size_t position)
{
    std::vector<GehalteneKurve> kurven = *dokument().kurven;
    kurven.erase(kurven.begin() + static_cast<std::ptrdiff_t>(position));
    setKurven(std::move(kurven), QStringLiteral("Kurve entfernen"));
}

void Kurvenmenue::setKurven(std::vector<GehalteneKurve> kurven, const QString& schritt)
{
    dokument().kurven = std::move(kurven);
    emit umgestellt({schritt});
}

} // namespace zerna
