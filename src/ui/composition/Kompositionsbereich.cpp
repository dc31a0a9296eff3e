#include "ui/composition/Kompositionsbereich.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStandardItemModel>

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/Zahlentext.h"
#include "model/eingabe/Eingabevergleich.h"
#include "model/eingabe/Formeleingabe.h"
#include "parser/Formelwert.h"
#include "ui/button/StyledButton.h"
#include "ui/composition/Anteilskoepfe.h"
#include "ui/composition/Dichteschalter.h"
#include "ui/composition/Formelfeld.h"
#include "ui/composition/Kompositionszeile.h"
#include "ui/controls/Beschriftung.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Menue.h"
#include "ui/platform/QtText.h"

namespace zerna {

Kompositionsbereich::Kompositionsbereich(Programm& programm, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    createControls();
    layOut();
}

void Kompositionsbereich::createControls()
{
    m_formelfeld = new Formelfeld(m_programm, this);
    connect(m_formelfeld, &Formelfeld::legierungEntered, this, &Kompositionsbereich::setLegierung);
    m_label1 = new QLabel(QStringLiteral("Ko&mponenten:"), this);
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_lblAnzahl = new QLabel(this);
    m_lblAnzahl->setObjectName(QStringLiteral("lblAnzahl"));
    const std::array<QString, 2> captions{QStringLiteral("+"), QStringLiteral("−")};
    const std::array<QString, 2> hints{QStringLiteral("Komponente hinzufügen"), QStringLiteral("Komponente entfernen")};
    for (std::size_t i = 0; i < m_cmdKom.size(); ++i) {
        m_cmdKom.at(i) = new StyledButton(captions.at(i), this);
        m_cmdKom.at(i)->setObjectName(numberedName("cmdKom", static_cast<int>(i)));
        m_cmdKom.at(i)->setAccessibleName(hints.at(i));
        m_cmdKom.at(i)->setToolTipText(hints.at(i));
        const int step = i == 0 ? 1 : -1;
        connect(m_cmdKom.at(i), &StyledButton::clicked, this, [this, step] { stepAnzahl(step); });
    }
    m_label1->setBuddy(m_cmdKom[0]);
    m_dichteschalter = new Dichteschalter(this);
    connect(
        m_dichteschalter, &Dichteschalter::chosen, this, [this](const auto& wahl) { dichteartChosen(fromQt(wahl)); });
    m_anteilskoepfe = new Anteilskoepfe(this);
    connect(m_anteilskoepfe, &Anteilskoepfe::chosen, this, &Kompositionsbereich::setEinheit);
    const std::array<std::pair<const char*, QString>, 3> heads{{{"Label5", QStringLiteral("Komponente")},
        {"Label3", QStringLiteral("Dichte [g/cm³]")}, {"Label4", QStringLiteral("Valenz")}}};
    for (std::size_t i = 0; i < heads.size(); ++i) {
        m_heads.at(i) = new Beschriftung(heads.at(i).second, this);
        m_heads.at(i)->setObjectName(QLatin1String(heads.at(i).first));
    }
    m_elemente = new QStandardItemModel(0, 1, this);
    for (int row = 0; row < MaxKomponenten; ++row) {
        m_zeilen.at(static_cast<std::size_t>(row)) = new Kompositionszeile(row, *m_elemente, this);
        connectRow(row);
    }
}

void Kompositionsbereich::addBefehle(Menue& menue)
{
    for (const auto& [text, name, step] : {std::tuple(QStringLiteral("Komponente &hinzufügen"), "mnuKom_0", 1),
             {QStringLiteral("Komponente e&ntfernen"), "mnuKom_1", -1}}) {
        menue.add(Menue::Abschnitt::Legierung,
            {.text = text, .name = name, .tun = [this, step = step] { stepAnzahl(step); }});
    }
    menue.add(Menue::Abschnitt::Legierung,
        {.text = QStringLiteral("&Anteile in Masse % eintippen"),
            .name = "mnuMasse",
            .tun = [this] { setEinheit(andere(eingabe().einheit())); },
            .gewaehlt = [this] { return eingabe().einheit() == Anteilseinheit::Masse; }});
    m_formelfeld->addKopien(*menue.addUntermenue(Menue::Abschnitt::Kopieren, QStringLiteral("Als &Formel kopieren")));
}

/// Each edit becomes one operation on the entered alloy.
void Kompositionsbereich::connectRow(int row)
{
    using Zeile = Kompositionszeile;
    const Zeile* const zeile = &at(row);
    connect(zeile, &Zeile::elementChosen, this, [this, row](const auto& key) { elementChosen(row, fromQt(key)); });
    connect(zeile, &Zeile::prozentEntered, this, [this, row](const QString& text) {
        taken(eingabe().setProzent(row, fromQt(text)), anteilsschritt(row));
        offerLegierung(row);
    });
    connect(zeile, &Zeile::prozentConfirmed, m_formelfeld, &Formelfeld::nimmAngebot);
    connect(zeile, &Zeile::dichteChosen, this, [this, row](const QString& wahl) {
        taken(eingabe().waehleDichte(row, fromQt(wahl)), schritt("Dichte von", row));
    });
    connect(zeile, &Zeile::dichteEntered, this, [this, row](const QString& text) {
        taken(eingabe().setDichte(row, fromQt(text)), schritt("Dichte von", row, "txtDichte"));
    });
    connect(zeile, &Zeile::valenzChosen, this,
        [this, row](int wahl) { valenzEdited(eingabe().waehleValenz(row, wahl), schritt("Valenz von", row)); });
    connect(zeile, &Zeile::valenzEntered, this, [this, row](const QString& text) {
        valenzEdited(eingabe().setValenz(row, fromQt(text)), schritt("Valenz von", row, "txtValenz"));
    });
    connect(zeile, &Zeile::valenzLeft, this, [this, row] { valenzLeft(row); });
    // What a person types must reach the element of the row they type in.
    connect(zeile, &Zeile::valueFocused, this, [this, row] { eingabe().nachschlagen(row); });
    connect(zeile, &Zeile::prozentLeft, this, [this, row] {
        if (!eingabe().istAusgleich(row))
            return;
        eingabe().gleicheAus(); // what was typed there must not pass for the at% in force
        taken({}, anteilsschritt(row));
    });
}

void Kompositionsbereich::layOut()
{
    auto* top = new QHBoxLayout;
    top->setSpacing(6);
    m_lblAnzahl->setAlignment(Qt::AlignCenter);
    top->addWidget(m_label1);
    top->addWidget(m_lblAnzahl);
    for (StyledButton* const button : m_cmdKom) {
        setZeichenknopf(button);
        top->addWidget(button);
    }
    top->addSpacing(12);
    top->addWidget(m_anteilskoepfe->summe(), 1);
    top->addWidget(m_dichteschalter);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4); // the toolkit drops the spacing of hidden rows, so what is below moves up
    grid->addWidget(m_heads[0], 0, 0, 1, 2);
    grid->addWidget(m_anteilskoepfe->kopf(Anteilseinheit::Atom), 0, 2);
    grid->addWidget(m_anteilskoepfe->kopf(Anteilseinheit::Masse), 0, 3);
    grid->addWidget(m_heads[1], 0, 4, 1, 2);
    grid->addWidget(m_heads[2], 0, 6, 1, 2);
    for (int row = 0; row < MaxKomponenten; ++row)
        at(row).layOut(*grid, row + 1);
    grid->setColumnStretch(1, 1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_formelfeld);
    column->addLayout(top);
    column->addLayout(grid);
    column->addWidget(m_dichteschalter->meldung());
}

