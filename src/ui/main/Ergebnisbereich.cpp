#include "ui/main/Ergebnisbereich.h"

#include <QAction>
#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QScopeGuard>

#include <algorithm>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "programm/Exportspeicherung.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Wertanzeige.h"
#include "ui/controls/Wertfeld.h"
#include "ui/main/Kompositionsbereich.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Tabreihenfolge.h"

namespace zerna {

namespace {

/// The line beside which field `field` (0 to 2) stands.
constexpr std::array<int, 3> ZeileOfField{0, 1, 8};
constexpr int ValenzField = 0;
constexpr int DichteField = 1;
constexpr int Kf2Field = 2;

/// Label6 index of the caption of a line.
/// Intended: shifted by one against the line for the first ten, and line 10 has the first.
constexpr int captionIndex(int line)
{
    if (line < Friedelzeile)
        return line + 1;
    return line == Friedelzeile ? 0 : line;
}

constexpr int RightColumn = 3; // of the grid
constexpr int ErsteRechteZeile = 13;

QString numbered(const char* name, int index) { return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index); }

void copyToClipboard(const QString& text)
{
    if (QClipboard* const clipboard = QGuiApplication::clipboard()) {
        clipboard->clear();
        clipboard->setText(text);
    }
}

} // namespace

Ergebnisbereich::Ergebnisbereich(
    Programm& programm, SaveFileDialog& saveDialog, const Kompositionsbereich& komposition, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_saveDialog(saveDialog)
    , m_komposition(komposition)
{
    createControls();
    layOut();
    orderTabs();
}

void Ergebnisbereich::createControls()
{
    m_label6.resize(m_texte.size());
    m_lblMFE.resize(m_texte.size());
    for (const Groesse& zeile : ergebniszeilen())
        createLine(zeile);
    m_label7 = new QLabel(this);
    m_label7->setObjectName(QStringLiteral("Label7"));
    const std::array<QString, 2> hints{
        QStringLiteral("Nächstes Friedelminimum"), QStringLiteral("Voriges Friedelminimum")};
    const std::array<QString, 2> captions{QStringLiteral("▶"), QStringLiteral("◀")};
    for (int i = 0; i < 2; ++i) {
        const auto k = static_cast<std::size_t>(i);
        m_cmdKnopf2.at(k) = new StyledButton(captions.at(k), this);
        m_cmdKnopf2.at(k)->setObjectName(numbered("cmdKnopf2", i));
        m_cmdKnopf2.at(k)->setAccessibleName(hints.at(k));
        m_cmdKnopf2.at(k)->setToolTipText(hints.at(k));
        connect(m_cmdKnopf2.at(k), &StyledButton::clicked, this, [this, i] { stepFriedel(i == 0 ? 1 : -1); });
    }
    m_cmdKopieren = new StyledButton(QStringLiteral("&Kopieren"), this);
    m_cmdKopieren->setObjectName(QStringLiteral("cmdMFE_Kopieren"));
    m_cmdKopieren->setToolTipText(QStringLiteral("Alle Ergebnisse als Text in die Zwischenablage"));
    m_cmdSpeichern = new StyledButton(QStringLiteral("&Speichern"), this);
    m_cmdSpeichern->setObjectName(QStringLiteral("cmdMFE_Speichern"));
    m_cmdSpeichern->setToolTipText(QStringLiteral("Ergebnisse oder Friedelminima als Datei speichern"));
    connect(m_cmdKopieren, &StyledButton::clicked, this, &Ergebnisbereich::copyText);
    connect(m_cmdSpeichern, &StyledButton::clicked, this, &Ergebnisbereich::save);

    m_menu = new QMenu(QStringLiteral("right"), this);
    m_menu->setObjectName(QStringLiteral("mnuRight"));
    QAction* const copy = m_menu->addAction(QStringLiteral("Kopieren"));
    copy->setObjectName(QStringLiteral("mnuCopy"));
    connect(copy, &QAction::triggered, this,
        [this] { copyToClipboard(toQt(kopierteZahl(m_menuLine, fromQt(line(m_menuLine)->text())))); });
    connect(m_menu->addAction(QStringLiteral("Zahl kopieren")), &QAction::triggered, this, [this] {
        copyToClipboard(toQt(ganzeZahl(fromQt(shownValue(m_menuLine)), fromQt(line(m_menuLine)->einheit()))));
    });
    connect(m_menu->addAction(QStringLiteral("Zahl und Einheit kopieren")), &QAction::triggered, this,
        [this] { copyToClipboard(shownValue(m_menuLine)); });
}

void Ergebnisbereich::createLine(const Groesse& zeile)
{
    const auto k = static_cast<std::size_t>(zeile.zeile);
    m_label6.at(k) = new QLabel(toQt(zeile.beschriftung), this);
    m_label6.at(k)->setObjectName(numbered("Label6", captionIndex(zeile.zeile)));
    m_lblMFE.at(k) = new Wertanzeige(this);
    m_lblMFE.at(k)->setObjectName(numbered("lblMFE", zeile.zeile));
    m_lblMFE.at(k)->setAccessibleName(toQt(zeile.bezeichnung()));
    connect(m_lblMFE.at(k), &Wertanzeige::menuRequested, this,
        [this, index = zeile.zeile](const QPoint& position) { openMenu(index, position); });
    connect(m_lblMFE.at(k), &Wertanzeige::copyRequested, this,
        [this, index = zeile.zeile] { copyToClipboard(shownValue(index)); });
    if (!zeile.tippbar)
        return;
    const auto field = std::ranges::find(ZeileOfField, zeile.zeile) - ZeileOfField.begin();
    auto* const edit = new Wertfeld(this);
    edit->setObjectName(numbered("txtMFE", static_cast<int>(field)));
    edit->setAccessibleName(m_lblMFE.at(k)->accessibleName());
    edit->setHinweis(QStringLiteral("Wert eintippen, um das Modell ohne Zusammensetzung zu erkunden"));
    connect(edit, &Wertfeld::textChanged, this, [this, field] { fieldChanged(static_cast<int>(field)); });
    m_txtMFE.at(static_cast<std::size_t>(field)) = edit;
}

/// The averages and what follows from them on the left, the energies and the Friedel minima on the right.
void Ergebnisbereich::layOut()
{
    m_grid = new QGridLayout;
    m_grid->setHorizontalSpacing(6);
    m_grid->setVerticalSpacing(2);
    std::array<int, 2> rows{0, 0};
    for (const Groesse& zeile : ergebniszeilen()) {
        if (zeile.zeile == Friedelzeile)
            continue;
        const bool right = zeile.zeile >= ErsteRechteZeile;
        layOutLine(*m_grid, rows.at(right ? 1 : 0)++, right ? RightColumn : 0, zeile);
    }
    layOutFriedel(*m_grid, rows[1] + 1, RightColumn);
    measure();
    m_grid->setColumnStretch(1, 1);
    m_grid->setColumnMinimumWidth(2, 4);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (StyledButton* const button : {m_cmdKopieren, m_cmdSpeichern}) {
        button->setMinimumWidth(110);
        button->setFixedHeight(28);
        buttons->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(m_grid);
    column->addStretch();
    column->addLayout(buttons);
}

void Ergebnisbereich::layOutLine(QGridLayout& grid, int row, int column, const Groesse& zeile)
{
    const auto k = static_cast<std::size_t>(zeile.zeile);
    grid.addWidget(m_label6.at(k), row, column);
    if (!zeile.tippbar) {
        grid.addWidget(m_lblMFE.at(k), row, column + 1);
        return;
    }
    const auto field = static_cast<std::size_t>(std::ranges::find(ZeileOfField, zeile.zeile) - ZeileOfField.begin());
    Wertfeld* const edit = m_txtMFE.at(field);
    auto* pair = new QHBoxLayout;
    pair->setSpacing(4);
    edit->setAlignment(Qt::AlignRight);
    edit->setFixedHeight(24);
    m_label6.at(k)->setBuddy(edit);
    pair->addWidget(edit);
    pair->addWidget(m_lblMFE.at(k), 1);
    grid.addLayout(pair, row, column + 1);
}

void Ergebnisbereich::layOutFriedel(QGridLayout& grid, int row, int column)
{
    auto* box = new QHBoxLayout;
    box->setSpacing(4);
    for (StyledButton* const button : {m_cmdKnopf2[1], m_cmdKnopf2[0]}) {
        button->setFixedSize(28, 24);
        box->addWidget(button);
    }
    box->addWidget(m_label7);
    box->addStretch();
    grid.addWidget(m_label6.at(Friedelzeile), row, column);
    grid.addLayout(box, row, column + 1);
    grid.addWidget(line(Friedelzeile), row + 1, column + 1);
}

/// Down the left column, down the right one, then the buttons; a field comes before its unit.
void Ergebnisbereich::orderTabs()
{
    std::vector<QWidget*> order;
    for (const Groesse& zeile : ergebniszeilen()) {
        if (zeile.zeile == Friedelzeile)
            continue;
        const auto* const field = std::ranges::find(ZeileOfField, zeile.zeile);
        if (field != ZeileOfField.end())
            order.push_back(m_txtMFE.at(static_cast<std::size_t>(field - ZeileOfField.begin())));
        order.push_back(line(zeile.zeile));
    }
    order.insert(order.end(), {m_cmdKnopf2[1], m_cmdKnopf2[0], line(Friedelzeile), m_cmdKopieren, m_cmdSpeichern});
    setTabReihenfolge(order);
}

/// Widths that follow from the font: all numbers end, and all units begin, in the same columns.
void Ergebnisbereich::measure()
{
    const int numberWidth = fontMetrics().horizontalAdvance(QStringLiteral("-3,4561 E-11"));
    for (const Groesse& zeile : ergebniszeilen()) {
        const bool aligned = !zeile.tippbar && zeile.zeile != Friedelzeile;
        line(zeile.zeile)->setEinheit(toQt(zeile.einheit), aligned ? numberWidth : 0);
    }
    constexpr int FieldFrame = 10;
    for (Wertfeld* const edit : m_txtMFE)
        edit->setFixedWidth(numberWidth + FieldFrame);
    m_label7->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" n = 21 ")));
}

