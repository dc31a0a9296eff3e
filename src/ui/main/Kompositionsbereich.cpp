#include "ui/main/Kompositionsbereich.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr std::array<const char*, MaxKomponenten> AnfangsProzente{"50", "50", "0", "0", "0"};
constexpr int Zeilenhoehe = 26;
constexpr int Zeilenabstand = 4;

/// Why a text is no number; empty if it is one.
QString numberFault(const QString& text)
{
    try {
        singleFromText(fromQt(text));
        return {};
    } catch (const Laufzeitfehler& error) {
        return QStringLiteral("Keine gültige Zahl (%1)").arg(toQt(error.what()));
    }
}

QString named(const char* name, int row) { return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(row); }

template <class Widget>
Widget* make(QWidget* parent, const char* name, int row, const QString& accessibleName)
{
    auto* widget = new Widget(parent);
    widget->setObjectName(named(name, row));
    widget->setAccessibleName(QStringLiteral("%1, Komponente %2").arg(accessibleName).arg(row + 1));
    return widget;
}

} // namespace

std::array<QWidget*, 7> Kompositionsbereich::Zeile::widgets() const
{
    return {cmbElement, lblElement, txtProzent, cmdDichte, txtDichte, cmbValenz, txtValenz};
}

Kompositionsbereich::Kompositionsbereich(Programm& programm, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    createControls();
    layOut();
}

void Kompositionsbereich::createControls()
{
    m_label1 = new QLabel(QStringLiteral("Ko&mponenten:"), this);
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_lblAnzahl = new QLabel(this);
    m_lblAnzahl->setObjectName(QStringLiteral("lblAnzahl"));
    const std::array<QString, 2> captions{QStringLiteral("+"), QStringLiteral("−")};
    const std::array<QString, 2> hints{QStringLiteral("Komponente hinzufügen"), QStringLiteral("Komponente entfernen")};
    for (std::size_t i = 0; i < m_cmdKom.size(); ++i) {
        m_cmdKom.at(i) = new StyledButton(captions.at(i), this);
        m_cmdKom.at(i)->setObjectName(named("cmdKom", static_cast<int>(i)));
        m_cmdKom.at(i)->setAccessibleName(hints.at(i));
        m_cmdKom.at(i)->setToolTipText(hints.at(i));
    }
    m_label1->setBuddy(m_cmdKom[0]);
    connect(m_cmdKom[0], &StyledButton::clicked, this, [this] { changeCount(1); });
    connect(m_cmdKom[1], &StyledButton::clicked, this, [this] { changeCount(-1); });

    const std::array<std::pair<const char*, QString>, 4> heads{
        {{"Label5", QStringLiteral("Komponente")}, {"Label2", QStringLiteral("at %")},
            {"Label3", QStringLiteral("Dichte [g/cm³]")}, {"Label4", QStringLiteral("Valenz")}}};
    for (std::size_t i = 0; i < heads.size(); ++i) {
        m_heads.at(i) = new QLabel(heads.at(i).second, this);
        m_heads.at(i)->setObjectName(QLatin1String(heads.at(i).first));
    }
    for (int row = 0; row < MaxKomponenten; ++row) {
        createRow(row);
        connectRow(row);
    }
}

void Kompositionsbereich::createRow(int row)
{
    Zeile& z = at(row);
    z.cmbElement = make<QComboBox>(this, "cmbElement", row, QStringLiteral("Element"));
    z.lblElement = make<QLabel>(this, "lblElement", row, QStringLiteral("Elementname"));
    z.txtProzent = make<Wertfeld>(this, "txtProzent", row, QStringLiteral("Atomprozent"));
    z.cmdDichte = make<QComboBox>(this, "cmdDichte", row, QStringLiteral("Auswahl der Dichte"));
    z.txtDichte = make<Wertfeld>(this, "txtDichte", row, QStringLiteral("Dichte in Gramm je Kubikzentimeter"));
    z.cmbValenz = make<QComboBox>(this, "cmbValenz", row, QStringLiteral("Auswahl der Valenz"));
    z.txtValenz = make<Wertfeld>(this, "txtValenz", row, QStringLiteral("Valenz"));
    z.txtProzent->setWert(QLatin1String(AnfangsProzente.at(static_cast<std::size_t>(row))), false);
    z.txtDichte->setEnabled(false);
    z.txtValenz->setEnabled(false);
    for (QWidget* const widget : z.widgets())
        widget->hide();
}

