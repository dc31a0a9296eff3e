#include "ui/composition/Anteilskoepfe.h"

#include "ui/composition/Anteilskopf.h"
#include "ui/controls/Kurzlabel.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

Anteilskoepfe::Anteilskoepfe(QWidget* panel)
    : QObject(panel)
{
    using enum Anteilseinheit;
    const auto make = [&](const QString& text, const char* name, Anteilseinheit einheit) {
        auto* const kopf = new Anteilskopf(text, panel);
        kopf->setObjectName(QLatin1String(name));
        connect(kopf, &Anteilskopf::clicked, this, [this, einheit] { emit chosen(einheit); });
        return kopf;
    };
    m_koepfe = {make(QStringLiteral("at %"), "Label2", Atom), make(QStringLiteral("Masse %"), "lblMasse", Masse)};
    m_summe = new Kurzlabel(panel);
    m_summe->setObjectName(QStringLiteral("lblSumme"));
    m_summe->setAccessibleName(QStringLiteral("Summe der Anteile"));
}

QWidget* Anteilskoepfe::kopf(Anteilseinheit einheit) const { return m_koepfe.at(static_cast<std::size_t>(einheit)); }

QWidget* Anteilskoepfe::summe() const { return m_summe; }

void Anteilskoepfe::zeige(const Eingabe& eingabe, std::span<const Befund> befunde)
{
    m_koepfe.at(static_cast<std::size_t>(eingabe.einheit()))->setChecked(true);
    const Anteilssumme summe = anteilssumme(eingabe, befunde);
    m_summe->setText(toQt(summe.text));
    m_summe->setToolTip(summe.bedenken.empty() ? QStringLiteral("Summe der Anteile") : toQt(summe.bedenken));
    m_summe->setAccessibleDescription(m_summe->toolTip());
    QPalette own;
    own.setColor(QPalette::WindowText,
        summe.bedenken.empty() ? abgeschwaecht(m_summe->parentWidget()->palette())
                               : bedenkenfarbe(m_summe->parentWidget()->palette()));
    m_summe->setPalette(own);
}

} // namespace zerna