void Kompositionsbereich::restoreCount()
{
    // Intended: the stored value is one less than the number of rows.
    setAnzahl(
        naechsteKomponentenzahl(gespeicherteKomponentenzahl(m_programm.settings().LoadSetting("Komponenten", "2")), 1));
}

void Kompositionsbereich::addElement(std::string_view symbol, int itemData)
{
    at(0).addElement(symbol, itemData);
    if (m_elemente->rowCount() > 1)
        return;
    for (Kompositionszeile* const zeile : m_zeilen) // the toolkit selects the first entry, start-up chooses
        zeile->waehleKeines();
}

std::string Kompositionsbereich::elementEntry(int position) const { return fromQt(at(0).elementEntry(position)); }

int Kompositionsbereich::findElementEntry(std::string_view text) const { return at(0).findElementEntry(text); }

void Kompositionsbereich::chooseElement(int row, int position)
{
    if (const std::string key = elementEntry(position); !key.empty())
        elementChosen(row, key);
}

void Kompositionsbereich::nenneElemente() { at(0).nenneElemente(m_programm.ElementCollection()); }

void Kompositionsbereich::focusFirstField() { at(0).focusProzent(); }

void Kompositionsbereich::gehZu(int row, Eingabeort ort) { at(row).gehZu(ort); }

