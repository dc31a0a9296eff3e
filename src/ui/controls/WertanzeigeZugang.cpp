#include "ui/controls/WertanzeigeZugang.h"

#include "ui/controls/Wertanzeige.h"

namespace zerna {

WertanzeigeZugang::WertanzeigeZugang(Wertanzeige& anzeige)
    : Zugang(&anzeige, QAccessible::EditableText)
    , m_anzeige(anzeige)
{
}

/// The text as it is given: "E-9" is read better than a raised number.
QString WertanzeigeZugang::wert() const
{
    return m_anzeige.text().isEmpty() ? QStringLiteral("kein Wert") : m_anzeige.text().simplified();
}

QAccessible::State WertanzeigeZugang::state() const
{
    QAccessible::State state = Zugang::state();
    state.readOnly = true;
    return state;
}

QString WertanzeigeZugang::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return wert();
    QString said = Zugang::text(kind);
    if (kind != QAccessible::Description || !m_anzeige.istBlass())
        return said;
    const QString pale = QStringLiteral("gehört nicht zu dem, was eingetragen ist");
    return said.isEmpty() ? pale : said + QStringLiteral(", ") + pale;
}

void* WertanzeigeZugang::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return Zugang::interface_cast(type);
}

void WertanzeigeZugang::selection(int, int* start, int* end) const { *start = *end = 0; }

QString WertanzeigeZugang::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

QList<Zugang::Aktion> WertanzeigeZugang::aktionen() const
{
    const auto later = [this](auto signal) {
        return [this, signal] { QMetaObject::invokeMethod(&m_anzeige, signal, Qt::QueuedConnection); };
    };
    return {
        {pressAction(), later(&Wertanzeige::detailsRequested), QStringLiteral("Return")},
        {QStringLiteral("Wert kopieren"), later(&Wertanzeige::copyRequested), QStringLiteral("Ctrl+C")},
        menueaktion(),
    };
}

} // namespace zerna
