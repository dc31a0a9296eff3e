#include "ui/composition/Kompositionszeile.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

#include "core/Zahlentext.h"
#include "model/rechnung/Herkunft.h"
#include "ui/controls/Elementliste.h"
#include "ui/controls/Festliste.h"
#include "ui/controls/Kurzlabel.h"
#include "ui/controls/Masse.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"

namespace zerna {

namespace {

template <class Widget>
Widget* make(QWidget* panel, const char* name, int row, const QString& accessibleName)
{
    auto* widget = new Widget(panel);
    widget->setObjectName(numberedName(name, row));
    widget->setAccessibleName(QStringLiteral("%1, Komponente %2").arg(accessibleName).arg(row + 1));
    if (qobject_cast<QComboBox*>(widget) != nullptr) // of which some platforms read the chosen entry as its name
        widget->setAccessibleDescription(widget->accessibleName());
    widget->hide();
    return widget;
}

/// A part with digits enough to go by; the tool tip has all.
QString kurzerAnteil(float wert)
{
    constexpr int Digits = 4;
    const float amount = std::abs(wert);
    const int fewer = amount < 0.1F ? 2 : 1; // so many leading zeros take room
    return toQt(textWithDigits(wert, amount < 1 ? Digits - fewer : Digits));
}

/// Fills a list, unless it has these entries already: most elements have the same ones.
void setChoices(QComboBox& list, const std::vector<std::pair<QString, QVariant>>& choices)
{
    bool isSame = list.count() == std::ssize(choices);
    for (int i = 0; isSame && i < list.count(); ++i)
        isSame = std::pair(list.itemText(i), list.itemData(i)) == choices[static_cast<std::size_t>(i)];
    if (isSame)
        return;
    list.clear();
    for (const auto& [text, data] : choices)
        list.addItem(text, data);
}

/// Shows an entered text.
void write(Wertfeld& feld, const Eingabefeld& eingabe)
{
    if (feld.text() != toQt(eingabe.text))
        feld.setWert(toQt(eingabe.text), eingabe.istUnbekannterWert());
    feld.setEcho(eingabe.echo.empty() ? QString() : QStringLiteral("= %1").arg(toQt(eingabe.echo)));
}

} // namespace

Kompositionszeile::Kompositionszeile(int row, QAbstractItemModel& elemente, QWidget* panel)
    : QObject(panel)
    , m_row(row)
    , m_cmbElement(make<Elementliste>(panel, "cmbElement", row, QStringLiteral("Element")))
    , m_lblElement(make<Kurzlabel>(panel, "lblElement", row, QStringLiteral("Elementname")))
    , m_txtProzent(make<Wertfeld>(panel, "txtProzent", row, QStringLiteral("Atomprozent")))
    , m_txtMasse(make<Wertfeld>(panel, "txtMasse", row, QStringLiteral("Massenprozent")))
    , m_cmdDichte(make<Festliste>(panel, "cmdDichte", row, QStringLiteral("Auswahl der Dichte")))
    , m_txtDichte(make<Wertfeld>(panel, "txtDichte", row, QStringLiteral("Dichte in Gramm je Kubikzentimeter")))
    , m_cmbValenz(make<Festliste>(panel, "cmbValenz", row, QStringLiteral("Auswahl der Valenz")))
    , m_txtValenz(make<Wertfeld>(panel, "txtValenz", row, QStringLiteral("Valenz")))
{
    m_cmbElement->setModel(&elemente);
    connectControls();
}

std::array<QWidget*, 8> Kompositionszeile::widgets() const
{
    return {m_cmbElement, m_lblElement, m_txtProzent, m_txtMasse, m_cmdDichte, m_txtDichte, m_cmbValenz, m_txtValenz};
}

void Kompositionszeile::connectControls()
{
    connect(m_cmbElement, &Elementliste::textActivated, this, &Kompositionszeile::elementChosen);
    connect(m_cmdDichte, &QComboBox::textActivated, this, &Kompositionszeile::dichteChosen);
    connect(m_cmbValenz, &QComboBox::activated, this,
        [this](int position) { emit valenzChosen(m_cmbValenz->itemData(position).toInt()); });
    for (const Wertfeld* const anteil : {m_txtProzent, m_txtMasse}) {
        connect(anteil, &Wertfeld::textChanged, this, &Kompositionszeile::prozentEntered);
        connect(anteil, &Wertfeld::returnPressed, this, &Kompositionszeile::prozentConfirmed);
        connect(anteil, &Wertfeld::focusLeft, this, &Kompositionszeile::prozentLeft);
    }
    connect(m_txtDichte, &Wertfeld::textChanged, this, &Kompositionszeile::dichteEntered);
    connect(m_txtValenz, &Wertfeld::textChanged, this, &Kompositionszeile::valenzEntered);
    connect(m_txtDichte, &Wertfeld::focusEntered, this, &Kompositionszeile::valueFocused);
    connect(m_txtValenz, &Wertfeld::focusEntered, this, &Kompositionszeile::valueFocused);
    connect(m_txtValenz, &Wertfeld::verlassen, this, &Kompositionszeile::valenzLeft);
}

void Kompositionszeile::layOut(QGridLayout& grid, int gridRow)
{
    const auto controls = widgets();
    for (std::size_t column = 0; column < controls.size(); ++column)
        grid.addWidget(controls.at(column), gridRow, static_cast<int>(column));
    // A long name must not push the columns; it is cut and the tool tip has it whole.
    m_lblElement->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (QWidget* const widget : widgets())
        folgeSchrift(widget, [this, widget] { measure(*widget); });
}

/// What a control has room for: the longest entries and usual numbers; a longer text scrolls in its field.
QString Kompositionszeile::widest(const QWidget* widget) const
{
    const std::array<std::pair<const QWidget*, QString>, 8> texts{
        {{m_cmbElement, QStringLiteral("Mm")}, {m_lblElement, QStringLiteral("Aluminium")},
            {&typed(), QStringLiteral("33,33333")}, {&computed(), QStringLiteral("-99,99")},
            {m_cmdDichte, QStringLiteral("<andere>")}, {m_txtDichte, QStringLiteral("22,5870")},
            {m_cmbValenz, QStringLiteral("d-Elektronen")}, {m_txtValenz, QStringLiteral("<unbekannt>")}}};
    return std::ranges::find(texts, widget, &std::pair<const QWidget*, QString>::first)->second;
}

void Kompositionszeile::measure(QWidget& widget)
{
    const QString text = widest(&widget);
    widget.setFixedHeight(feldhoehe(widget));
    if (const auto* const field = qobject_cast<QLineEdit*>(&widget))
        widget.setFixedWidth(feldbreite(*field, text));
    else if (const auto* const list = qobject_cast<QComboBox*>(&widget))
        widget.setFixedWidth(listenbreite(*list, text));
    else
        widget.setMinimumWidth(widget.fontMetrics().horizontalAdvance(text));
}

void Kompositionszeile::addElement(std::string_view symbol, int itemData)
{
    m_cmbElement->addItem(toQt(symbol), itemData);
}

void Kompositionszeile::waehleKeines() { m_cmbElement->setCurrentIndex(-1); }

QString Kompositionszeile::elementEntry(int position) const { return m_cmbElement->itemText(position); }

int Kompositionszeile::findElementEntry(std::string_view text) const
{
    return m_cmbElement->findText(toQt(text), Qt::MatchFixedString | Qt::MatchCaseSensitive);
}

void Kompositionszeile::nenneElemente(const ElementCollection& elements)
{
    const QSignalBlocker blocker(m_cmbElement->model()); // no list shows names while it is closed
    for (int position = 0; position < m_cmbElement->count(); ++position) {
        if (const auto element = elements.find(fromQt(m_cmbElement->itemText(position))))
            m_cmbElement->setName(position, toQt(element->Name()));
    }
}

bool Kompositionszeile::istElementBeimTippen() const { return m_cmbElement->istBeimTippen(); }

bool Kompositionszeile::hatWertfokus() const { return m_txtDichte->hasFocus() || m_txtValenz->hasFocus(); }

void Kompositionszeile::focusProzent()
{
    typed().setFocus(Qt::TabFocusReason);
    typed().selectAll(); // also while the window is not active yet
}

void Kompositionszeile::zeige(
    const Eingabe& eingabe, const std::array<std::vector<Eingabefeld>, 2>& anteile, std::span<const Befund> befunde)
{
    const Eingabe::Zeile& zeile = eingabe.zeile(m_row);
    for (QWidget* const widget : widgets())
        widget->setVisible(m_row < eingabe.anzahl());
    showHerkunft(zeile);
    if (zeile.element != m_element)
        fillChoices(zeile.element);
    m_cmdDichte->setCurrentIndex(m_cmdDichte->findText(toQt(zeile.dichtewahl)));
    m_cmbValenz->setCurrentIndex(m_cmbValenz->findData(zeile.valenzwahl));
    zeigeAnteile(eingabe, anteile);
    write(*m_txtDichte, zeile.dichte);
    m_txtDichte->setEnabled(zeile.dichtewahl == AndereWahl);
    write(*m_txtValenz, zeile.valenz);
    m_txtValenz->setEnabled(zeile.element && zeile.valenzwahl == ValenzAndere);
    mark(eingabe, befunde);
}

/// One of the two columns is typed, the other one follows.
void Kompositionszeile::zeigeAnteile(const Eingabe& eingabe, const std::array<std::vector<Eingabefeld>, 2>& anteile)
{
    // Also in a window that is not active at the moment.
    const bool movesFocus = m_einheit != eingabe.einheit() && typed().window()->focusWidget() == &typed();
    if (m_einheit != eingabe.einheit()) {
        m_einheit = eingabe.einheit();
        measure(typed());
        measure(computed());
        computed().setFehler({});
        computed().setBedenken({});
    }
    typed().setReadOnly(false);
    typed().setFocusPolicy(Qt::StrongFocus);
    if (movesFocus)
        typed().setFocus(Qt::OtherFocusReason);
    computed().setReadOnly(true);
    computed().setFocusPolicy(Qt::NoFocus);
    computed().setBerechnet(true);
    typed().setBerechnet(eingabe.istAusgleich(m_row));
    typed().setHinweis({});
    const auto row = static_cast<std::size_t>(m_row);
    if (m_row >= eingabe.anzahl())
        return write(typed(), eingabe.zeile(m_row).prozent);
    const QString einheit = toQt(einheitenname(m_einheit));
    if (eingabe.istAusgleich(m_row))
        typed().setHinweis(QStringLiteral("Rest auf 100 %1").arg(einheit));
    write(typed(), anteile.at(static_cast<std::size_t>(m_einheit))[row]);
    if (movesFocus)
        typed().selectAll();
    const Eingabefeld& other = anteile.at(static_cast<std::size_t>(andere(m_einheit)))[row];
    if (const QString kurz = other.fehler ? QString() : kurzerAnteil(other.wert); computed().text() != kurz)
        computed().setWert(kurz, false);
    const QString full = toQt(other.text + " " + std::string(einheitenname(andere(m_einheit))));
    computed().setHinweis(other.fehler ? toQt(other.fehler->text()) : full);
}

void Kompositionszeile::mark(const Eingabe& eingabe, std::span<const Befund> befunde)
{
    const auto textOf = [&](Eingabeort ort, Schwere schwere) {
        const auto found = std::ranges::find_if(befunde, [&](const Befund& befund) {
            return befund.zeile == m_row && befund.ort == ort && befund.schwere == schwere;
        });
        return m_row < eingabe.anzahl() && found != befunde.end() ? toQt(found->text) : QString();
    };
    for (const auto& [feld, ort] : {std::pair(&typed(), Eingabeort::Prozent), {m_txtDichte, Eingabeort::Dichte},
             {m_txtValenz, Eingabeort::Valenz}}) {
        feld->setFehler(textOf(ort, Schwere::Fehler));
        feld->setBedenken(textOf(ort, Schwere::Bedenken));
    }
}

void Kompositionszeile::gehZu(Eingabeort ort)
{
    const auto firstEnabled = [](QWidget* feld, QWidget* liste) { return feld->isEnabled() ? feld : liste; };
    QWidget* target = m_cmbElement;
    if (ort == Eingabeort::Prozent)
        target = &typed();
    else if (ort == Eingabeort::Dichte)
        target = firstEnabled(m_txtDichte, m_cmdDichte);
    else if (ort == Eingabeort::Valenz)
        target = firstEnabled(m_txtValenz, m_cmbValenz);
    target->setFocus(Qt::OtherFocusReason);
    if (auto* const feld = qobject_cast<Wertfeld*>(target))
        feld->selectAll();
}

/// Looked up only when another value has been chosen.
void Kompositionszeile::showHerkunft(const Eingabe::Zeile& zeile)
{
    const bool isSame =
        zeile.element == m_element && zeile.dichtewahl == m_dichtewahl && zeile.valenzwahl == m_valenzwahl;
    if (isSame || !zeile.element)
        return;
    m_dichtewahl = zeile.dichtewahl;
    m_valenzwahl = zeile.valenzwahl;
    m_txtDichte->setHinweis(toQt(dichteherkunft(*zeile.element, m_dichtewahl)));
    m_txtValenz->setHinweis(toQt(valenzherkunft(*zeile.element, m_valenzwahl)));
    m_cmdDichte->setToolTip(toQt(dichteherkunft(*zeile.element, m_dichtewahl)));
    m_cmbValenz->setToolTip(toQt(valenzherkunft(*zeile.element, m_valenzwahl)));
}

void Kompositionszeile::fillChoices(const std::shared_ptr<clsElement>& element)
{
    m_element = element;
    m_cmbElement->setCurrentIndex(element ? findElementEntry(element->symbol()) : -1);
    m_lblElement->setText(element ? toQt(element->Name()) : QString());
    m_lblElement->setToolTip(m_lblElement->text());
    std::vector<std::pair<QString, QVariant>> dichten;
    std::vector<std::pair<QString, QVariant>> valenzen;
    if (element) {
        for (const std::string_view choice : dichteauswahl(*element))
            dichten.emplace_back(toQt(choice), QVariant());
        for (const Valenzeintrag& choice : valenzauswahl(*element))
            valenzen.emplace_back(toQt(choice.text), choice.code);
    }
    setChoices(*m_cmdDichte, dichten);
    setChoices(*m_cmbValenz, valenzen);
}

} // namespace zerna
