#include "ui/controls/Tabellenknopf.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QMenu>

#include "ui/controls/Knopfzeile.h"

namespace zerna {

namespace {

constexpr std::string_view Schluessel = "Tabelle_Dezimaltrenner";
constexpr std::string_view Punktwort = "Punkt";
constexpr std::string_view Kommawort = "Komma";

} // namespace

Tabellenknopf::Tabellenknopf(Settings& settings, const QString& table, const QString& hint, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_cmdTabelle(new StyledButton(QStringLiteral("&Tabelle kopieren"), this))
    , m_cmdTrenner(new StyledButton(QStringLiteral("▾"), this))
{
    m_cmdTabelle->setObjectName(QStringLiteral("cmd%1_Tabelle").arg(table));
    m_cmdTabelle->setToolTipText(hint);
    connect(m_cmdTabelle, &StyledButton::clicked, this, [this] { emit copyRequested(trenner()); });
    m_cmdTrenner->setObjectName(QStringLiteral("cmd%1_Trenner").arg(table));
    m_cmdTrenner->setAccessibleName(QStringLiteral("Dezimaltrenner der Tabelle"));
    m_cmdTrenner->setToolTipText(QStringLiteral("Dezimalkomma oder Dezimalpunkt wählen"));
    createMenu(table);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    setKnopfgroesse(m_cmdTabelle);
    folgeSchrift(
        m_cmdTrenner, [this] { m_cmdTrenner->setFixedSize(feldhoehe(*m_cmdTrenner), knopfhoehe(*m_cmdTrenner)); });
    for (StyledButton* const button : {m_cmdTabelle, m_cmdTrenner})
        row->addWidget(button);
}

std::vector<QWidget*> Tabellenknopf::tabOrder() const { return {m_cmdTabelle, m_cmdTrenner}; }

void Tabellenknopf::createMenu(const QString& table)
{
    auto* const menu = new QMenu(this);
    auto* const choices = new QActionGroup(menu);
    m_choices = {addChoice(QStringLiteral("Mit Dezimalkomma kopieren (1,5)"), QStringLiteral("mnu%1_Komma").arg(table),
                     Dezimaltrenner::Komma),
        addChoice(QStringLiteral("Mit Dezimalpunkt kopieren (1.5)"), QStringLiteral("mnu%1_Punkt").arg(table),
            Dezimaltrenner::Punkt)};
    for (QAction* const choice : m_choices)
        choices->addAction(choice);
    menu->addActions(m_choices);
    connect(m_cmdTrenner, &StyledButton::clicked, menu,
        [this, menu] { menu->popup(m_cmdTrenner->mapToGlobal(m_cmdTrenner->rect().bottomLeft())); });
}

QAction* Tabellenknopf::addChoice(const QString& caption, const QString& name, Dezimaltrenner trenner)
{
    auto* const action = new QAction(caption, this);
    action->setObjectName(name);
    action->setCheckable(true);
    const auto showChoice = [this, action, trenner] { action->setChecked(trenner == this->trenner()); };
    showChoice();
    connect(m_cmdTrenner, &StyledButton::clicked, action, showChoice); // which may have been made elsewhere
    connect(action, &QAction::triggered, this, [this, trenner] {
        m_settings.SaveSetting(Schluessel, trenner == Dezimaltrenner::Punkt ? Punktwort : Kommawort);
        emit copyRequested(trenner);
    });
    return action;
}

Dezimaltrenner tabellentrenner(const Settings& settings)
{
    return settings.LoadSetting(Schluessel, Kommawort) == Punktwort ? Dezimaltrenner::Punkt : Dezimaltrenner::Komma;
}

} // namespace zerna