void Ergebnisbereich::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_grid != nullptr)
        measure();
}

/// The lines share the height, within reason.
void Ergebnisbereich::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    constexpr int Lines = 11;
    constexpr int Buttons = 40;
    const int height = std::clamp((this->height() - Buttons) / Lines, 25, 32) - m_grid->verticalSpacing();
    for (int row = 0; row < Lines; ++row)
        m_grid->setRowMinimumHeight(row, height);
}

void Ergebnisbereich::aktualisieren(bool readComposition)
{
    if (!m_programm.StartupDone())
        return;
    m_editable = false;
    const auto release = qScopeGuard([this] {
        m_editable = true;
        m_modus = Eingabemodus::Zusammensetzung; // the mode lasts for one update
    });
    try {
        update(readComposition);
    } catch (const Laufzeitfehler&) {
        // Stops silently: what the user typed is marked where it stands.
    }
}

bool Ergebnisbereich::readComposition()
{
    for (int row = 0; row < m_programm.Komponentenzahl(); ++row) {
        const std::string prozent = m_komposition.prozent(row);
        if (prozent.empty())
            return false;
        m_programm.Calc().Element_Add(row, m_komposition.element(row), singleFromText(prozent));
    }
    return true;
}

void Ergebnisbereich::update(bool fromRows)
{
    if (fromRows && !readComposition())
        return;
    m_texte = keineErgebnisse();
    if (showEditable())
        berechneErgebnisse(m_programm.Calc(), m_texte);
    showLines();
    m_friedelindex = 0;
    showFriedel();
}

