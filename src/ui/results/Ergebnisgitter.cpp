#include "ui/results/Ergebnisgitter.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include <algorithm>

#include "model/rechnung/Lehrbuch.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Beschriftung.h"
#include "ui/controls/Fokusgruppe.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Masse.h"
#include "ui/controls/Wertanzeige.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"

namespace zerna {

namespace {

/// Label6 index of the caption of a line.
/// Intended: shifted by one against the line for the first ten, and line 10 has the first.
constexpr int captionIndex(int line)
{
    if (line < Friedelzeile)
        return line + 1;
    return line == Friedelzeile ? 0 : line;
}

constexpr int RightColumn = 3; // of the grid
constexpr int FirstRightLine = 13; // the averages and what follows from them on the left, the energies on the right

/// A quiet arrow in the colour of texts.
QIcon backIcon(const QWidget& widget)
{
    constexpr int Size = 16;
    QPixmap pixmap(QSize(Size, Size) * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(widget.palette().color(QPalette::Text));
    painter.setFont(widget.font());
    painter.drawText(QRect(0, 0, Size, Size), Qt::AlignCenter, QStringLiteral("↶"));
    return {pixmap};
}

bool isOnTheRight(const Groesse& zeile) { return zeile.zeile >= FirstRightLine; }

} // namespace

Ergebnisgitter::Ergebnisgitter(QWidget* parent)
    : QWidget(parent)
{
    const std::size_t positions = keineErgebnisse().size();
    m_beschriftungen.resize(positions);
    m_anzeigen.resize(positions);
    m_feldOfZeile.resize(positions);
    for (const Groesse& zeile : ergebniszeilen()) {
        createLine(zeile);
        if (zeile.tippbar)
            createField(zeile);
    }
    createFriedel();
    layOut();
    groupFocus();
}

void Ergebnisgitter::createLine(const Groesse& zeile)
{
    const auto k = static_cast<std::size_t>(zeile.zeile);
    m_beschriftungen.at(k) = new Beschriftung(toQt(zeile.beschriftung), this);
    m_beschriftungen.at(k)->setObjectName(numberedName("Label6", captionIndex(zeile.zeile)));
    auto* const line = new Wertanzeige(this);
    line->setObjectName(numberedName("lblMFE", zeile.zeile));
    line->setAccessibleName(
        toQt(zeile.bezeichnung()) + (zeile.tippbar ? QStringLiteral(", Einheit") : QString())); // beside a field
    connect(line, &Wertanzeige::menuRequested, this,
        [this, number = zeile.zeile](const QPoint& position) { emit menuRequested(number, position); });
    connect(line, &Wertanzeige::copyRequested, this, [this, number = zeile.zeile] { emit copyRequested(number); });
    if (abweichungImErgebnis(zeile.zeile) != nullptr)
        line->setMarke(QStringLiteral("weicht vom Lehrbuch ab"));
    connect(line, &Wertanzeige::hintRequested, this,
        [this, number = zeile.zeile](const QPoint& position) { emit hintRequested(number, position); });
    connect(line, &Wertanzeige::detailsRequested, this, [this, line, number = zeile.zeile] {
        emit detailsRequested(number, {line->mapToGlobal(QPoint()), line->size()});
    });
    m_anzeigen.at(k) = line;
}

void Ergebnisgitter::createField(const Groesse& zeile)
{
    const auto feld = static_cast<Feld>(std::ranges::count(m_feldOfZeile, true, [](auto* f) { return f != nullptr; }));
    auto* const edit = new Wertfeld(this);
    edit->setObjectName(numberedName("txtMFE", feld));
    edit->setAccessibleName(toQt(zeile.bezeichnung()));
    edit->setHinweis(QStringLiteral("Wert eintippen, um das Modell ohne Zusammensetzung zu erkunden"));
    edit->setAlignment(Qt::AlignRight);
    edit->setEigenerVerlauf(true); // what is typed here is no part of the document
    connect(edit, &Wertfeld::textChanged, this, [this, feld] { emit fieldEdited(feld); });
    QAction* const back = edit->addAction(backIcon(*edit), QLineEdit::TrailingPosition);
    back->setObjectName(numberedName("cmdZurueck", feld));
    back->setToolTip(QStringLiteral(
        "Eingetippt, gilt bis zur nächsten Änderung. Klick oder Esc: zurück zum Wert der Zusammensetzung"));
    back->setShortcut(Qt::Key_Escape);
    back->setShortcutContext(Qt::WidgetShortcut);
    back->setVisible(false);
    connect(back, &QAction::triggered, this, &Ergebnisgitter::zurueckRequested);
    connect(back, &QAction::visibleChanged, edit, qOverload<>(&QWidget::update)); // the number moves
    m_zurueck.at(feld) = back;
    m_felder.at(feld) = edit;
    m_feldOfZeile.at(static_cast<std::size_t>(zeile.zeile)) = edit;
}

void Ergebnisgitter::createFriedel()
{
    m_label7 = new QLabel(this);
    m_label7->setObjectName(QStringLiteral("Label7"));
    const std::array<QString, 2> hints{
        QStringLiteral("Nächstes Friedelminimum"), QStringLiteral("Voriges Friedelminimum")};
    const std::array<QString, 2> captions{QStringLiteral("▶"), QStringLiteral("◀")};
    for (std::size_t i = 0; i < m_cmdKnopf2.size(); ++i) {
        m_cmdKnopf2.at(i) = new StyledButton(captions.at(i), this);
        m_cmdKnopf2.at(i)->setObjectName(numberedName("cmdKnopf2", static_cast<int>(i)));
        m_cmdKnopf2.at(i)->setAccessibleName(hints.at(i));
        m_cmdKnopf2.at(i)->setToolTipText(hints.at(i));
        const int step = i == 0 ? 1 : -1;
        connect(m_cmdKnopf2.at(i), &StyledButton::clicked, this, [this, step] { emit friedelStepped(step); });
    }
}

void Ergebnisgitter::layOut()
{
    m_grid = new QGridLayout(this);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setVerticalSpacing(2);
    std::array<int, 2> rows{0, 0};
    for (const Groesse& zeile : ergebniszeilen()) {
        if (zeile.zeile == Friedelzeile)
            continue;
        const bool right = isOnTheRight(zeile);
        layOutLine(zeile, rows.at(right ? 1 : 0)++, right ? RightColumn : 0);
    }
    layOutFriedel(rows[1] + 1, RightColumn);
    m_grid->setColumnStretch(1, 1);
    folgeSchrift(this, [this] { measure(); });
}

void Ergebnisgitter::layOutLine(const Groesse& zeile, int row, int column)
{
    const auto k = static_cast<std::size_t>(zeile.zeile);
    m_grid->addWidget(m_beschriftungen.at(k), row, column);
    Wertfeld* const edit = m_feldOfZeile.at(k);
    if (edit == nullptr) {
        m_grid->addWidget(m_anzeigen.at(k), row, column + 1);
        return;
    }
    auto* pair = new QHBoxLayout;
    folgeSchrift(edit, [pair, edit] { pair->setSpacing(Wertanzeige::einheitenabstand(edit->fontMetrics())); });
    m_beschriftungen.at(k)->setBuddy(edit);
    pair->addWidget(edit);
    pair->addWidget(m_anzeigen.at(k), 1);
    m_grid->addLayout(pair, row, column + 1);
}

void Ergebnisgitter::layOutFriedel(int row, int column)
{
    auto* box = new QHBoxLayout;
    box->setSpacing(4);
    for (StyledButton* const button : {m_cmdKnopf2[1], m_cmdKnopf2[0]}) {
        setZeichenknopf(button);
        box->addWidget(button);
    }
    box->addWidget(m_label7);
    box->addStretch();
    m_grid->addWidget(m_beschriftungen.at(Friedelzeile), row, column);
    m_grid->addLayout(box, row, column + 1);
    m_grid->addWidget(&anzeige(Friedelzeile), row + 1, column + 1);
}

/// The values are one stop of the tab key; the fields and the buttons are stops of their own.
void Ergebnisgitter::groupFocus()
{
    Fokusgruppe::Spalten spalten(2);
    for (const Groesse& zeile : ergebniszeilen()) {
        if (zeile.zeile != Friedelzeile)
            spalten.at(isOnTheRight(zeile) ? 1 : 0).push_back(&anzeige(zeile.zeile));
    }
    spalten.back().push_back(&anzeige(Friedelzeile)); // below the energies
    const auto plain = std::ranges::find_if(ergebniszeilen(), [](const Groesse& zeile) { return !zeile.tippbar; });
    new Fokusgruppe(this, std::move(spalten), &anzeige(plain->zeile)); // the first value without a field of its own
}

std::vector<QWidget*> Ergebnisgitter::tabOrder()
{
    std::vector<QWidget*> order;
    for (const Groesse& zeile : ergebniszeilen()) {
        if (zeile.zeile == Friedelzeile)
            continue;
        if (Wertfeld* const edit = m_feldOfZeile.at(static_cast<std::size_t>(zeile.zeile)))
            order.push_back(edit);
        order.push_back(&anzeige(zeile.zeile));
    }
    order.insert(order.end(), {m_cmdKnopf2[1], m_cmdKnopf2[0], &anzeige(Friedelzeile)});
    return order;
}

/// Sizes that follow from the font. In a column all numbers end at one place, typed ones too, and all units begin at
/// one; the lines share the height evenly, within reason.
void Ergebnisgitter::measure()
{
    constexpr int MostBetweenLines = 17;
    const int numberWidth = fontMetrics().horizontalAdvance(QStringLiteral("-3,4561 E-11"));
    const int rand = feldrand(*m_felder.front());
    for (const Groesse& zeile : ergebniszeilen()) {
        const bool aligned = !zeile.tippbar && zeile.zeile != Friedelzeile;
        const bool besideFields = !isOnTheRight(zeile);
        anzeige(zeile.zeile)
            .setEinheit(toQt(zeile.einheit), aligned ? numberWidth : 0, aligned && besideFields ? rand : 0);
    }
    for (Wertfeld* const edit : m_felder)
        edit->setFixedSize(numberWidth + 2 * rand, feldhoehe(*edit) - 2);
    for (int row = 0; row < m_grid->rowCount(); ++row) {
        m_grid->setRowMinimumHeight(row, feldhoehe(*this) - 2);
        m_grid->setRowStretch(row, 1);
    }
    m_grid->setHorizontalSpacing(Wertanzeige::einheitenabstand(fontMetrics()));
    m_grid->setColumnMinimumWidth(RightColumn - 1, fontMetrics().height() / 3);
    setMaximumHeight(m_grid->rowCount() * (fontMetrics().height() + MostBetweenLines));
    m_label7->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" n = 21 ")));
}

void Ergebnisgitter::zeige(const Ergebnistexte& texte)
{
    for (const Groesse& zeile : ergebniszeilen())
        anzeige(zeile.zeile).zeige(toQt(texte.at(static_cast<std::size_t>(zeile.zeile)).text));
}

void Ergebnisgitter::zeigeFriedel(const QString& index, const QString& text)
{
    m_label7->setText(index);
    anzeige(Friedelzeile).zeige(text);
}

void Ergebnisgitter::zeigeGetippt(Feld feld, bool getippt) { m_zurueck.at(feld)->setVisible(getippt); }

void Ergebnisgitter::zeigeBlass(const std::function<bool(const Groesse&)>& istBlass)
{
    for (const Groesse& zeile : ergebniszeilen())
        anzeige(zeile.zeile).setBlass(istBlass(zeile));
}

QString Ergebnisgitter::wertUndEinheitIn(int zeile)
{
    const Wertfeld* const edit = m_feldOfZeile.at(static_cast<std::size_t>(zeile));
    if (edit == nullptr)
        return toQt(wertUndEinheit(fromQt(anzeige(zeile).text())));
    return edit->text().isEmpty() ? QString() : edit->text() + QLatin1Char(' ') + anzeige(zeile).text();
}

} // namespace zerna
