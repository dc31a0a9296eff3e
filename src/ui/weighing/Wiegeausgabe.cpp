#include "ui/weighing/Wiegeausgabe.h"

#include <QPrinterInfo>

#include <array>
#include <utility>

#include "programm/Exportieren.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Menue.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"
#include "ui/weighing/Wiegezettel.h"

namespace zerna {

namespace {

constexpr std::string_view NothingWeighed = "Es gibt weder Sollmassen noch gewogene Massen.";
constexpr std::string_view NoPrinter =
    "Es ist kein Drucker eingerichtet. „Speichern“ gibt den Wiegezettel auch als PDF-Dokument aus.";

} // namespace

Wiegeausgabe::Wiegeausgabe(
    Programm& programm, SaveFileDialog& saveDialog, std::function<Wiegeprotokoll()> protokoll, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_saveDialog(saveDialog)
    , m_protokoll(std::move(protokoll))
{
    auto* const drucken = makeButton(
        QStringLiteral("Dr&ucken"), "cmdWiegen_Drucken", QStringLiteral("Wiegezettel mit Unterschriftzeile drucken"));
    auto* const kopieren = makeButton(
        QStringLiteral("&Kopieren"), "cmdWiegen_Kopieren", QStringLiteral("Wiegeprotokoll in die Zwischenablage"));
    auto* const speichern = makeButton(QStringLiteral("&Speichern"), "cmdWiegen_Speichern",
        QStringLiteral("Wiegeprotokoll als Textdatei oder Wiegezettel als PDF speichern"));
    connect(drucken, &StyledButton::clicked, this, &Wiegeausgabe::print);
    connect(kopieren, &StyledButton::clicked, this, &Wiegeausgabe::copy);
    connect(speichern, &StyledButton::clicked, this, &Wiegeausgabe::save);
    auto* const row = knopfzeile({drucken, kopieren, speichern});
    row->setContentsMargins(0, 0, 0, 0);
    setLayout(row);
}

StyledButton* Wiegeausgabe::makeButton(const QString& caption, const char* name, const QString& hint)
{
    auto* const button = new StyledButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTipText(hint);
    return button;
}

void Wiegeausgabe::addBefehle(Menue& menue)
{
    menue.add(Menue::Abschnitt::Ausgabe,
        {.text = QStringLiteral("&Wiegeprotokoll speichern ..."), .name = "mnuWiegen_Speichern", .tun = [this] {
             save();
         }});
    menue.add(Menue::Abschnitt::Kopieren,
        {.text = QStringLiteral("Wiege&protokoll kopieren"), .name = "mnuWiegen_Kopieren", .tun = [this] { copy(); }});
}

void Wiegeausgabe::print()
{
    const Wiegeprotokoll protokoll = m_protokoll();
    if (!istEineMasseBekannt(protokoll.zeilen))
        m_programm.boxes().show(Icon::Exclamation, Programmtitel, NothingWeighed);
    else if (QPrinterInfo::availablePrinterNames().isEmpty())
        m_programm.boxes().show(Icon::Exclamation, Programmtitel, NoPrinter);
    else
        druckeWiegezettel(window(), m_programm.boxes(), protokoll);
}

void Wiegeausgabe::copy() { copyToClipboard(toQt(wiegeprotokoll(m_protokoll()))); }

void Wiegeausgabe::save()
{
    const Wiegeprotokoll protokoll = m_protokoll();
    if (!istEineMasseBekannt(protokoll.zeilen))
        return zeigeNichtsZuSpeichern(m_programm.boxes(), NothingWeighed);
    const std::array arten{
        textdatei("Wiegeprotokoll (*.dat)", "*.dat", ".dat", [&] { return wiegeprotokoll(protokoll); }),
        Exportart{"Wiegezettel (*.pdf)", "*.pdf", ".pdf",
            [&] { return wiegezettelAlsPdf(protokoll, m_programm.dokumenttext()); }}};
    exportieren(m_programm.boxes(), m_saveDialog, Exporttitel, arten);
}

} // namespace zerna
