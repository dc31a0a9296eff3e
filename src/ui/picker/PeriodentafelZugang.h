#pragma once

#include <vector>

#include "ui/platform/Zugang.h"

namespace zerna {

class Periodentafel;

/// The periodic table as a table: a cell per element in its row and column, of which one is selected and has the
/// focus. The places between them are empty.
class PeriodentafelZugang : public Zugang, public QAccessibleTableInterface {
public:
    explicit PeriodentafelZugang(Periodentafel& tafel);
    ~PeriodentafelZugang() override;

    /// The cell of the element at a place of the collection; null outside.
    QAccessibleInterface* zelle(int place) const;
    QAccessibleInterface* gewaehlteZelle() const; ///< null for none

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* child(int index) const override { return zelle(index); }
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override { return gewaehlteZelle() == nullptr ? 0 : 1; }
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { }

private:
    Periodentafel& m_tafel;
    mutable std::vector<QAccessible::Id> m_zellen; // by place in the collection; 0 for one that nobody asked for
};

/// Tells screen readers which cell has the focus now; nothing while the table has not.
void sageZelle(Periodentafel& tafel);

} // namespace zerna
