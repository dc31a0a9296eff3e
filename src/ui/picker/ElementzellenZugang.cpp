#include "ui/picker/ElementzellenZugang.h"

#include <utility>

#include "ui/picker/Periodentafel.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

const QString Uebernahme = QStringLiteral("Als Komponente übernehmen");

} // namespace

ElementzellenZugang::ElementzellenZugang(Periodentafel& tafel, std::shared_ptr<clsElement> element)
    : m_tafel(tafel)
    , m_element(std::move(element))
{
}

int ElementzellenZugang::spalte(const clsElement& element) { return element.X() - 1; }

int ElementzellenZugang::reihe(const clsElement& element) { return element.Y() - 1; }

QWindow* ElementzellenZugang::window() const { return m_tafel.window()->windowHandle(); }

QAccessibleInterface* ElementzellenZugang::table() const { return QAccessible::queryAccessibleInterface(&m_tafel); }

QString ElementzellenZugang::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? m_tafel.auskunft(m_element) : QString();
}

QRect ElementzellenZugang::rect() const
{
    const QRect cell = m_tafel.cellOf(*m_element).toRect();
    return {m_tafel.mapToGlobal(cell.topLeft()), cell.size()};
}

QAccessible::State ElementzellenZugang::state() const
{
    QAccessible::State state;
    state.selectable = true;
    state.focusable = true;
    state.selected = isSelected();
    state.focused = isSelected() && m_tafel.hasFocus();
    state.invisible = !m_tafel.isVisible();
    return state;
}

void* ElementzellenZugang::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool ElementzellenZugang::isSelected() const { return m_tafel.gewaehlt() == m_element; }

QStringList ElementzellenZugang::actionNames() const { return {pressAction(), Uebernahme}; }

QString ElementzellenZugang::localizedActionName(const QString& name) const
{
    return name == Uebernahme ? name : QAccessibleActionInterface::localizedActionName(name);
}

/// The menu that asks for the row goes on until it is closed: it opens once the caller has been answered.
void ElementzellenZugang::doAction(const QString& name)
{
    if (name != pressAction() && name != Uebernahme)
        return;
    m_tafel.select(m_element);
    if (name == Uebernahme)
        QMetaObject::invokeMethod(&m_tafel, &Periodentafel::askForSelected, Qt::QueuedConnection);
}

QStringList ElementzellenZugang::keyBindingsForAction(const QString& name) const
{
    return name == Uebernahme ? QStringList(QStringLiteral("Return")) : QStringList();
}

} // namespace zerna
