#include "ui/weighing/Wiegezeile.h"

#include <QFrame>
#include <QGridLayout>

#include <cmath>
#include <utility>

#include "core/Anzeigetext.h"
#include "core/Zahlentext.h"
#include "model/einwaage/Einwaage.h"
#include "model/einwaage/Wiegeprotokoll.h"
#include "ui/controls/Beschriftung.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"
#include "ui/weighing/Festlabel.h"
#include "ui/weighing/Massenfeld.h"

namespace zerna {

namespace {

struct Spalte {
    QString head;
    QString sample; ///< the widest text that is to be expected
    QString hint = {};
};

/// The columns of the table in the order of the row's controls. The first four are wanted, the others weighed.
const std::array<Spalte, 8>& spalten()
{
    static const std::array<Spalte, 8> columns{{
        {QStringLiteral("Komponente"), {}},
        {{}, QStringLiteral("Bezug")},
        {QStringLiteral("Sollmasse\n[mg]"), QStringLiteral("00000,000")},
        {QStringLiteral("Masse\n[%]"), QStringLiteral("100,00"),
            QStringLiteral("Anteil an der gewünschten Gesamtmasse")},
        {QStringLiteral("Istmasse\n[mg]"), {}},
        {QStringLiteral("Ist\n[at%]"), QStringLiteral("100,000")},
        {QStringLiteral("Ist − Soll\n[at%]"), QStringLiteral("−100,00"),
            QStringLiteral("Abweichung der eingewogenen von der gewünschten Zusammensetzung")},
        {QStringLiteral("Masse\n[%]"), QStringLiteral("100,00"), QStringLiteral("Anteil an der gewogenen Masse")},
    }};
    return columns;
}

constexpr int FirstWanted = 2;
constexpr int FirstWeighed = 4;
constexpr int Gap = 1; // column between wanted and weighed
static_assert(FirstWeighed + Gap + 1 == Wiegezeile::BisIstmasse);

int gridColumn(std::size_t column)
{
    const auto number = static_cast<int>(column);
    return number < FirstWeighed ? number : number + Gap;
}

QLabel* makeLabel(const char* name, int row, std::size_t column, QWidget* panel)
{
    auto* label = new Festlabel(spalten().at(column).sample, 1, panel);
    label->setObjectName(numberedName(name, row));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

/// A caption over a group of columns, with a line below it.
void layOutGroup(QGridLayout& grid, QWidget* panel, const QString& caption, int first, int count)
{
    auto* const label = new Beschriftung(caption, panel);
    label->setAlignment(Qt::AlignHCenter);
    auto* const line = new QFrame(panel);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    grid.addWidget(label, 0, first, 1, count);
    grid.addWidget(line, 1, first, 1, count);
}

} // namespace

QColor abweichungsfarbe(const QPalette& ground)
{
    return markenfarbe(ground, QPalette::Window, QColor(160, 40, 0), QColor(255, 138, 101));
}

Wiegezeile::Wiegezeile(int row, QWidget* panel)
    : QObject(panel)
    , m_label(new QLabel(panel))
    , m_bezug(makeLabel("Bezug", row, 1, panel))
    , m_sollmasse(makeLabel("Sollmasse", row, 2, panel))
    , m_sollMassProzent(makeLabel("SollMassProzent", row, 3, panel))
    , m_istmasse(new Massenfeld(numberedName("Istmasse", row), panel))
    , m_istProzent(makeLabel("IstProzent", row, 5, panel))
    , m_abweichung(makeLabel("Abweichung", row, 6, panel))
    , m_massProzent(makeLabel("MassProzent", row, 7, panel))
{
    m_label->setObjectName(numberedName("Label", row));
    zeigeMangel({}, false);
    connect(m_istmasse, &Massenfeld::textChanged, this, &Wiegezeile::istmasseEntered);
    connect(m_istmasse, &Massenfeld::left, this, &Wiegezeile::istmasseLeft);
    connect(m_istmasse, &Massenfeld::returnPressed, this, &Wiegezeile::returnPressed);
    hide();
}

std::array<QWidget*, 8> Wiegezeile::widgets() const
{
    return {m_label, m_bezug, m_sollmasse, m_sollMassProzent, m_istmasse, m_istProzent, m_abweichung, m_massProzent};
}

int Wiegezeile::layOutHeads(QGridLayout& grid, QWidget* panel)
{
    constexpr int HeadRow = 2;
    constexpr int GapWidth = 8;
    grid.setHorizontalSpacing(8);
    grid.setVerticalSpacing(3);
    grid.setColumnStretch(0, 1);
    grid.setColumnMinimumWidth(FirstWeighed, GapWidth);
    layOutGroup(grid, panel, QStringLiteral("gewünscht"), FirstWanted, FirstWeighed - FirstWanted);
    layOutGroup(
        grid, panel, QStringLiteral("gewogen"), FirstWeighed + Gap, static_cast<int>(spalten().size()) - FirstWeighed);
    for (std::size_t column = 0; column < spalten().size(); ++column) {
        auto* const head = new Beschriftung(spalten().at(column).head, panel);
        head->setToolTip(spalten().at(column).hint);
        head->setAlignment(Qt::AlignBottom | (column == 0 ? Qt::AlignLeft : Qt::AlignRight));
        grid.addWidget(head, HeadRow, gridColumn(column));
    }
    return HeadRow + 1;
}

void Wiegezeile::layOut(QGridLayout& grid, int gridRow)
{
    const auto controls = widgets();
    for (std::size_t column = 0; column < controls.size(); ++column)
        grid.addWidget(controls.at(column), gridRow, gridColumn(column));
}

std::optional<AbgelegteMasse> Wiegezeile::zeige(const std::string& symbol, const QString& name)
{
    auto taken = symbol == m_symbol || m_symbol.empty() ? std::nullopt : takeMasse(); // maybe of no element yet
    m_symbol = symbol;
    for (QWidget* const widget : widgets())
        widget->show();
    if (name != m_label->text()) {
        m_label->setText(name);
        m_istmasse->setAccessibleName(QStringLiteral("Gewogene Masse von %1 in Milligramm").arg(name));
        nenneSpalten(name);
    }
    return taken;
}

/// Screen readers read a number without the heads of its row and column.
void Wiegezeile::nenneSpalten(const QString& name) const
{
    const auto controls = widgets();
    for (std::size_t column = 0; column < controls.size(); ++column) {
        QString head = spalten().at(column).head;
        if (controls.at(column) != m_istmasse && !head.isEmpty())
            controls.at(column)->setAccessibleDescription(
                QStringLiteral("%1 von %2").arg(head.replace(QLatin1Char('\n'), QLatin1Char(' ')), name));
    }
}

std::optional<AbgelegteMasse> Wiegezeile::hide()
{
    for (QWidget* const widget : widgets())
        widget->hide();
    return takeMasse();
}

std::optional<AbgelegteMasse> Wiegezeile::takeMasse()
{
    if (!istGewogen())
        return std::nullopt;
    AbgelegteMasse taken{m_label->text(), m_istmasse->text()};
    setIstmasse({});
    return taken;
}

QString Wiegezeile::komponente() const { return m_label->text(); }

float Wiegezeile::istmasse() const { return m_istmasse->masse(); }

bool Wiegezeile::istGewogen() const { return !m_istmasse->text().isEmpty(); }

QString Wiegezeile::gewogen() const { return m_istmasse->text(); }

void Wiegezeile::setIstmasse(const QString& text) { m_istmasse->setMasse(text); }

void Wiegezeile::zeigeMangel(const QString& grund, bool istSchuld)
{
    static const QString hint = QStringLiteral("Gewogene Masse; Eingabetaste: die übrigen Sollmassen darauf beziehen");
    m_istmasse->setHinweis(grund.isEmpty() ? hint : grund);
    m_istmasse->setPlaceholderText(istSchuld ? QStringLiteral("fehlt") : QString());
}

void Wiegezeile::zeigeBezug(const QString& hinweis)
{
    m_bezug->setText(hinweis.isEmpty() ? QString() : QStringLiteral("Bezug"));
    m_bezug->setToolTip(hinweis);
    m_sollmasse->setToolTip(hinweis.isEmpty() ? QString() : QStringLiteral("Für die gewünschte Gesamtmasse"));
    QFont font; // the rest is the panel's
    font.setBold(!hinweis.isEmpty());
    m_label->setFont(font);
}

void Wiegezeile::zeigeSollmasse(const QString& text) { m_sollmasse->setText(text); }

void Wiegezeile::zeigeSollanteil(const QString& text) { m_sollMassProzent->setText(text); }

void Wiegezeile::zeigeMassenanteil(const QString& text) { m_massProzent->setText(text); }

void Wiegezeile::zeigeAtomprozent(float ist, std::optional<float> abweichung)
{
    constexpr int Digits = 5; // that tell something
    m_istProzent->setText(toQt(textWithDigits(ist, Digits)));
    const std::string text = abweichung ? fixedText(*abweichung, 2) : "";
    const bool isMore = abweichung.value_or(0) > 0 && text != fixedText(0, 2);
    QPalette colours;
    if (std::abs(abweichung.value_or(0)) > Abweichungstoleranz)
        colours.setColor(QPalette::WindowText, abweichungsfarbe(m_abweichung->parentWidget()->palette()));
    m_abweichung->setText(toQt((isMore ? "+" : "") + anzeigetext(text)));
    m_abweichung->setPalette(colours);
}

void Wiegezeile::clearGewogen()
{
    for (QLabel* const label : {m_istProzent, m_abweichung, m_massProzent})
        label->clear();
}

Einwaagezeile Wiegezeile::einwaage(std::string symbol, std::string prozent) const
{
    return {std::move(symbol), std::move(prozent), fromQt(m_sollmasse->text()), fromQt(m_sollMassProzent->text()),
        fromQt(m_istmasse->text()), fromQt(m_istProzent->text()), fromQt(m_abweichung->text()),
        fromQt(m_massProzent->text())};
}

} // namespace zerna
