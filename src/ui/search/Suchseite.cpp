#include "ui/search/Suchseite.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "model/suche/Anteilssuche.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Tabreihenfolge.h"
#include "ui/search/Suchliste.h"

namespace zerna {

Suchseite::Suchseite(Programm& programm, const Beschriftung& beschriftung, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_liste(new Suchliste(programm.settings(), this))
    , m_lblSatz(new Befundzeile(this))
    , m_cmdUebernehmen(new StyledButton(QStringLiteral("Ü&bernehmen"), this))
    , m_cmdKopieren(new StyledButton(QStringLiteral("Ko&pieren"), this))
{
    m_liste->setObjectName(QLatin1String(beschriftung.liste));
    m_liste->setAccessibleName(beschriftung.listenname);
    m_lblSatz->setObjectName(QLatin1String(beschriftung.satz));
    m_cmdUebernehmen->setObjectName(QLatin1String(beschriftung.uebernehmen));
    m_cmdUebernehmen->setToolTipText(beschriftung.uebernahme);
    m_cmdKopieren->setObjectName(QLatin1String(beschriftung.kopieren));
    m_cmdKopieren->setToolTipText(beschriftung.kopie);
    const auto takeOver = [this] {
        if (istUebernehmbar())
            uebernehme();
    };
    connect(m_liste, &Suchliste::uebernehmen, this, takeOver);
    connect(m_cmdUebernehmen, &StyledButton::clicked, this, takeOver);
    connect(m_cmdKopieren, &StyledButton::clicked, m_liste, &Suchliste::kopiere);
}

void Suchseite::layOut(QFormLayout* frage, std::vector<QWidget*> felder)
{
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addLayout(frage);
    column->addWidget(m_liste, 1);
    column->addWidget(m_lblSatz);
    column->addLayout(knopfzeile({m_cmdUebernehmen, m_cmdKopieren}));
    felder.insert(felder.end(), {m_liste, m_lblSatz, m_cmdUebernehmen, m_cmdKopieren});
    setTabReihenfolge(felder);
    folgeSchrift(this, [this, column] { // where a long sentence takes further lines, the list gives way
        const int line = fontMetrics().height() + 6;
        setMinimumSize(24 * line, column->minimumSize().height() + 3 * line);
    });
}

std::string Suchseite::hindernis(const Eingabefeld& ziel) const
{
    const Eingabe& eingabe = m_programm.Eingabe();
    if (const auto hindernis = eingabe.hindernis())
        return hindernis->grund;
    if (!eingabe.istVollstaendig())
        return "Es sind nicht alle Anteile eingetragen.";
    return zielhindernis(ziel);
}

void Suchseite::setUebernehmbar(bool an) { m_cmdUebernehmen->setEnabled(an); }

void Suchseite::setKopierbar(bool an) { m_cmdKopieren->setEnabled(an); }

bool Suchseite::istUebernehmbar() const { return m_cmdUebernehmen->isEnabled(); }

void Suchseite::gehZuAntworten()
{
    if (m_liste->rowCount() > 0)
        m_liste->setFocus(Qt::OtherFocusReason);
}

} // namespace zerna
