#include "ui/weighing/conWiegen.h"

#include <QDate>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Fehlermeldung.h"
#include "core/Zahlentext.h"
#include "model/Einwaage.h"
#include "programm/Exportieren.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

constexpr std::string_view Steuerelement = "Benutzersteuerelement conWiegen";

/// At% with as many digits as tell something.
QString atomprozentText(float prozent) { return toQt(textWithDigits(prozent, 5)); }

Wertfeld* makeMassField(const char* name, const QString& accessibleName, QWidget* parent)
{
    auto* field = new Wertfeld(parent);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(accessibleName);
    field->setAlignment(Qt::AlignRight);
    field->setFixedSize(110, 26);
    return field;
}

} // namespace

std::array<QWidget*, 6> conWiegen::Zeile::widgets() const
{
    return {Label, Sollmasse, Istmasse, IstProzent, Abweichung, MassProzent};
}

conWiegen::conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_saveDialog(saveDialog)
{
    createControls();
    layOut();
}

void conWiegen::createControls()
{
    createTarget();
    for (int row = 0; row < MaxKomponenten; ++row)
        createRow(row);
    m_gesamt = new QLabel(this);
    m_gesamt->setObjectName(QStringLiteral("lblGesamtmasse"));
    m_hinweis = new QLabel(this);
    m_hinweis->setObjectName(QStringLiteral("lblHinweis"));
    m_hinweis->setWordWrap(true);
    createLoss();
    m_kopieren = new StyledButton(QStringLiteral("&Kopieren"), this);
    m_kopieren->setObjectName(QStringLiteral("cmdWiegen_Kopieren"));
    m_kopieren->setToolTipText(QStringLiteral("Wiegeprotokoll in die Zwischenablage"));
    m_speichern = new StyledButton(QStringLiteral("&Speichern"), this);
    m_speichern->setObjectName(QStringLiteral("cmdWiegen_Speichern"));
    m_speichern->setToolTipText(QStringLiteral("Wiegeprotokoll als Textdatei speichern"));
    connect(m_kopieren, &StyledButton::clicked, this, &conWiegen::copy);
    connect(m_speichern, &StyledButton::clicked, this, &conWiegen::save);
}

/// The wanted total and the heads of the table below it.
void conWiegen::createTarget()
{
    m_sollMasseCaption = new QLabel(QStringLiteral("&Gesamtmasse [mg]:"), this);
    m_txtSollMasse = makeMassField("txtSollMasse", QStringLiteral("Gewünschte Gesamtmasse in Milligramm"), this);
    m_txtSollMasse->setText(QStringLiteral("1000"));
    read(*m_txtSollMasse, m_sollmasse);
    m_sollMasseCaption->setBuddy(m_txtSollMasse);
    const std::array<QString, 6> heads{QStringLiteral("Komponente"), QStringLiteral("Sollmasse [mg]"),
        QStringLiteral("Istmasse [mg]"), QStringLiteral("Ist [at%]"), QStringLiteral("Ist − Soll"),
        QStringLiteral("Masse [%]")};
    for (std::size_t i = 0; i < heads.size(); ++i)
        m_heads.at(i) = new QLabel(heads.at(i), this);
    m_heads[4]->setToolTip(QStringLiteral("Abweichung der eingewogenen von der gewünschten Zusammensetzung in at%"));
    connect(m_txtSollMasse, &Wertfeld::textChanged, this, [this] {
        read(*m_txtSollMasse, m_sollmasse);
        sollMasseChanged();
    });
}

void conWiegen::createLoss()
{
    m_verlustCaption = new QLabel(QStringLiteral("Masse&verlust [mg]:"), this);
    m_txtVerlust = makeMassField("txtVerlust", QStringLiteral("Masseverlust in Milligramm"), this);
    m_verlustCaption->setBuddy(m_txtVerlust);
    m_lstVerlust = new QListWidget(this);
    m_lstVerlust->setObjectName(QStringLiteral("lstVerlust"));
    m_lstVerlust->setAccessibleName(QStringLiteral("Zusammensetzung nach dem Masseverlust"));
    connect(m_txtVerlust, &Wertfeld::textChanged, this, [this] {
        read(*m_txtVerlust, m_verlust);
        verlustChanged();
    });
}

void conWiegen::createRow(int row)
{
    Zeile& z = at(row);
    const auto makeLabel = [this, row](const char* name) {
        auto* label = new QLabel(this);
        label->setObjectName(numberedName(name, row));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return label;
    };
    z.Label = new QLabel(this);
    z.Label->setObjectName(numberedName("Label", row));
    z.Sollmasse = makeLabel("Sollmasse");
    z.IstProzent = makeLabel("IstProzent");
    z.Abweichung = makeLabel("Abweichung");
    z.MassProzent = makeLabel("MassProzent");
    z.Istmasse = new Wertfeld(this);
    z.Istmasse->setObjectName(numberedName("Istmasse", row));
    z.Istmasse->setAlignment(Qt::AlignRight);
    z.Istmasse->setHinweis(QStringLiteral("Gewogene Masse; Eingabetaste: die übrigen Sollmassen darauf beziehen"));
    z.Istmasse->installEventFilter(this);
    connect(z.Istmasse, &Wertfeld::textChanged, this, [this, row] { Istmasse_Change(row); });
    for (QWidget* const widget : z.widgets())
        widget->hide();
}

