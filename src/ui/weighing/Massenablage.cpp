#include "ui/weighing/Massenablage.h"

#include <QHBoxLayout>

#include <utility>

#include "ui/button/StyledButton.h"
#include "ui/weighing/Festlabel.h"

namespace zerna {

Massenablage::Massenablage(QWidget* parent)
    : QWidget(parent)
{
    constexpr int Lines = 2;
    m_text = new Festlabel({}, Lines, this);
    m_text->setObjectName(QStringLiteral("lblAbgelegt"));
    m_zurueckholen = new StyledButton(QStringLiteral("&Zurückholen"), this);
    m_zurueckholen->setObjectName(QStringLiteral("cmdZurueckholen"));
    m_zurueckholen->setToolTipText(QStringLiteral("Gelöschte Istmassen wieder in ihre Zeilen setzen"));
    QSizePolicy keepsPlace = m_zurueckholen->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    m_zurueckholen->setSizePolicy(keepsPlace);
    m_zurueckholen->hide();
    connect(m_zurueckholen, &StyledButton::clicked, this, &Massenablage::zurueckholen);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text, 1);
    row->addWidget(m_zurueckholen);
}

void Massenablage::legeAb(int row, AbgelegteMasse masse)
{
    m_massen.at(static_cast<std::size_t>(row)) = std::move(masse);
}

QString Massenablage::komponente(int row) const
{
    const auto& masse = m_massen.at(static_cast<std::size_t>(row));
    return masse ? masse->komponente : QString();
}

std::optional<AbgelegteMasse> Massenablage::nimm(int row)
{
    return std::exchange(m_massen.at(static_cast<std::size_t>(row)), std::nullopt);
}

void Massenablage::zeige(const QStringList& komponenten)
{
    QStringList gone;
    QStringList back;
    bool hasPlace = false;
    for (int row = 0; const auto& masse : m_massen) {
        if (masse) {
            (komponenten.contains(masse->komponente) ? back : gone) +=
                QStringLiteral("%1 %2 mg").arg(masse->komponente, masse->masse);
            hasPlace |= row < komponenten.size();
        }
        ++row;
    }
    QStringList sentences;
    if (!gone.isEmpty())
        sentences += QStringLiteral("Gelöscht, da nicht mehr in der Legierung: %1").arg(gone.join(QLatin1String(", ")));
    if (!back.isEmpty())
        sentences += QStringLiteral("Gelöscht und wieder in der Legierung: %1").arg(back.join(QLatin1String(", ")));
    m_text->setText(sentences.join(QStringLiteral(". ")));
    m_text->setToolTip(m_text->text());
    m_zurueckholen->setVisible(hasPlace);
}

bool Massenablage::bietetAn() const { return !m_zurueckholen->isHidden(); }

} // namespace zerna
