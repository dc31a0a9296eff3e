#include "ui/diagram/frmBild.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Zahlentext.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Masse.h"
#include "ui/controls/Radsperre.h"
#include "ui/controls/Wertfeld.h"
#include "ui/diagram/Bildvorschau.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Tabreihenfolge.h"

namespace zerna {

namespace {

enum Mass : std::size_t { Breite, Hoehe, Schriftgroesse, Linienbreite, Aufloesung };

constexpr std::array<double, 2> Spalten{Einspaltig, Zweispaltig};
constexpr int Abstand = 16; // of fields and preview
constexpr int Frei = 2; // entry of the list of widths

struct Schalter {
    const char* text;
    const char* name;
    bool Bildvorgabe::*wert;
};

constexpr std::array<Schalter, 4> AlleSchalter{{
    {"&Titel über dem Bild", "chkTitel", &Bildvorgabe::titel},
    {"&Legende", "chkLegende", &Bildvorgabe::legende},
    {"R&unde Teilung der Achsen", "chkRundeTeilung", &Bildvorgabe::rundeTeilung},
    {"&Graustufen statt Farben", "chkGrau", &Bildvorgabe::grau},
}};

const Bildmass& massOf(std::size_t index) { return bildmasse()[index]; }

template <class Widget>
Widget* named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

/// The fields, which scroll where the screen is too low for all of them.
class Felderbereich : public QScrollArea {
public:
    Felderbereich(QLayout* fields, QWidget* parent)
        : QScrollArea(parent)
    {
        auto* const panel = new QWidget;
        auto* const column = new QVBoxLayout(panel);
        column->setContentsMargins(0, 0, 0, 0);
        column->addLayout(fields);
        column->addStretch();
        setWidget(panel);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &QScrollArea::updateGeometry);
    }

    QSize sizeHint() const override
    {
        const int bar = verticalScrollBar()->maximum() > 0 ? verticalScrollBar()->sizeHint().width() : 0;
        return widget()->sizeHint() + QSize(bar, 0);
    }
    QSize minimumSizeHint() const override { return {sizeHint().width(), 10 * fontMetrics().height()}; }
};

QString number(double value) { return toQt(textOfDouble(value)); }

} // namespace

frmBild::frmBild(const Bildmaler& maler, Bildvorgabe vorgabe, QWidget* parent)
    : QDialog(parent)
    , m_vorgabe(std::move(vorgabe))
    , m_picVorschau(named(new Bildvorschau(maler, this), "picVorschau"))
    , m_lblBefund(named(new Befundzeile(this), "lblBefund"))
{
    setObjectName(QStringLiteral("frmBild"));
    setWindowTitle(QStringLiteral("Bild speichern"));
    createControls();
    createMasse();
    createButtons();
    layOut();
    orderTabs();
    fill();
    new Radsperre(*this);
    m_cmdSpeichern->setFocus();
}

void frmBild::createControls()
{
    m_cmbBreite = named(new QComboBox(this), "cmbBreite");
    m_cmbBreite->addItems({QStringLiteral("eine Spalte (%1 mm)").arg(number(Einspaltig)),
        QStringLiteral("zwei Spalten (%1 mm)").arg(number(Zweispaltig)), QStringLiteral("frei")});
    connect(m_cmbBreite, &QComboBox::activated, this, &frmBild::waehleBreite);
    m_cmbSchrift = named(new QFontComboBox(this), "cmbSchrift");
    m_cmbSchrift->setEditable(false);
    m_cmbSchrift->setFontFilters(QFontComboBox::ScalableFonts);
    m_cmbSchrift->setMinimumContentsLength(1); // as narrow as the others
    m_cmbSchrift->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_cmbSchrift, &QComboBox::currentTextChanged, this, &frmBild::geaendert);
    m_cmbDezimal = named(new QComboBox(this), "cmbDezimal");
    m_cmbDezimal->addItems({QStringLiteral("Komma: 0,5"), QStringLiteral("Punkt: 0.5")});
    m_cmbArt = named(new QComboBox(this), "cmbArt");
    m_cmbArt->addItems({QStringLiteral("PNG-Bild"), QStringLiteral("SVG-Grafik"), QStringLiteral("PDF-Dokument")});
    for (QComboBox* const list : {m_cmbDezimal, m_cmbArt})
        connect(list, &QComboBox::currentIndexChanged, this, &frmBild::geaendert);
    for (std::size_t i = 0; i < AlleSchalter.size(); ++i) {
        m_chkSchalter.at(i) =
            named(new QCheckBox(QString::fromUtf8(AlleSchalter.at(i).text), this), AlleSchalter.at(i).name);
        connect(m_chkSchalter.at(i), &QCheckBox::toggled, this, &frmBild::geaendert);
    }
    m_lblPixel = named(new QLabel(this), "lblPixel");
    connect(m_lblBefund, &Befundzeile::clicked, this, [this] {
        if (m_falsches != nullptr)
            m_falsches->setFocus(Qt::OtherFocusReason);
    });
}