/// Writes the fields that are not being typed into; false if one of those that are is empty.
bool Ergebnisbereich::showEditable()
{
    const clsCalc& calc = m_programm.Calc();
    const bool failed = istUnbekannt(calc.Valenz()); // the calculator then still has the 2kF of another alloy
    const auto show = [this](int field, float value) {
        Wertfeld& edit = *m_txtMFE.at(static_cast<std::size_t>(field));
        edit.setWert(toQt(FormatValue(value, "")).trimmed(), false);
        edit.setFehler({});
    };
    const auto isEmpty = [this](int field) { return m_txtMFE.at(static_cast<std::size_t>(field))->text().isEmpty(); };
    switch (m_modus) {
    case Eingabemodus::Zusammensetzung:
        show(DichteField, failed ? Unbekannt : orUnbekannt([&] { return calc.Teilchenzahldichte(); }));
        show(ValenzField, calc.Valenz());
        break;
    case Eingabemodus::ValenzOderDichte:
        if (isEmpty(DichteField) || isEmpty(ValenzField))
            return false;
        break;
    case Eingabemodus::Kf2:
        return !isEmpty(Kf2Field);
    }
    show(Kf2Field, failed ? Unbekannt : calc.Kf_2());
    return true;
}

void Ergebnisbereich::showLines()
{
    for (const Groesse& zeile : ergebniszeilen())
        line(zeile.zeile)->setText(toQt(m_texte.at(static_cast<std::size_t>(zeile.zeile)).text));
}