void conWiegen::layOut()
{
    auto* total = new QHBoxLayout;
    total->addWidget(m_sollMasseCaption);
    total->addWidget(m_txtSollMasse);
    total->addStretch();
    auto* grid = new QGridLayout;
    layOutTable(*grid);
    auto* loss = new QHBoxLayout;
    loss->addWidget(m_verlustCaption);
    loss->addWidget(m_txtVerlust);
    loss->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(total);
    column->addLayout(grid);
    column->addWidget(m_gesamt);
    column->addWidget(m_hinweis);
    column->addLayout(loss);
    column->addWidget(m_lstVerlust, 1);
    column->addLayout(knopfzeile({m_kopieren, m_speichern}));
}

void conWiegen::layOutTable(QGridLayout& grid)
{
    constexpr std::array<int, 6> Breiten{0, 110, 110, 84, 84, 80};
    grid.setHorizontalSpacing(8);
    grid.setVerticalSpacing(3);
    for (std::size_t column = 0; column < m_heads.size(); ++column) {
        const int c = static_cast<int>(column);
        m_heads.at(column)->setAlignment(column == 0 ? Qt::AlignLeft : Qt::AlignRight);
        grid.addWidget(m_heads.at(column), 0, c);
        for (int row = 0; row < MaxKomponenten; ++row) {
            QWidget* const widget = at(row).widgets().at(column);
            widget->setFixedHeight(24);
            if (Breiten.at(column) > 0)
                widget->setFixedWidth(Breiten.at(column));
            grid.addWidget(widget, row + 1, c);
        }
    }
    grid.setColumnStretch(0, 1);
}

/// Reads a field that has just been edited and marks it if it holds no number.
void conWiegen::read(Wertfeld& field, float& masse)
{
    masse = ParseValue(fromQt(field.text()));
    field.setFehler(istUnbekannt(masse) ? QStringLiteral("Keine gültige Zahl") : QString());
}

void conWiegen::Aktualisieren(const Eingabe& eingabe)
{
    m_anzahl = eingabe.anzahl();
    for (int row = 0; row < MaxKomponenten; ++row) {
        Zeile& z = at(row);
        for (QWidget* const widget : z.widgets())
            widget->setVisible(row < m_anzahl);
        if (row >= m_anzahl)
            continue;
        z.Label->setText(toQt(m_programm.Calc().Element_Name(row)));
        z.Istmasse->setAccessibleName(QStringLiteral("Gewogene Masse von %1 in Milligramm").arg(z.Label->text()));
    }
    sollMasseChanged();
    try {
        showWeighed(); // the same masses mean other at% now
    } catch (const Laufzeitfehler&) {
        clearWeighed();
    }
    verlustChanged();
}

void conWiegen::sollMasseChanged()
{
    m_hinweis->clear();
    try {
        showTargets();
    } catch (const Laufzeitfehler& error) {
        for (Zeile& z : m_zeilen) {
            z.Sollmasse->clear();
            if (!isAnythingWeighed())
                z.MassProzent->clear();
        }
        if (!istUnbekannt(m_sollmasse)) // else the field is marked
            m_hinweis->setText(
                QStringLiteral("Sollmassen nicht berechenbar: %1 hat 0 at% und ist der Bezug der Rechnung.")
                    .arg(toQt(m_programm.Calc().Element_Name(0))));
    }
}

/// Target masses and, until something is weighed, the mass percents that they mean.
void conWiegen::showTargets()
{
    const float wanted = wiegezahl(m_sollmasse);
    const std::vector<float> massen = sollmassen(m_programm.Calc(), m_anzahl, wanted);
    const bool weighed = isAnythingWeighed();
    for (int row = 0; row < m_anzahl; ++row) {
        const float masse = massen.at(static_cast<std::size_t>(row));
        at(row).Sollmasse->setText(toQt(massentext(masse)));
        if (weighed)
            continue;
        at(row).MassProzent->setText(wanted == 0 ? QString() : toQt(fixedText(quotient(masse, wanted) * 100, 2)));
        at(row).MassProzent->setToolTip(QStringLiteral("Anteil an der gewünschten Gesamtmasse"));
    }
}

std::vector<float> conWiegen::istmassen() const
{
    std::vector<float> massen;
    for (int row = 0; row < m_anzahl; ++row)
        massen.push_back(wiegezahl(at(row).istmasse));
    return massen;
}

bool conWiegen::isAnythingWeighed() const
{
    for (int row = 0; row < m_anzahl; ++row) {
        if (!at(row).Istmasse->text().isEmpty())
            return true;
    }
    return false;
}