void frmBild::createMasse()
{
    for (std::size_t i = 0; i < m_txtMass.size(); ++i) {
        auto* const field = new Wertfeld(this);
        field->setObjectName(QStringLiteral("txt") + toQt(massOf(i).schluessel).section(QLatin1Char('_'), 1));
        field->setAccessibleName(QStringLiteral("%1 in %2").arg(toQt(massOf(i).name), toQt(massOf(i).einheit)));
        field->setEigenerVerlauf(true);
        folgeSchrift(field, [field] { field->setFixedWidth(feldbreite(*field, QStringLiteral("1200,5"))); });
        connect(field, &QLineEdit::textChanged, this, &frmBild::geaendert);
        m_txtMass.at(i) = field;
    }
}

void frmBild::createButtons()
{
    m_cmdSpeichern = named(new QPushButton(QStringLiteral("&Speichern ..."), this), "cmdSpeichern");
    m_cmdSpeichern->setDefault(true);
    m_cmdVorgabe = named(new QPushButton(QStringLiteral("&Voreinstellung"), this), "cmdVorgabe");
    m_cmdVorgabe->setToolTip(QStringLiteral("Alle Angaben wie beim ersten Mal"));
    m_cmdAbbrechen = named(new QPushButton(QStringLiteral("&Abbrechen"), this), "cmdAbbrechen");
    for (QPushButton* const button : {m_cmdVorgabe, m_cmdAbbrechen})
        button->setAutoDefault(false);
    connect(m_cmdSpeichern, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_cmdVorgabe, &QPushButton::clicked, this, [this] {
        m_vorgabe = {};
        fill();
    });
}

/// A field and its unit.
QLayout* frmBild::masszeile(std::size_t index)
{
    auto* const row = new QHBoxLayout;
    row->addWidget(m_txtMass.at(index));
    row->addWidget(new QLabel(toQt(massOf(index).einheit), this));
    row->addStretch();
    return row;
}

void frmBild::layOutSize(QFormLayout& form)
{
    const auto add = [&](const QString& caption, QWidget* buddy, QLayout* row) {
        auto* const label = new QLabel(caption, this);
        label->setBuddy(buddy);
        form.addRow(label, row);
    };
    form.addRow(QStringLiteral("&Format:"), m_cmbBreite);
    add(QStringLiteral("&Breite:"), m_txtMass[Breite], masszeile(Breite));
    add(QStringLiteral("&Höhe:"), m_txtMass[Hoehe], masszeile(Hoehe));
    form.addRow(QStringLiteral("S&chrift:"), m_cmbSchrift);
    add(QStringLiteral("Schriftg&röße:"), m_txtMass[Schriftgroesse], masszeile(Schriftgroesse));
    add(QStringLiteral("Lini&enbreite:"), m_txtMass[Linienbreite], masszeile(Linienbreite));
    form.addRow(QStringLiteral("De&zimalzeichen:"), m_cmbDezimal);
    for (QCheckBox* const box : m_chkSchalter)
        form.addRow(box);
    form.addRow(QStringLiteral("&Dateiart:"), m_cmbArt);
    add(QStringLiteral("Auflösu&ng:"), m_txtMass[Aufloesung], masszeile(Aufloesung));
    form.addRow(QString(), m_lblPixel);
}

void frmBild::layOut()
{
    auto* const form = new QFormLayout;
    layOutSize(*form);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setSpacing(Abstand);
    auto* const upper = new QHBoxLayout;
    upper->addWidget(new Felderbereich(form, this));
    upper->addWidget(m_picVorschau, 1);
    upper->setSpacing(Abstand);
    m_picVorschau->setMinimumSize(240, 140);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_cmdVorgabe);
    buttons->addStretch();
    buttons->addWidget(m_cmdSpeichern);
    buttons->addWidget(m_cmdAbbrechen);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(upper, 1);
    column->addWidget(m_lblBefund);
    column->addLayout(buttons);
    folgeSchrift(this, [this, column] { // the line below may take three
        setMinimumHeight(column->minimumSize().height() + 2 * fontMetrics().lineSpacing());
    });
    resize(860, std::min(sizeHint().height(), fensterraum(*this).height()));
}

