#include "ui/pages/Messseite.h"

#include <QComboBox>
#include <QHBoxLayout>

#include <algorithm>

#include "bild/Konzentrationstexte.h"
#include "bild/Messkurvenbild.h"
#include "core/Datei.h"
#include "model/rechnung/Groessen.h"
#include "programm/Messkurvenoeffnung.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/pages/Messtafel.h"
#include "ui/platform/QtText.h"

namespace zerna {

Messseite::Messseite(Programm& programm, Diagrammflaeche& flaeche, Dialoge dialoge, QWidget* parent)
    : Diagrammseite(programm, flaeche, parent)
    , m_dialoge(dialoge)
{
    createLists();
    createButtons();
    layOut();
    showGewaehlte();
}

QComboBox* Messseite::makeList(const char* name, const QString& accessibleName)
{
    auto* list = new QComboBox(this);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(accessibleName);
    list->setToolTip(accessibleName);
    folgeSchrift(list, [list] { list->setFixedHeight(feldhoehe(*list)); });
    return list;
}

void Messseite::createLists()
{
    m_cmbMesskurve = makeList("cmbMesskurve", QStringLiteral("Messkurve"));
    m_cmbMesskurve->setMinimumContentsLength(8);
    connect(m_cmbMesskurve, &QComboBox::activated, this, [this](int index) {
        m_gewaehlt = index;
        showGewaehlte();
        zeichne(programm().Eingabe());
    });
    m_cmbMessart = makeList("cmbMessart", QStringLiteral("Art der Messkurve"));
    for (const Messart art : {Messart::Paarverteilung, Messart::Strukturfaktor})
        m_cmbMessart->addItem(toQt(messgroesse(art)));
    connect(m_cmbMessart, &QComboBox::activated, this, [this](int index) {
        aendere(
            QStringLiteral("Art der Messkurve"),
            [](Messkurve& kurve, int value) { kurve.art = static_cast<Messart>(value); }, index);
    });
    m_cmbMesseinheit = makeList("cmbMesseinheit", QStringLiteral("Einheit in der Datei"));
    connect(m_cmbMesseinheit, &QComboBox::activated, this, [this](int index) {
        aendere(
            QStringLiteral("Einheit der Messkurve"),
            [](Messkurve& kurve, int value) { kurve.einheit = static_cast<Messeinheit>(value); }, index);
    });
}

/// The lists follow their entries from when they are seen: until then it would only cost them their open lists.
void Messseite::showEvent(QShowEvent* event)
{
    m_cmbMesskurve->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_cmbMessart->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_cmbMesseinheit->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    Diagrammseite::showEvent(event);
}

void Messseite::createButtons()
{
    m_cmdOeffnen = new StyledButton(QStringLiteral("Öffnen ..."), this);
    m_cmdOeffnen->setObjectName(QStringLiteral("cmdMesskurve_Oeffnen"));
    m_cmdOeffnen->setToolTipText(QStringLiteral("Messkurve aus einer Textdatei mit zwei Spalten"));
    setKnopfgroesse(m_cmdOeffnen, 80);
    connect(m_cmdOeffnen, &StyledButton::clicked, this, &Messseite::oeffnenRequested);
    m_cmdEntfernen = new StyledButton(QStringLiteral("−"), this);
    m_cmdEntfernen->setObjectName(QStringLiteral("cmdMesskurve_Entfernen"));
    m_cmdEntfernen->setAccessibleName(QStringLiteral("Messkurve entfernen"));
    m_cmdEntfernen->setToolTipText(QStringLiteral("Diese Messkurve entfernen"));
    setZeichenknopf(m_cmdEntfernen);
    connect(m_cmdEntfernen, &StyledButton::clicked, this, &Messseite::entferne);
}

void Messseite::layOut()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(m_cmbMesskurve, 1);
    row->addWidget(m_cmdEntfernen);
    row->addWidget(m_cmbMessart);
    row->addWidget(m_cmbMesseinheit);
    row->addWidget(m_cmdOeffnen);
}

std::vector<QWidget*> Messseite::tabOrder() const
{
    return {m_cmbMesskurve, m_cmdEntfernen, m_cmbMessart, m_cmbMesseinheit, m_cmdOeffnen};
}

QWidget* Messseite::darunter()
{
    if (m_tafel == nullptr) {
        m_tafel = new Messtafel(programm().settings(), parentWidget());
        m_tafel->setObjectName(QStringLiteral("tblMaxima"));
        setTabOrder(m_cmdOeffnen, m_tafel);
    }
    return m_tafel;
}

/// The curves are another list after every change of theirs, also after undo.
void Messseite::zeigeAuswahl(const Eingabe&)
{
    const Geteilt<std::vector<Messkurve>>& now = programm().Dokument().messkurven;
    if (now.istDasselbe(m_kurven))
        return;
    const bool isMore = now->size() > m_kurven->size();
    m_kurven = now;
    m_gezeichnet.reset();
    const int last = static_cast<int>(now->size()) - 1;
    m_gewaehlt = isMore ? last : qBound(0, m_gewaehlt, qMax(0, last));
    fillKurven();
    showGewaehlte();
}

