#include "ui/pages/PSEseite.h"

#include <QCheckBox>
#include <QHBoxLayout>

#include <tuple>

#include "model/reihen/Elementdiagramm.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Menue.h"
#include "ui/diagram/Diagrammflaeche.h"

namespace zerna {

namespace {

constexpr const char* Symbolschluessel = "PSE_Symbole";
constexpr const char* Kristallinschluessel = "PSE_Kristallin";

} // namespace

PSEseite::PSEseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent)
    : Diagrammseite(programm, flaeche, parent)
    , m_chkSymbole(new QCheckBox(QStringLiteral("Symbole"), this))
    , m_chkKristallin(new QCheckBox(QStringLiteral("auch kristallin"), this))
    , m_cmdLuecken(new StyledButton(QStringLiteral("Lücken kopieren"), parent))
{
    m_chkSymbole->setObjectName(QStringLiteral("chkSymbole"));
    m_chkSymbole->setToolTip(QStringLiteral("Elementsymbole an den Punkten, soweit Platz ist"));
    m_chkKristallin->setObjectName(QStringLiteral("chkKristallin"));
    m_chkKristallin->setToolTip(QStringLiteral("Dazu die Werte mit der kristallinen Dichte, gestrichelt"));
    m_cmdLuecken->setObjectName(QStringLiteral("cmdLuecken"));
    m_cmdLuecken->setToolTipText(QStringLiteral("Welche Elemente keinen Wert haben und was ihnen fehlt"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(m_chkSymbole);
    row->addWidget(m_chkKristallin);
    row->addStretch();
    this->flaeche().setPSEAnsicht({.kristallin = programm.settings().istAn(Kristallinschluessel),
        .symbole = programm.settings().istAn(Symbolschluessel, true)});
    zeigeSchalter();
    for (QCheckBox* const box : {m_chkSymbole, m_chkKristallin})
        connect(box, &QCheckBox::clicked, this, &PSEseite::stelleUm);
    connect(&flaeche, &Diagrammflaeche::pseAnsichtChanged, this, [this] {
        zeigeSchalter();
        stelleUm();
    });
    connect(m_cmdLuecken, &StyledButton::clicked, &flaeche, &Diagrammflaeche::copyLuecken);
}

std::span<const int> PSEseite::groessen() const { return psegroessen(); }

std::vector<QWidget*> PSEseite::tabOrder() const { return {m_chkSymbole, m_chkKristallin}; }

bool PSEseite::istGezeigt() { return wahl().typ == Diagrammtyp::PSE; }

/// Takes the switches over and remembers them.
void PSEseite::stelleUm()
{
    const PSEAnsicht ansicht{.kristallin = m_chkKristallin->isChecked(), .symbole = m_chkSymbole->isChecked()};
    flaeche().setPSEAnsicht(ansicht);
    programm().settings().setAn(Symbolschluessel, ansicht.symbole);
    programm().settings().setAn(Kristallinschluessel, ansicht.kristallin);
}

void PSEseite::zeigeSchalter()
{
    m_chkSymbole->setChecked(flaeche().pseAnsicht().symbole);
    m_chkKristallin->setChecked(flaeche().pseAnsicht().kristallin);
}

void PSEseite::zeigeAuswahl(const Eingabe&)
{
    const Groesse* const groesse = findGroesse(wahl().groesse);
    m_chkKristallin->setEnabled(groesse != nullptr && groesse->formel != nullptr);
}

void PSEseite::zeichne(const Eingabe& eingabe)
{
    try {
        std::vector<std::string> legierung;
        for (int row = 0; row < eingabe.anzahl(); ++row) {
            if (const auto& element = eingabe.zeile(row).element)
                legierung.push_back(element->symbol());
        }
        Elementdiagramm diagramm =
            elementdiagramm(programm().ElementCollection(), programm().Calc(), wahl().groesse, legierung);
        m_cmdLuecken->setEnabled(!lueckentabelle(diagramm, true).empty());
        flaeche().showPSE(std::move(diagramm));
    } catch (const Laufzeitfehler& error) {
        zeigeFehler(error);
    }
}

void PSEseite::addBefehle(Menue& menue)
{
    for (const auto& [text, name, box] : {std::tuple(QStringLiteral("Elements&ymbole"), "mnuPSE_Symbole", m_chkSymbole),
             {QStringLiteral("Auch kris&tallin"), "mnuPSE_Kristallin", m_chkKristallin}}) {
        menue.add(Menue::Abschnitt::Diagramm,
            {.text = text,
                .name = name,
                .tun = [box = box] { box->click(); },
                .moeglich = [this, box = box] { return istGezeigt() && box->isEnabled(); },
                .gewaehlt = [box = box] { return box->isChecked(); }});
    }
    menue.add(Menue::Abschnitt::Kopieren,
        {.text = QStringLiteral("&Lücken kopieren"),
            .name = "mnuPSE_Luecken",
            .tun = [this] { flaeche().copyLuecken(); },
            .moeglich = [this] { return istGezeigt() && m_cmdLuecken->isEnabled(); }});
}

} // namespace zerna