void frmBild::orderTabs()
{
    std::vector<QWidget*> order{m_cmbBreite, m_txtMass[Breite], m_txtMass[Hoehe], m_cmbSchrift,
        m_txtMass[Schriftgroesse], m_txtMass[Linienbreite], m_cmbDezimal};
    order.insert(order.end(), m_chkSchalter.begin(), m_chkSchalter.end());
    order.insert(
        order.end(), {m_cmbArt, m_txtMass[Aufloesung], m_lblBefund, m_cmdVorgabe, m_cmdSpeichern, m_cmdAbbrechen});
    setTabReihenfolge(order);
}

/// Shows the settings in the controls.
void frmBild::fill()
{
    const Bildvorgabe shown = m_vorgabe; // the controls say what changes
    for (std::size_t i = 0; i < m_txtMass.size(); ++i)
        m_txtMass.at(i)->setWert(number(shown.*massOf(i).wert), false);
    for (std::size_t i = 0; i < AlleSchalter.size(); ++i) {
        const QSignalBlocker quiet(m_chkSchalter.at(i));
        m_chkSchalter.at(i)->setChecked(shown.*AlleSchalter.at(i).wert);
    }
    const QSignalBlocker quietFont(m_cmbSchrift);
    const QSignalBlocker quietSeparator(m_cmbDezimal);
    const QSignalBlocker quietKind(m_cmbArt);
    m_cmbSchrift->setCurrentFont(QFont(toQt(shown.schrift)));
    m_cmbDezimal->setCurrentIndex(shown.dezimal == Dezimaltrenner::Punkt ? 1 : 0);
    m_cmbArt->setCurrentIndex(static_cast<int>(shown.art));
    geaendert();
}

/// A chosen column width keeps the picture's proportions.
void frmBild::waehleBreite(int index)
{
    if (index == Frei) {
        m_txtMass[Breite]->setFocus();
        m_txtMass[Breite]->selectAll();
        return;
    }
    const double breite = Spalten.at(static_cast<std::size_t>(index));
    const double sameShape = std::round(m_vorgabe.hoehe / m_vorgabe.breite * breite);
    const double hoehe = breite == Einspaltig ? std::max(EinspaltigeHoehe, sameShape) : sameShape;
    m_txtMass[Breite]->setWert(number(breite), false);
    m_txtMass[Hoehe]->setWert(number(hoehe), false);
    geaendert();
}

/// Takes over each number that can be used; what is the matter with the first of the others.
QString frmBild::liesMasse()
{
    QString befund;
    m_falsches = nullptr;
    for (std::size_t i = 0; i < m_txtMass.size(); ++i) {
        const Bildmass& mass = massOf(i);
        Wertfeld& field = *m_txtMass.at(i);
        const auto value = masszahl(mass, fromQt(field.text()));
        m_vorgabe.*mass.wert = value.value_or(m_vorgabe.*mass.wert);
        field.setFehler(value ? QString() : toQt(std::string(mass.name) + ": " + erwartung(mass)));
        if (value || m_falsches != nullptr)
            continue;
        m_falsches = &field;
        befund = field.fehler();
    }
    return befund;
}

void frmBild::geaendert()
{
    QString befund = liesMasse();
    for (std::size_t i = 0; i < AlleSchalter.size(); ++i)
        m_vorgabe.*AlleSchalter.at(i).wert = m_chkSchalter.at(i)->isChecked();
    m_vorgabe.schrift = fromQt(m_cmbSchrift->currentText());
    m_vorgabe.dezimal = m_cmbDezimal->currentIndex() == 1 ? Dezimaltrenner::Punkt : Dezimaltrenner::Komma;
    m_vorgabe.art = static_cast<Bildart>(m_cmbArt->currentIndex());
    if (befund.isEmpty()) {
        befund = toQt(zuGross(m_vorgabe));
        m_falsches = m_txtMass[Aufloesung];
        m_falsches->setFehler(befund);
    }
    m_lblBefund->zeige(befund, Befundzeile::Ton::Fehler);
    m_cmdSpeichern->setEnabled(befund.isEmpty());
    zeigeBreite();
    zeigePixel();
    m_picVorschau->zeige(m_vorgabe);
}

void frmBild::zeigeBreite()
{
    const auto* const found = std::find(Spalten.begin(), Spalten.end(), m_vorgabe.breite);
    m_cmbBreite->setCurrentIndex(static_cast<int>(found - Spalten.begin()));
}

/// What the resolution means for the kind of file.
void frmBild::zeigePixel()
{
    const auto dots = [this](double millimetres) { return std::lround(millimetres / 25.4 * m_vorgabe.aufloesung); };
    m_lblPixel->setText(m_vorgabe.art == Bildart::PNG
            ? QStringLiteral("%1 × %2 Pixel").arg(dots(m_vorgabe.breite)).arg(dots(m_vorgabe.hoehe))
            : QStringLiteral("nur für Flächen im Bild"));
}

} // namespace zerna
