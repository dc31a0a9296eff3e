#pragma once

#include <QAccessible>

#include <memory>

#include "core/clsElement.h"

namespace zerna {

class Periodentafel;

/// A cell of the periodic table: pressing it selects its element.
class ElementzellenZugang : public QAccessibleInterface,
                            public QAccessibleTableCellInterface,
                            public QAccessibleActionInterface {
public:
    ElementzellenZugang(Periodentafel& tafel, std::shared_ptr<clsElement> element);

    /// Where an element stands in the table, both from 0.
    static int spalte(const clsElement& element);
    static int reihe(const clsElement& element);

    bool isValid() const override { return true; } // as long as the table, which owns it
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return spalte(*m_element); }
    int rowIndex() const override { return reihe(*m_element); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

private:
    Periodentafel& m_tafel;
    std::shared_ptr<clsElement> m_element;
};

} // namespace zerna