void Kompositionsbereich::connectRow(int row)
{
    const Zeile& z = at(row);
    connect(z.cmbElement, &QComboBox::activated, this, [this, row] { elementChosen(row); });
    connect(z.cmdDichte, &QComboBox::activated, this, [this, row] { dichteChosen(row); });
    connect(z.cmbValenz, &QComboBox::activated, this, [this, row] { valenzChosen(row); });
    connect(z.txtProzent, &Wertfeld::textChanged, this, [this, row] { prozentChanged(row); });
    connect(z.txtDichte, &Wertfeld::textChanged, this, [this, row] { dichteChanged(row); });
    connect(z.txtValenz, &Wertfeld::textChanged, this, [this, row] { valenzChanged(row); });
    // What a person types must reach the element of the row they type in.
    connect(z.txtDichte, &Wertfeld::focusEntered, this, [this, row] { makeCurrent(row); });
    connect(z.txtValenz, &Wertfeld::focusEntered, this, [this, row] { makeCurrent(row); });
    connect(z.txtProzent, &Wertfeld::focusLeft, this, [this, row] {
        if (isBalanceRow(row)) // what was typed there must not pass for the at% in force
            balance();
    });
}

void Kompositionsbereich::layOut()
{
    auto* top = new QHBoxLayout;
    top->setSpacing(6);
    m_lblAnzahl->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00")));
    m_lblAnzahl->setAlignment(Qt::AlignCenter);
    top->addWidget(m_label1);
    top->addWidget(m_lblAnzahl);
    for (StyledButton* const button : m_cmdKom) {
        button->setFixedSize(30, 26);
        top->addWidget(button);
    }
    top->addStretch();

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(0); // the toolkit drops the spacing of hidden rows
    grid->addWidget(m_heads[0], 0, 0, 1, 2);
    grid->addWidget(m_heads[1], 0, 2);
    grid->addWidget(m_heads[2], 0, 3, 1, 2);
    grid->addWidget(m_heads[3], 0, 5, 1, 2);
    for (int row = 0; row < MaxKomponenten; ++row)
        layOutRow(*grid, row);
    grid->setColumnStretch(1, 1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(top);
    column->addLayout(grid);
}

void Kompositionsbereich::layOutRow(QGridLayout& grid, int row)
{
    constexpr std::array<int, 7> Breiten{62, 0, 66, 98, 76, 106, 90};
    const auto widgets = at(row).widgets();
    for (std::size_t column = 0; column < widgets.size(); ++column) {
        if (Breiten.at(column) > 0)
            widgets.at(column)->setFixedWidth(Breiten.at(column));
        widgets.at(column)->setFixedHeight(Zeilenhoehe);
        grid.addWidget(widgets.at(column), row + 1, static_cast<int>(column));
    }
    // A long name must not push the columns; it is cut and the tool tip has it whole.
    at(row).lblElement->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid.setRowMinimumHeight(row + 1, Zeilenhoehe + Zeilenabstand);
}

void Kompositionsbereich::restoreCount()
{
    m_programm.setKomponentenzahl(gespeicherteKomponentenzahl(m_programm.settings().LoadSetting("Komponenten", "2")));
    // Intended: the stored value is one less than the number of rows; this adds it again.
    changeCount(1);
}

void Kompositionsbereich::addElement(int list, std::string_view symbol, int itemData)
{
    at(list).cmbElement->addItem(toQt(symbol), itemData);
    if (at(list).cmbElement->count() == 1)
        at(list).cmbElement->setCurrentIndex(-1); // the toolkit selects the first entry, start-up chooses
}

std::string Kompositionsbereich::elementEntry(int list, int position) const
{
    return fromQt(at(list).cmbElement->itemText(position));
}

int Kompositionsbereich::findElementEntry(int list, std::string_view text) const
{
    return at(list).cmbElement->findText(toQt(text), Qt::MatchFixedString | Qt::MatchCaseSensitive);
}

void Kompositionsbereich::chooseElement(int row, int position)
{
    if (position < 0 || position >= at(row).cmbElement->count())
        return;
    at(row).cmbElement->setCurrentIndex(position);
    elementChosen(row);
}

void Kompositionsbereich::stepProzent(int row, int prozent)
{
    at(row).txtProzent->setText(QString::fromStdString(textOfSingle(static_cast<float>(prozent))));
}

std::string Kompositionsbereich::element(int row) const { return fromQt(at(row).cmbElement->currentText()); }

std::string Kompositionsbereich::elementName(int row) const { return fromQt(at(row).lblElement->text()); }

std::string Kompositionsbereich::prozent(int row) const { return fromQt(at(row).txtProzent->text()); }

std::string Kompositionsbereich::dichte(int row) const { return fromQt(at(row).txtDichte->text()); }

Diagrammzeile Kompositionsbereich::diagrammzeile(int row) const
{
    const Wertfeld& valenz = *at(row).txtValenz;
    return {elementName(row), dichte(row), valenz.istWertUnbekannt(), valenz.fehler().isEmpty()};
}

Komponentenzeile Kompositionsbereich::zeile(int row) const
{
    const Zeile& z = at(row);
    return {m_symbole.at(static_cast<std::size_t>(row)), prozent(row), fromQt(z.cmdDichte->currentText()), dichte(row),
        fromQt(z.cmbValenz->currentText()), fromQt(z.txtValenz->text())};
}

void Kompositionsbereich::changeCount(int step)
{
    const int count = naechsteKomponentenzahl(m_programm.Komponentenzahl(), step);
    m_programm.setKomponentenzahl(count);
    // Intended: one less than the number of rows is stored, see restoreCount.
    m_programm.settings().SaveSetting("Komponenten", std::to_string(count - 1));
    for (int row = 0; row < MaxKomponenten; ++row) {
        for (QWidget* const widget : at(row).widgets())
            widget->setVisible(row < count);
        const bool isBalance = row == count - 1;
        at(row).txtProzent->setHinweis(isBalance ? QStringLiteral("Rest auf 100 at%") : QString());
    }
    balance();
    emit componentsChanged();
    emit firstDiagramTypeRequested();
    emit resultsRequested();
    emit weighingRequested();
    m_lblAnzahl->setText(QString::number(count));
}

/// Writes what is missing to 100 at% into the balance row; false, and nothing written, at an empty text or one that is
/// no number.
bool Kompositionsbereich::balance()
{
    const int last = m_programm.Komponentenzahl() - 1;
    std::array<std::string, MaxKomponenten> prozente;
    for (int row = 0; row < last; ++row)
        prozente.at(static_cast<std::size_t>(row)) = prozent(row);
    try {
        const auto rest = ausgleichstext({prozente.data(), static_cast<std::size_t>(last)});
        if (!rest)
            return false;
        at(last).txtProzent->setWert(toQt(*rest), false);
        at(last).txtProzent->setFehler({});
        return true;
    } catch (const Laufzeitfehler&) {
        return false; // the field with that text is marked
    }
}

void Kompositionsbereich::elementChosen(int row)
{
    m_programm.setStartupDone(false); // nothing is recomputed while the row is refilled
    try {
        const auto& element = m_programm.ElementCollection().Item(this->element(row));
        m_programm.setCurrentElement(element);
        m_symbole.at(static_cast<std::size_t>(row)) = element->symbol();
        at(row).lblElement->setText(toQt(element->Name()));
        at(row).lblElement->setToolTip(toQt(element->Name()));
        m_programm.settings().SaveSetting("Element_" + std::to_string(row), this->element(row));
        fillChoices(row);
    } catch (const Laufzeitfehler&) {
        // An entry without a record leaves the row as it is.
    }
    emit componentsChanged();
    m_programm.setStartupDone(true);
    emit firstDiagramComponentRequested();
    emit resultsRequested();
    emit weighingRequested();
    emit diagramRequested();
}

void Kompositionsbereich::fillChoices(int row)
{
    const clsElement& element = *m_programm.CurrentElement();
    QComboBox& dichten = *at(row).cmdDichte;
    dichten.clear();
    for (const std::string_view choice : dichteauswahl(element))
        dichten.addItem(toQt(choice));
    dichteChosen(row);
    QComboBox& valenzen = *at(row).cmbValenz;
    valenzen.clear();
    for (const Valenzeintrag& choice : valenzauswahl(element))
        valenzen.addItem(toQt(choice.text), choice.code);
    valenzChosen(row);
}

/// Makes the row's element the current one; nothing if the row has none.
void Kompositionsbereich::makeCurrent(int row)
{
    if (auto element = m_programm.ElementCollection().find(this->element(row)))
        m_programm.setCurrentElement(std::move(element));
}

void Kompositionsbereich::dichteChosen(int row)
{
    makeCurrent(row);
    if (!m_programm.CurrentElement())
        return;
    const std::string choice = fromQt(at(row).cmdDichte->currentText());
    const float dichte = dichteFor(*m_programm.CurrentElement(), choice);
    at(row).txtDichte->setWert(toQt(feldtext(dichte)), istUnbekannt(dichte));
    at(row).txtDichte->setEnabled(choice == AndereWahl);
    dichteChanged(row);
}

void Kompositionsbereich::valenzChosen(int row)
{
    makeCurrent(row);
    if (!m_programm.CurrentElement())
        return;
    const int code = at(row).cmbValenz->currentData().toInt();
    const float valenz = valenzFor(*m_programm.CurrentElement(), code);
    at(row).txtValenz->setWert(toQt(feldtext(valenz)), istUnbekannt(valenz));
    at(row).txtValenz->setEnabled(code == ValenzAndere);
    valenzChanged(row);
}

void Kompositionsbereich::prozentChanged(int row)
{
    const QString text = at(row).txtProzent->text();
    at(row).txtProzent->setFehler(text.isEmpty() ? QString() : numberFault(text));
    if (isBalanceRow(row) || !balance())
        return;
    emit resultsRequested();
    emit weighingRequested();
    emit diagramRequested();
}

void Kompositionsbereich::dichteChanged(int row)
{
    Wertfeld& field = *at(row).txtDichte;
    field.setFehler(numberFault(field.text()));
    if (field.fehler().isEmpty() && m_programm.CurrentElement())
        m_programm.CurrentElement()->setDichte(singleFromText(fromQt(field.text())));
    mirror(row);
    emit resultsRequested();
    emit densityDiagramRequested();
}

void Kompositionsbereich::valenzChanged(int row)
{
    m_programm.beginEdit();
    Wertfeld& field = *at(row).txtValenz;
    if (m_programm.CurrentElement())
        m_programm.CurrentElement()->setValenz_Temp(fromQt(field.text()));
    judgeValenz(field);
    mirror(row);
    emit resultsRequested();
    emit diagramRequested();
}

/// Shows what the field's formula comes to, or why it is none.
void Kompositionsbereich::judgeValenz(Wertfeld& field)
{
    const std::string text = fromQt(field.text());
    const std::string value = m_programm.Parser().Parse(text);
    const auto& error = m_programm.Parser().LastError();
    const bool hexadecimal = value.starts_with("0x"); // a form that the calculator cannot take
    QString fault;
    if (error)
        fault = QStringLiteral("%1 (Zeichen %2)").arg(toQt(error->Grund)).arg(error->Stelle);
    else if (hexadecimal)
        fault = QStringLiteral("Hexadezimalzahl als Valenz (%1)").arg(toQt(value));
    field.setEcho(
        fault.isEmpty() && !text.empty() && istFormel(text) ? QStringLiteral("= %1").arg(toQt(value)) : QString());
    field.setFehler(fault);
}

/// Rows of the same element share one density and one valence: all show what this row shows.
void Kompositionsbereich::mirror(int row)
{
    const auto copyList = [](const QComboBox& from, QComboBox& to) {
        const QSignalBlocker blocker(to);
        to.setCurrentIndex(from.currentIndex());
    };
    const auto copyField = [](const Wertfeld& from, Wertfeld& to) {
        to.setWert(from.text(), from.istWertUnbekannt());
        to.setEnabled(from.isEnabled());
        to.setEcho(from.echo());
        to.setFehler(from.fehler());
    };
    for (int other = 0; other < MaxKomponenten; ++other) {
        const bool same = element(other) == element(row) && at(other).cmdDichte->count() == at(row).cmdDichte->count()
            && at(other).cmbValenz->count() == at(row).cmbValenz->count();
        if (other == row || !same)
            continue;
        copyList(*at(row).cmdDichte, *at(other).cmdDichte);
        copyField(*at(row).txtDichte, *at(other).txtDichte);
        copyList(*at(row).cmbValenz, *at(other).cmbValenz);
        copyField(*at(row).txtValenz, *at(other).txtValenz);
    }
}

} // namespace zerna
