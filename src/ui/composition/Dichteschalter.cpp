#include "ui/composition/Dichteschalter.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include "ui/controls/Masse.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"

namespace zerna {

Dichteschalter::Dichteschalter(QWidget* parent)
    : QWidget(parent)
{
    auto* caption = new QLabel(QStringLiteral("&Dichte aller:"), this);
    m_cmbDichteart = new QComboBox(this);
    m_cmbDichteart->setObjectName(QStringLiteral("cmbDichteart"));
    m_cmbDichteart->setAccessibleName(QStringLiteral("Dichte aller Komponenten"));
    m_cmbDichteart->setToolTip(QStringLiteral("Für alle Komponenten dieselbe Dichte wählen, soweit bekannt"));
    m_cmbDichteart->setPlaceholderText(QStringLiteral("verschieden"));
    for (const std::string_view wahl : dichtearten())
        m_cmbDichteart->addItem(toQt(wahl));
    m_cmbDichteart->setCurrentIndex(-1);
    folgeSchrift(m_cmbDichteart, [this] { m_cmbDichteart->setFixedHeight(feldhoehe(*m_cmbDichteart)); });
    caption->setBuddy(m_cmbDichteart);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(caption);
    row->addWidget(m_cmbDichteart);
    m_lblMeldung = new QLabel(parentWidget());
    m_lblMeldung->setObjectName(QStringLiteral("lblDichteart"));
    m_lblMeldung->setWordWrap(true);
    m_lblMeldung->hide();
    connect(m_cmbDichteart, &QComboBox::textActivated, this, &Dichteschalter::chosen);
}

void Dichteschalter::zeige(const Eingabe& eingabe)
{
    m_cmbDichteart->setCurrentIndex(m_cmbDichteart->findText(toQt(eingabe.gemeinsameDichtewahl())));
    zeigeOhneDichte({}, {});
}

void Dichteschalter::zeigeOhneDichte(std::string_view wahl, const std::vector<std::string>& symbole)
{
    QStringList names;
    for (const std::string& symbol : symbole)
        names += toQt(symbol);
    m_lblMeldung->setVisible(!names.isEmpty());
    m_lblMeldung->setText(
        QStringLiteral("Keine Dichte „%1“ bekannt, unverändert: %2").arg(toQt(wahl), names.join(QStringLiteral(", "))));
}

} // namespace zerna