void conWiegen::Istmasse_Change(int row)
{
    read(*at(row).Istmasse, at(row).istmasse);
    reporting(m_programm.boxes(), "Istmasse_Change", Steuerelement, [this] {
        try {
            showWeighed();
        } catch (const Laufzeitfehler&) {
            clearWeighed();
            verlustChanged();
            throw;
        }
        verlustChanged();
    });
}

/// Sum, at%, deviation and mass percent of what was weighed; with nothing weighed the shares of the target masses.
/// Throws with the sum already shown.
void conWiegen::showWeighed()
{
    m_gesamt->clear();
    if (!isAnythingWeighed()) {
        clearWeighed();
        sollMasseChanged();
        return;
    }
    const std::vector<float> massen = istmassen();
    m_gesamt->setText(QStringLiteral("Gesamtmasse = %1").arg(toQt(FormatValue(gesamtmasse(massen), "mg"))));
    const clsCalc& calc = m_programm.Calc();
    const std::vector<float> atomprozente = gewogeneAtomprozente(calc, massen);
    const std::vector<float> shares = massenprozente(massen);
    for (int row = 0; row < m_anzahl; ++row) {
        const auto k = static_cast<std::size_t>(row);
        at(row).IstProzent->setText(atomprozentText(atomprozente[k]));
        at(row).MassProzent->setText(toQt(fixedText(shares[k], 2)));
        at(row).MassProzent->setToolTip(QStringLiteral("Anteil an der gewogenen Masse"));
        showDeviation(at(row), atomprozente[k] - calc.Element_Prozente(row));
    }
}

void conWiegen::showDeviation(Zeile& zeile, float difference)
{
    constexpr float Tolerance = 0.1F; // at%
    const std::string text = fixedText(difference, 2);
    const bool isMore = difference > 0 && text != fixedText(0, 2);
    zeile.Abweichung->setText(toQt((isMore ? "+" : "") + text));
    QPalette colours = palette();
    if (std::abs(difference) > Tolerance) {
        colours.setColor(QPalette::WindowText, istDunkel(colours) ? QColor(255, 138, 101) : QColor(191, 54, 12));
    }
    zeile.Abweichung->setPalette(colours);
}

void conWiegen::clearWeighed()
{
    for (Zeile& z : m_zeilen) {
        z.IstProzent->clear();
        z.Abweichung->clear();
        z.MassProzent->clear();
    }
}

bool conWiegen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        for (int row = 0; row < m_anzahl && (key == Qt::Key_Return || key == Qt::Key_Enter); ++row) {
            if (watched == at(row).Istmasse) {
                Istmasse_KeyDown(row);
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

/// The mass weighed in this row becomes the reference for the others' target masses.
void conWiegen::Istmasse_KeyDown(int row)
{
    const clsCalc& calc = m_programm.Calc();
    if (calc.Element_Prozente(row) == 0) {
        m_programm.boxes().show(Icon::Exclamation, "Zerna @ Marra",
            "Atomprozente von " + calc.Element_Name(row) + " sind nicht angegeben!");
        return;
    }
    if (at(row).Istmasse->text().isEmpty()) {
        m_programm.boxes().show(
            Icon::Exclamation, Programmtitel, "Masse von " + calc.Element_Name(row) + " ist nicht angegeben!");
        return;
    }
    reporting(m_programm.boxes(), "Istmasse_KeyDown", Steuerelement, [&] {
        const std::vector<float> massen = sollmassenZu(calc, m_anzahl, row, wiegezahl(at(row).istmasse));
        for (int other = 0; other < m_anzahl; ++other) {
            if (other != row)
                at(other).Sollmasse->setText(toQt(massentext(massen.at(static_cast<std::size_t>(other)))));
        }
    });
}

void conWiegen::verlustChanged()
{
    m_lstVerlust->clear();
    if (m_txtVerlust->text().isEmpty() || istUnbekannt(m_verlust))
        return;
    try {
        for (const std::string& line : verlustliste(m_programm.Calc(), istmassen(), m_verlust))
            m_lstVerlust->addItem(toQt(line));
    } catch (const Laufzeitfehler& error) {
        m_lstVerlust->addItem(QStringLiteral("Nicht berechenbar: %1").arg(toQt(error.what())));
    }
}

std::string conWiegen::protokoll() const
{
    const clsCalc& calc = m_programm.Calc();
    std::vector<Einwaagezeile> zeilen;
    for (int row = 0; row < m_anzahl; ++row) {
        const Zeile& z = at(row);
        zeilen.push_back(
            {calc.Element_Symbol(row), textOfSingle(calc.Element_Prozente(row)), fromQt(z.Sollmasse->text()),
                fromQt(z.Istmasse->text()), fromQt(z.IstProzent->text()), fromQt(z.MassProzent->text())});
    }
    return wiegeprotokoll(fromQt(QDate::currentDate().toString(QStringLiteral("d.M.yyyy"))), zeilen);
}

void conWiegen::copy() { copyToClipboard(toQt(protokoll())); }

void conWiegen::save()
{
    const auto text = [this] { return protokoll(); };
    exportieren(m_programm.boxes(), m_saveDialog, Exporttitel, std::array{datDatei(text), friedelminima(text)});
}

} // namespace zerna