void Ergebnisbereich::fieldChanged(int field)
{
    if (!m_editable)
        return;
    Wertfeld& edit = *m_txtMFE.at(static_cast<std::size_t>(field));
    m_modus = field == Kf2Field ? Eingabemodus::Kf2 : Eingabemodus::ValenzOderDichte;
    edit.setFehler({});
    try {
        clsCalc& calc = m_programm.Calc();
        if (!edit.text().isEmpty()) {
            const float value = singleFromText(fromQt(edit.text()));
            if (field == ValenzField)
                calc.setValenz(value);
            else if (field == DichteField)
                calc.setTeilchenzahldichte(toSingle(value / 1e-27)); // 1/nm³ to 1/m³
            else
                calc.setKf_2(value);
        }
        aktualisieren(false);
    } catch (const Laufzeitfehler& error) {
        edit.setFehler(QStringLiteral("Keine gültige Zahl (%1)").arg(toQt(error.what())));
        m_modus = Eingabemodus::Zusammensetzung;
    }
}

void Ergebnisbereich::stepFriedel(int step)
{
    m_friedelindex += static_cast<float>(step);
    showFriedel();
}

void Ergebnisbereich::showFriedel()
{
    m_friedelindex = friedelindex(m_friedelindex);
    m_label7->setText(QStringLiteral("n = %1").arg(toQt(textOfSingle(m_friedelindex + 1))));
    const bool computed = !m_texte.at(Friedelzeile).text.empty();
    line(Friedelzeile)->clear();
    try {
        if (computed)
            line(Friedelzeile)->setText(toQt(friedelanzeige(m_programm.Calc(), m_friedelindex)));
    } catch (const Laufzeitfehler&) {
        // The line stays empty.
    }
}

void Ergebnisbereich::openMenu(int index, const QPoint& position)
{
    m_menuLine = index;
    m_menu->popup(position);
}

/// Value and unit of a line as one text; of an editable line the field's text and the unit.
QString Ergebnisbereich::shownValue(int index) const
{
    const auto* const field = std::ranges::find(ZeileOfField, index);
    if (field == ZeileOfField.end())
        return toQt(wertUndEinheit(fromQt(line(index)->text())));
    const QString number = m_txtMFE.at(static_cast<std::size_t>(field - ZeileOfField.begin()))->text();
    return number.isEmpty() ? QString() : number + QLatin1Char(' ') + line(index)->text();
}

std::vector<Komponentenzeile> Ergebnisbereich::zeilen() const
{
    std::vector<Komponentenzeile> zeilen;
    for (int row = 0; row < m_programm.Komponentenzahl(); ++row)
        zeilen.push_back(m_komposition.zeile(row));
    return zeilen;
}

void Ergebnisbereich::copyText()
{
    try {
        copyToClipboard(toQt(ergebnistext(m_programm.Calc(), zeilen(), m_texte)));
        showFriedel();
    } catch (const Laufzeitfehler&) {
        // Without a calculator there is nothing to copy.
    }
}

void Ergebnisbereich::save()
{
    int filterIndex = 1;
    const std::string name = ExportFileDialog(m_saveDialog, filterIndex, false, false);
    if (name.empty())
        return;
    try {
        const clsCalc& calc = m_programm.Calc();
        const std::string content = filterIndex == 1 ? ergebnisdatei(calc, zeilen(), m_texte) : friedeldatei(calc);
        saveExport(m_programm.boxes(), name, content);
        m_friedelindex = 0;
        showFriedel();
    } catch (const Laufzeitfehler& error) {
        showSaveFailure(m_programm.boxes(), name, error.what());
    }
}

} // namespace zerna