void Messseite::fillKurven()
{
    m_cmbMesskurve->clear();
    for (const Messkurve& kurve : kurven())
        m_cmbMesskurve->addItem(toQt(kurve.name));
    m_cmbMesskurve->setCurrentIndex(m_gewaehlt);
}

void Messseite::showGewaehlte()
{
    const bool isOne = !kurven().empty();
    for (QWidget* const control : {static_cast<QWidget*>(m_cmbMesskurve), static_cast<QWidget*>(m_cmbMessart),
             static_cast<QWidget*>(m_cmbMesseinheit), static_cast<QWidget*>(m_cmdEntfernen)})
        control->setEnabled(isOne);
    const Messkurve none;
    const Messkurve& kurve = isOne ? kurven().at(static_cast<std::size_t>(m_gewaehlt)) : none;
    m_cmbMessart->setCurrentIndex(static_cast<int>(kurve.art));
    m_cmbMesseinheit->clear();
    for (const Messeinheit einheit : {Messeinheit::Nanometer, Messeinheit::Angstroem})
        m_cmbMesseinheit->addItem(toQt(einheitentext(kurve.art, einheit)));
    m_cmbMesseinheit->setCurrentIndex(static_cast<int>(kurve.einheit));
}

void Messseite::aendere(const QString& schritt, void (*aenderung)(Messkurve&, int), int value)
{
    std::vector<Messkurve> changed = kurven();
    aenderung(changed.at(static_cast<std::size_t>(m_gewaehlt)), value);
    if (changed == kurven())
        return;
    programm().Dokument().messkurven = std::move(changed);
    emit umgestellt({schritt});
}

void Messseite::entferne()
{
    std::vector<Messkurve> fewer = kurven();
    fewer.erase(fewer.begin() + m_gewaehlt);
    programm().Dokument().messkurven = std::move(fewer);
    emit umgestellt({QStringLiteral("Messkurve entfernen")});
}

bool Messseite::oeffne(const QStringList& dateien)
{
    std::vector<std::filesystem::path> files;
    for (const QString& datei : dateien)
        files.push_back(pathFromUtf8(fromQt(datei)));
    if (files.empty()) {
        const auto chosen = m_dialoge.open.choose(Dateiwahl::Messkurve);
        if (!chosen)
            return false;
        files.push_back(pathFromUtf8(*chosen));
    }
    Messkurvenoeffnung oeffnung = oeffneMesskurven(*programm().Dokument().messkurven, files);
    if (!oeffnung.grund.empty())
        programm().boxes().show(Icon::Exclamation, Programmtitel, oeffnung.grund);
    if (oeffnung.neue > 0)
        programm().Dokument().messkurven = std::move(oeffnung.kurven);
    return oeffnung.neue > 0;
}

void Messseite::zeichne(const Eingabe& eingabe)
{
    zeigeAuswahl(eingabe);
    m_tafel->setVisible(isVisibleTo(parentWidget()) && !kurven().empty());
    if (kurven().empty()) {
        flaeche().showHinweis(
            QStringLiteral("Noch keine Messkurve.\n\n„Öffnen ...“ liest eine Textdatei mit zwei Spalten:\n"
                           "g(r) über r oder S(K) über K.\nEine Datei kann man auch hierher ziehen."));
        return;
    }
    const Messart art = kurven().at(static_cast<std::size_t>(m_gewaehlt)).art;
    if (m_gezeichnet != art) {
        m_auswertung.setKurven(m_kurven);
        flaeche().messdiagramm().setKurven(messkurvenbild(m_auswertung, art));
        m_gezeichnet = art;
    }
    zeigeBeiwerk(art);
    flaeche().showMesskurven();
}

/// What follows of the alloy that the results are of.
void Messseite::zeigeBeiwerk(Messart art)
{
    const clsCalc& calc = programm().Calc();
    Messdiagramm& diagramm = flaeche().messdiagramm();
    Tabelle befunde = messtabelle(m_auswertung.vergleich(art, calc), kurven(), art);
    m_tafel->zeige(befunde);
    m_tafel->setColumnHidden(0, std::ranges::count(kurven(), art, &Messkurve::art) == 1); // their names
    diagramm.setBeiwerk(
        messbeiwerk(calc, art, diagramm.bild().x.bereich, legierungstext(programm().gerechneteEingabe())),
        std::move(befunde));
}

Diagrammseite::Suchfrage Messseite::suchfrage() const
{
    constexpr int Decimals = 3; // as in the table
    const auto wanted = kp();
    return {ergebniszeile(Kf2Zeile).kennzahl, wanted ? toQt(fixedText(*wanted, Decimals)) : QString()};
}

/// The main maximum of the chosen S(K) in 1/nm; none without one.
std::optional<double> Messseite::kp() const
{
    const auto index = static_cast<std::size_t>(m_gewaehlt);
    if (m_gezeichnet != Messart::Strukturfaktor || index >= kurven().size())
        return std::nullopt;
    const std::vector<Messpunkt> found = m_auswertung.maxima(index);
    const Messpunkt* const highest = hauptmaximum(found);
    return highest == nullptr ? std::nullopt : std::optional(highest->x);
}

} // namespace zerna
