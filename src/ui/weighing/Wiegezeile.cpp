#include "ui/weighing/Wiegezeile.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>
#include <utility>

#include "core/Zahlentext.h"
#include "model/Einwaage.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"
#include "ui/weighing/Massenfeld.h"

namespace zerna {

namespace {

struct Spalte {
    QString head;
    int width; ///< 0: what is left
    QString hint = {};
};

/// The columns of the table in the order of the row's controls.
const std::array<Spalte, 6>& spalten()
{
    static const std::array<Spalte, 6> columns{{
        {QStringLiteral("Komponente"), 0},
        {QStringLiteral("Sollmasse [mg]"), 110},
        {QStringLiteral("Istmasse [mg]"), 110},
        {QStringLiteral("Ist [at%]"), 84},
        {QStringLiteral("Ist − Soll"), 84,
            QStringLiteral("Abweichung der eingewogenen von der gewünschten Zusammensetzung in at%")},
        {QStringLiteral("Masse [%]"), 80},
    }};
    return columns;
}

QLabel* makeLabel(const char* name, int row, QWidget* panel)
{
    auto* label = new QLabel(panel);
    label->setObjectName(numberedName(name, row));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

Wiegezeile::Wiegezeile(int row, QWidget* panel)
    : QObject(panel)
    , m_label(new QLabel(panel))
    , m_sollmasse(makeLabel("Sollmasse", row, panel))
    , m_istmasse(new Massenfeld(numberedName("Istmasse", row), panel))
    , m_istProzent(makeLabel("IstProzent", row, panel))
    , m_abweichung(makeLabel("Abweichung", row, panel))
    , m_massProzent(makeLabel("MassProzent", row, panel))
{
    m_label->setObjectName(numberedName("Label", row));
    zeigeMangel({}, false);
    connect(m_istmasse, &Massenfeld::textChanged, this, &Wiegezeile::istmasseEntered);
    connect(m_istmasse, &Massenfeld::left, this, &Wiegezeile::istmasseLeft);
    connect(m_istmasse, &Massenfeld::returnPressed, this, &Wiegezeile::returnPressed);
    hide();
}

std::array<QWidget*, 6> Wiegezeile::widgets() const
{
    return {m_label, m_sollmasse, m_istmasse, m_istProzent, m_abweichung, m_massProzent};
}

void Wiegezeile::layOutHeads(QGridLayout& grid, QWidget* panel)
{
    grid.setHorizontalSpacing(8);
    grid.setVerticalSpacing(3);
    grid.setColumnStretch(0, 1);
    for (int column = 0; const Spalte& spalte : spalten()) {
        auto* const head = new QLabel(spalte.head, panel);
        head->setToolTip(spalte.hint);
        head->setAlignment(column == 0 ? Qt::AlignLeft : Qt::AlignRight);
        grid.addWidget(head, 0, column++);
    }
}

void Wiegezeile::layOut(QGridLayout& grid, int gridRow)
{
    constexpr int Height = 24;
    const auto controls = widgets();
    for (std::size_t column = 0; column < controls.size(); ++column) {
        controls.at(column)->setFixedHeight(Height);
        if (const int width = spalten().at(column).width; width > 0)
            controls.at(column)->setFixedWidth(width);
        grid.addWidget(controls.at(column), gridRow, static_cast<int>(column));
    }
}

void Wiegezeile::zeige(const QString& komponente)
{
    for (QWidget* const widget : widgets())
        widget->show();
    m_label->setText(komponente);
    m_istmasse->setAccessibleName(QStringLiteral("Gewogene Masse von %1 in Milligramm").arg(komponente));
}

void Wiegezeile::hide()
{
    for (QWidget* const widget : widgets())
        widget->hide();
}

float Wiegezeile::istmasse() const { return m_istmasse->masse(); }

bool Wiegezeile::istGewogen() const { return !m_istmasse->text().isEmpty(); }

void Wiegezeile::zeigeMangel(const QString& grund, bool istSchuld)
{
    static const QString hint = QStringLiteral("Gewogene Masse; Eingabetaste: die übrigen Sollmassen darauf beziehen");
    m_istmasse->setHinweis(grund.isEmpty() ? hint : grund);
    m_istmasse->setPlaceholderText(istSchuld ? QStringLiteral("fehlt") : QString());
}

void Wiegezeile::zeigeSollmasse(const QString& text) { m_sollmasse->setText(text); }

void Wiegezeile::zeigeMassenanteil(const QString& text, const QString& bezug)
{
    m_massProzent->setText(text);
    m_massProzent->setToolTip(bezug);
}

void Wiegezeile::zeigeAtomprozent(float ist, float soll)
{
    constexpr int Digits = 5; // that tell something
    constexpr float Tolerance = 0.1F; // at%
    const float difference = ist - soll;
    const std::string text = fixedText(difference, 2);
    const bool isMore = difference > 0 && text != fixedText(0, 2);
    QPalette colours = m_abweichung->parentWidget()->palette();
    if (std::abs(difference) > Tolerance)
        colours.setColor(QPalette::WindowText, istDunkel(colours) ? QColor(255, 138, 101) : QColor(191, 54, 12));
    m_istProzent->setText(toQt(textWithDigits(ist, Digits)));
    m_abweichung->setText(toQt((isMore ? "+" : "") + text));
    m_abweichung->setPalette(colours);
}

void Wiegezeile::clearAtomprozent()
{
    m_istProzent->clear();
    m_abweichung->clear();
}

Einwaagezeile Wiegezeile::einwaage(std::string symbol, std::string prozent) const
{
    return {std::move(symbol), std::move(prozent), fromQt(m_sollmasse->text()), fromQt(m_istmasse->text()),
        fromQt(m_istProzent->text()), fromQt(m_massProzent->text())};
}

} // namespace zerna