void Kompositionsbereich::enterProzent(int row, int prozent)
{
    taken(eingabe().setProzent(row, textOfSingle(static_cast<float>(prozent))), schritt("at% von", row, "conLabel"));
}

void Kompositionsbereich::stepAnzahl(int step) { setAnzahl(naechsteKomponentenzahl(eingabe().anzahl(), step)); }

void Kompositionsbereich::setEinheit(Anteilseinheit einheit)
{
    if (einheit == eingabe().einheit())
        return;
    for (int row = 0; row + 1 < eingabe().anzahl(); ++row) {
        if (eingabe().zeile(row).prozent.fehler) { // nothing could be turned into the other unit
            zeige();
            return at(row).focusProzent();
        }
    }
    eingabe().setEinheit(einheit);
    emit einheitGeaendert();
    taken({}, {QStringLiteral("Anteile in %1").arg(toQt(einheitenname(einheit)))});
}

void Kompositionsbereich::setEingabe(const zerna::Eingabe& eingabe, const Schritt& schritt)
{
    const Aenderung aenderung = unterschied(this->eingabe(), eingabe);
    this->eingabe() = eingabe;
    zeigeDokument();
    emit geaendert(aenderung);
    emit geschehen(schritt);
}

void Kompositionsbereich::setAnzahl(int count)
{
    const Aenderung aenderung = eingabe().setAnzahl(count);
    speichereAnzahl();
    taken(aenderung, {QStringLiteral("Zahl der Komponenten")});
}

void Kompositionsbereich::speichereAnzahl()
{
    // Intended: one less than the number of rows is stored, see restoreCount.
    m_programm.settings().SaveSetting("Komponenten", std::to_string(eingabe().anzahl() - 1));
}

void Kompositionsbereich::speichereElement(int row, std::string_view key)
{
    m_programm.settings().SaveSetting("Element_" + std::to_string(row), key);
}

void Kompositionsbereich::elementChosen(int row, std::string_view key)
{
    Aenderung aenderung;
    {
        const Programm::Fuellung fuellung(m_programm); // nothing is computed while the row is refilled
        aenderung = eingabe().waehleElement(row, key);
        if (aenderung.element)
            speichereElement(row, key);
        zeige();
    }
    if (!aenderung.element)
        return;
    emit geaendert(aenderung);
    emit geschehen(schritt("Element", row, at(row).istElementBeimTippen() ? "cmbElement" : nullptr));
}

void Kompositionsbereich::setLegierung(const Legierungsformel& formel)
{
    const Anteilseinheit einheit = eingabe().einheit();
    Aenderung aenderung;
    {
        const Programm::Fuellung fuellung(m_programm); // nothing is computed while the rows are refilled
        aenderung = zerna::setLegierung(eingabe(), formel);
        speichereAnzahl();
        for (int row = 0; row < eingabe().anzahl(); ++row)
            speichereElement(row, eingabe().zeile(row).element->symbol());
        zeige();
    }
    taken(aenderung, {QStringLiteral("Legierung eintippen")});
    if (eingabe().einheit() != einheit)
        emit einheitGeaendert();
}

