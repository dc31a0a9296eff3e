#include "ui/weighing/Verlustbereich.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "core/Laufzeitfehler.h"
#include "core/Unbekannt.h"
#include "model/einwaage/Einwaage.h"
#include "ui/controls/Masse.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/weighing/Massenfeld.h"

namespace zerna {

Verlustbereich::Verlustbereich(QWidget* parent)
    : QWidget(parent)
    , m_txtVerlust(new Massenfeld(QStringLiteral("txtVerlust"), this))
    , m_lstVerlust(new QListWidget(this))
{
    auto* const caption = new QLabel(QStringLiteral("Masseverlus&t [mg]:"), this);
    caption->setBuddy(m_txtVerlust);
    m_txtVerlust->setAccessibleName(QStringLiteral("Masseverlust in Milligramm"));
    m_lstVerlust->setObjectName(QStringLiteral("lstVerlust"));
    m_lstVerlust->setAccessibleName(QStringLiteral("Zusammensetzung nach dem Masseverlust"));
    m_lstVerlust->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // takes the room that is left
    folgeSchrift(m_lstVerlust, [this] { m_lstVerlust->setMinimumHeight(3 * feldhoehe(*m_lstVerlust)); });
    connect(m_txtVerlust, &Massenfeld::textChanged, this, &Verlustbereich::verlustEntered);
    auto* const row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_txtVerlust);
    row->addStretch();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(m_lstVerlust, 1);
}

void Verlustbereich::zeige(const clsCalc& calc, std::span<const float> massen)
{
    m_lstVerlust->clear();
    const bool isWeighed = std::ranges::any_of(massen, [](float masse) { return masse != 0; });
    if (m_txtVerlust->text().isEmpty() && !isWeighed)
        return;
    if (istUnbekannt(m_txtVerlust->masse())) {
        m_lstVerlust->addItem(QStringLiteral("Der Masseverlust ist keine gültige Zahl."));
        return;
    }
    try {
        for (const std::string& line : verlustliste(calc, massen, m_txtVerlust->masse()))
            m_lstVerlust->addItem(toQt(line));
    } catch (const Laufzeitfehler& error) {
        m_lstVerlust->addItem(QStringLiteral("nicht berechenbar: %1").arg(toQt(error.what())));
    }
}

void Verlustbereich::setVerlust(const QString& text) { m_txtVerlust->setMasse(text); }

std::vector<std::string> Verlustbereich::zeilen() const
{
    std::vector<std::string> lines;
    for (int i = 0; i < m_lstVerlust->count() && !m_txtVerlust->text().isEmpty(); ++i)
        lines.push_back(fromQt(m_lstVerlust->item(i)->text()));
    return lines;
}

} // namespace zerna
