#include "ui/composition/Formelfeld.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>

#include <array>
#include <utility>

#include "core/Kuerzung.h"
#include "model/eingabe/Formeltext.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

Formelfeld::Formelfeld(Programm& programm, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    createControls();
    layOut();
}

void Formelfeld::createControls()
{
    m_txtFormel = new Wertfeld(this);
    m_txtFormel->setObjectName(QStringLiteral("txtFormel"));
    m_txtFormel->setAccessibleName(QStringLiteral("Legierung als Formel"));
    m_txtFormel->setPlaceholderText(QStringLiteral("Legierung eintippen, z. B. Al60Cu40 oder Al-4Cu-1Mg wt%"));
    m_txtFormel->setHinweis(QStringLiteral("Eingabetaste übernimmt, Esc leert das Feld"));
    m_txtFormel->setEigenerVerlauf(true); // what is typed here belongs to the document once it is taken
    m_txtFormel->installEventFilter(this);
    connect(m_txtFormel, &Wertfeld::textChanged, this, &Formelfeld::edited);
    connect(m_txtFormel, &Wertfeld::returnPressed, this, &Formelfeld::take);
    m_cmdFormel = new StyledButton(QStringLiteral("&Formel ▾"), this);
    m_cmdFormel->setObjectName(QStringLiteral("cmdFormel"));
    m_cmdFormel->setAccessibleName(QStringLiteral("Legierung als Formel kopieren"));
    m_cmdFormel->setToolTipText(QStringLiteral("Legierung als Formel kopieren"));
    createKopien();
    auto* const menu = new QMenu(this);
    addKopien(*menu);
    connect(m_cmdFormel, &StyledButton::clicked, menu,
        [this, menu] { menu->popup(m_cmdFormel->mapToGlobal(m_cmdFormel->rect().bottomLeft())); });
    m_zeile = new Befundzeile(this);
    m_zeile->setObjectName(QStringLiteral("lblFormel"));
    m_zeile->hide();
    connect(m_zeile, &Befundzeile::clicked, this, &Formelfeld::lineClicked);
}

void Formelfeld::layOut()
{
    setKnopfgroesse(m_cmdFormel, 0);
    folgeSchrift(m_txtFormel, [this] { m_txtFormel->setFixedHeight(feldhoehe(*m_txtFormel)); });
    auto* const row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(m_txtFormel, 1);
    row->addWidget(m_cmdFormel);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(row);
    column->addWidget(m_zeile);
}

std::vector<QWidget*> Formelfeld::tabOrder() const { return {m_txtFormel, m_cmdFormel, m_zeile}; }

void Formelfeld::createKopien()
{
    const std::array<std::pair<QString, Formelschrift>, 3> kopien{{{QStringLiteral("&Einfach"), Formelschrift::Einfach},
        {QStringLiteral("&Tiefgestellt"), Formelschrift::Tiefgestellt},
        {QStringLiteral("&LaTeX"), Formelschrift::LaTeX}}};
    for (const auto& [caption, schrift] : kopien) {
        auto* const action = new QAction(caption, this);
        action->setObjectName(numberedName("mnuFormel", static_cast<int>(m_kopien.size())));
        connect(action, &QAction::triggered, this, [this, schrift = schrift] {
            if (const std::string formel = formeltext(m_programm.Eingabe(), schrift); !formel.empty())
                copyToClipboard(toQt(formel));
        });
        connect(this, &Formelfeld::menuOpens, action, [this, action, caption = caption, schrift = schrift] {
            const QString formel = toQt(formeltext(m_programm.Eingabe(), schrift));
            action->setText(formel.isEmpty() ? caption : caption + QLatin1Char('\t') + formel);
            action->setEnabled(!formel.isEmpty());
        });
        m_kopien.push_back(action);
    }
}

void Formelfeld::addKopien(QMenu& menu)
{
    for (QAction* const action : m_kopien)
        menu.addAction(action);
    connect(&menu, &QMenu::aboutToShow, this, &Formelfeld::menuOpens);
}

bool Formelfeld::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        m_txtFormel->clear();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// Beside the text stands how it is understood; what is wrong with it is told when it is to be taken.
void Formelfeld::edited()
{
    const QString text = m_txtFormel->text();
    m_lesung = legierungsformel(fromQt(text), m_programm.ElementCollection());
    m_refused = m_refused && m_lesung.fehler && !text.isEmpty();
    m_hinweis.clear();
    m_txtFormel->setEcho(m_lesung.fehler ? QString() : toQt("= " + m_lesung.formel.text()));
    showLine();
}

void Formelfeld::take()
{
    if (m_txtFormel->text().trimmed().isEmpty())
        return;
    m_refused = m_lesung.fehler.has_value();
    if (m_refused)
        return showLine();
    const Legierungsformel formel = std::exchange(m_lesung, {}).formel;
    m_txtFormel->setText({}); // the field's own steps go, too: undo takes back the alloy
    taken(formel);
}

void Formelfeld::taken(const Legierungsformel& formel)
{
    emit legierungEntered(formel);
    m_hinweis = formel.istUmgerechnet() ? toQt(UmgerechnetHinweis) : QString();
    showLine();
}

void Formelfeld::biete(std::string_view text)
{
    if (text.empty() && !m_angebot && m_hinweis.isEmpty())
        return; // what most keys lead to
    m_hinweis.clear();
    m_angebot.reset();
    Formellesung lesung = legierungsformel(text, m_programm.ElementCollection());
    if (!lesung.fehler && lesung.formel.komponenten().size() > 1) {
        m_angebot = std::move(lesung.formel);
        m_angebotstext = toQt(gekuerzt(text));
    }
    showLine();
}

void Formelfeld::nimmAngebot()
{
    if (m_angebot)
        taken(*std::exchange(m_angebot, {}));
}

void Formelfeld::lineClicked()
{
    if (m_angebot)
        nimmAngebot();
    else
        m_txtFormel->setFocus(Qt::OtherFocusReason);
}

void Formelfeld::showLine()
{
    const QString fehler = m_refused ? toQt(m_lesung.fehler->text()) : QString();
    m_txtFormel->setFehler(fehler);
    if (m_angebot)
        m_zeile->zeige(QStringLiteral("„%1“ als ganze Legierung übernehmen (Eingabetaste)").arg(m_angebotstext),
            Befundzeile::Ton::Hinweis);
    else
        m_zeile->zeige(fehler.isEmpty() ? m_hinweis : fehler,
            fehler.isEmpty() ? Befundzeile::Ton::Hinweis : Befundzeile::Ton::Fehler);
    m_zeile->setVisible(!m_zeile->befund().isEmpty());
}

} // namespace zerna