/// A formula in an at% field is no number, but may be meant for all rows.
void Kompositionsbereich::offerLegierung(int row)
{
    const Eingabefeld& prozent = eingabe().zeile(row).prozent;
    m_formelfeld->biete(prozent.fehler ? prozent.text : std::string());
}

void Kompositionsbereich::dichteartChosen(std::string_view wahl)
{
    taken(eingabe().waehleDichteart(wahl), {QStringLiteral("Dichte aller: %1").arg(toQt(wahl))});
    m_dichteschalter->zeigeOhneDichte(wahl, eingabe().ohneDichte(wahl));
}

void Kompositionsbereich::valenzEdited(const Aenderung& aenderung, const Schritt& schritt)
{
    m_gemeldet.clear();
    taken(aenderung, schritt);
}

/// Speaks of unknown functions when the formula stands, not between keys, and once of each.
void Kompositionsbereich::valenzLeft(int row)
{
    const Eingabefeld valenz = eingabe().zeile(row).valenz; // may change while a box is shown
    if (valenz.meldungen.empty() || valenz.text == std::exchange(m_gemeldet, valenz.text))
        return;
    for (auto meldung = valenz.meldungen.begin(); meldung != valenz.meldungen.end(); ++meldung) {
        if (std::find(valenz.meldungen.begin(), meldung, *meldung) == meldung)
            m_programm.boxes().show(Icon::None, Formelmeldungstitel, *meldung);
    }
}

/// Shows what an operation has made of the alloy and passes on what it has changed.
void Kompositionsbereich::taken(const Aenderung& aenderung, const Schritt& schritt)
{
    zeige();
    if (aenderung == Aenderung()) {
        emit befundGeaendert();
    } else {
        m_formelfeld->biete({}); // what is on offer is for the alloy before
        emit geaendert(aenderung);
    }
    emit geschehen(schritt);
}

/// The step that does something to a row, typing in one of its fields where that is named.
Schritt Kompositionsbereich::schritt(const char* was, int row, const char* feld)
{
    const auto& element = eingabe().zeile(row).element;
    const QString wovon = element ? toQt(element->symbol()) : QStringLiteral("Komponente %1").arg(row + 1);
    return {
        QStringLiteral("%1 %2").arg(QLatin1String(was), wovon), feld != nullptr ? numberedName(feld, row) : QString()};
}

Schritt Kompositionsbereich::anteilsschritt(int row)
{
    const bool isAtom = eingabe().einheit() == Anteilseinheit::Atom;
    return schritt(isAtom ? "at% von" : "Masse % von", row, isAtom ? "txtProzent" : "txtMasse");
}

void Kompositionsbereich::zeigeDokument()
{
    m_formelfeld->biete({});
    zeige();
    speichereAnzahl();
    for (int row = 0; row < MaxKomponenten; ++row) {
        if (const auto& element = eingabe().zeile(row).element)
            speichereElement(row, element->symbol());
        if (at(row).hatWertfokus())
            eingabe().nachschlagen(row); // typing goes on there
    }
}

void Kompositionsbereich::zeige()
{
    const std::vector<Befund> alle = befunde(eingabe());
    const std::array anteile{eingabe().anteile(Anteilseinheit::Atom), eingabe().anteile(Anteilseinheit::Masse)};
    for (Kompositionszeile* const zeile : m_zeilen)
        zeile->zeige(eingabe(), anteile, alle);
    m_anteilskoepfe->zeige(eingabe(), alle);
    m_dichteschalter->zeige(eingabe());
    m_lblAnzahl->setText(QString::number(eingabe().anzahl()));
}

} // namespace zerna
