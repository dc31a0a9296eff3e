#include "ui/pages/Ternaerseite.h"

#include <QHBoxLayout>
#include <QLabel>

#include <tuple>
#include <utility>

#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Menue.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/platform/QtText.h"

namespace zerna {

Ternaerseite::Ternaerseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent)
    : Diagrammseite(programm, flaeche, parent)
    // Intended: the caption changes to "Auflösung: " with the first step.
    , m_lblSteps(new QLabel(QStringLiteral("Schritte: 5"), this))
{
    m_lblSteps->setObjectName(QStringLiteral("lblSteps"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(m_lblSteps);
    const std::array<QString, 2> captions{QStringLiteral("−"), QStringLiteral("+")};
    const std::array<QString, 2> hints{QStringLiteral("Gröbere Auflösung"), QStringLiteral("Feinere Auflösung")};
    for (int i = 0; i < 2; ++i) {
        const auto k = static_cast<std::size_t>(i);
        m_cmdSteps.at(k) = new StyledButton(captions.at(k), this);
        m_cmdSteps.at(k)->setObjectName(numberedName("cmdSteps", i));
        m_cmdSteps.at(k)->setAccessibleName(hints.at(k));
        m_cmdSteps.at(k)->setToolTipText(hints.at(k));
        setZeichenknopf(m_cmdSteps.at(k));
        connect(m_cmdSteps.at(k), &StyledButton::clicked, this, [this, i] { stepResolution(i == 0 ? -1 : 1); });
        row->addWidget(m_cmdSteps.at(k));
    }
    row->addStretch();
}

std::vector<QWidget*> Ternaerseite::tabOrder() const { return {m_cmdSteps.begin(), m_cmdSteps.end()}; }

QString Ternaerseite::warumKeines(const Eingabe& eingabe) const
{
    constexpr std::array Zahlwoerter{"eine", "zwei", "drei", "vier", "fünf"};
    const int anzahl = eingabe.anzahl();
    if (anzahl == 3)
        return {};
    return QStringLiteral("„3 D - ternär“ braucht genau drei Komponenten, jetzt %1. Auf drei ändern")
        .arg(anzahl == 1 ? QStringLiteral("ist es eine")
                         : QStringLiteral("sind es %1")
                               .arg(QString::fromUtf8(Zahlwoerter.at(static_cast<std::size_t>(anzahl) - 1))));
}

void Ternaerseite::zeigeAuswahl(const Eingabe&)
{
    if (std::exchange(m_steps, wahl().aufloesung) != wahl().aufloesung)
        showSteps();
}

void Ternaerseite::zeichne(const Eingabe& eingabe)
{
    if (zeigeHindernis(eingabe))
        return;
    try {
        const Legierung legierung = eingabe.legierung().value();
        flaeche().showTernaer(ternaerangaben(programm().Calc(), legierung.komponenten(), wahl().groesse, m_steps));
    } catch (const Laufzeitfehler& error) {
        zeigeFehler(error);
    }
}

void Ternaerseite::stepResolution(int step)
{
    m_steps += step;
    if (m_steps > FeinsteAufloesung)
        m_steps = 1;
    else if (m_steps < 1)
        m_steps = FeinsteAufloesung;
    wahl().aufloesung = m_steps;
    showSteps();
    emit umgestellt({QStringLiteral("Auflösung")});
}

void Ternaerseite::showSteps() { m_lblSteps->setText(QStringLiteral("Auflösung: %1").arg(m_steps)); }

/// The search follows the quantity of the diagram, so a value is always one of it.
void Ternaerseite::setMarken(const Suchmarken& marken) { flaeche().setTernaerziel(marken.ziel); }

void Ternaerseite::addBefehle(Menue& menue)
{
    for (const auto& [text, name, step] : {std::tuple(QStringLiteral("&Feinere Auflösung"), "mnuSteps_1", 1),
             {QStringLiteral("&Gröbere Auflösung"), "mnuSteps_0", -1}}) {
        menue.add(Menue::Abschnitt::Diagramm,
            {.text = text,
                .name = name,
                .tun = [this, step = step] { stepResolution(step); },
                .moeglich = [this] { return wahl().typ == Diagrammtyp::Ternaer; }});
    }
}

} // namespace zerna
