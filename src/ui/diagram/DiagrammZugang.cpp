#include "ui/diagram/DiagrammZugang.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QWidget>

#include <utility>

#include "ui/diagram/Diagramm.h"

namespace zerna {

namespace {

/// What is read out, as a part of the diagram.
class AblesungZugang : public QAccessibleInterface {
public:
    explicit AblesungZugang(const DiagrammZugang& diagramm)
        : m_diagramm(diagramm)
    {
    }

    bool isValid() const override { return m_diagramm.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_diagramm.window(); }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_diagramm.object()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_diagramm.ablesung() : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override { return m_diagramm.rect(); }
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override
    {
        QAccessible::State state = m_diagramm.state();
        state.readOnly = true;
        return state;
    }

private:
    const DiagrammZugang& m_diagramm;
};

} // namespace

DiagrammZugang::DiagrammZugang(QWidget& flaeche, Quelle diagramm)
    : Zugang(&flaeche, QAccessible::Grouping)
    , m_diagramm(std::move(diagramm))
{
}

DiagrammZugang::~DiagrammZugang()
{
    if (m_ablesung != 0)
        QAccessible::deleteAccessibleInterface(m_ablesung);
}

QAccessible::Role DiagrammZugang::role() const
{
    const Diagramm* const shown = m_diagramm();
    if (shown == nullptr)
        return QAccessible::Grouping;
    return shown->tasten().empty() ? QAccessible::StaticText : QAccessible::Chart;
}

QString DiagrammZugang::text(QAccessible::Text kind) const
{
    const Diagramm* const shown = m_diagramm();
    QString own = Zugang::text(kind);
    if (shown == nullptr)
        return own;
    switch (kind) {
    case QAccessible::Name:
        return shown->name().isEmpty() ? own : own + QStringLiteral(": ") + shown->name();
    case QAccessible::Description:
        return own.isEmpty() ? shown->beschreibung() : own;
    case QAccessible::Value:
        return shown->cursorText();
    default:
        return own;
    }
}

QString DiagrammZugang::ablesung() const { return m_diagramm() == nullptr ? QString() : m_diagramm()->cursorText(); }

QAccessibleInterface* DiagrammZugang::ablesungZugang() const
{
    if (ablesung().isEmpty())
        return nullptr;
    if (m_ablesung == 0)
        m_ablesung = QAccessible::registerAccessibleInterface(new AblesungZugang(*this));
    return QAccessible::accessibleInterface(m_ablesung);
}

int DiagrammZugang::childCount() const
{
    return m_diagramm() == nullptr ? Zugang::childCount() : ablesung().isEmpty() ? 0 : 1;
}

QAccessibleInterface* DiagrammZugang::child(int index) const
{
    if (m_diagramm() == nullptr)
        return Zugang::child(index);
    return index == 0 ? ablesungZugang() : nullptr;
}

int DiagrammZugang::indexOfChild(const QAccessibleInterface* child) const
{
    if (m_diagramm() == nullptr)
        return Zugang::indexOfChild(child);
    return child != nullptr && child == ablesungZugang() ? 0 : -1;
}

QAccessibleInterface* DiagrammZugang::focusChild() const
{
    QAccessibleInterface* const reading = widget()->hasFocus() ? ablesungZugang() : nullptr;
    return reading != nullptr ? reading : Zugang::focusChild();
}

QAccessibleInterface* DiagrammZugang::childAt(int x, int y) const
{
    return m_diagramm() == nullptr ? Zugang::childAt(x, y) : nullptr;
}

void DiagrammZugang::sage()
{
    const QString before = std::exchange(m_gesagt, ablesung());
    if (m_gesagt == before || !widget()->hasFocus())
        return;
    if (QAccessibleInterface* const reading = ablesungZugang()) {
        QAccessibleEvent event(reading, before.isEmpty() ? QAccessible::Focus : QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleEvent event(widget(), QAccessible::Focus); // back from the text
        QAccessible::updateAccessibility(&event);
    }
}

/// The keys go the way that they would go from the keyboard.
QList<Zugang::Aktion> DiagrammZugang::aktionen() const
{
    QList<Aktion> all;
    const Diagramm* const shown = m_diagramm();
    if (shown == nullptr || shown->tasten().empty())
        return all;
    for (const Diagramm::Taste& taste : shown->tasten()) {
        const auto press = [this, taste] {
            QKeyEvent event(QEvent::KeyPress, taste.key, taste.held);
            QCoreApplication::sendEvent(widget(), &event);
        };
        const int combined = static_cast<int>(taste.held) | taste.key;
        all.push_back({taste.text, press, QKeySequence(combined).toString(QKeySequence::PortableText)});
    }
    all.push_back(menueaktion());
    return all;
}

void sageAblesung(QWidget& flaeche)
{
    if (!QAccessible::isActive())
        return;
    if (auto* const zugang = dynamic_cast<DiagrammZugang*>(QAccessible::queryAccessibleInterface(&flaeche)))
        zugang->sage();
}

} // namespace zerna
