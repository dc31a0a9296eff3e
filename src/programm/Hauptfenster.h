#pragma once

#include <string>
#include <string_view>

namespace zerna {

/// What start-up fills in the main window before it is shown. The element lists of all rows have the same entries. Rows
/// and positions count from 0; texts are UTF-8.
class Hauptfenster {
public:
    virtual ~Hauptfenster() = default;

    /// Appends an element to the element lists with its position in the collection as item data.
    virtual void addElement(std::string_view symbol, int itemData) = 0;

    /// The text of an entry; empty if there is none.
    virtual std::string elementEntry(int position) const = 0;

    /// The position of the first entry with exactly this text; -1 if there is none.
    virtual int findElementEntry(std::string_view text) const = 0;

    /// Selects an entry of a row's element list and fills the row; nothing for a position outside the list.
    virtual void ComboElementListIndex(int index, int listIndex) = 0;

    /// Selects the first diagram type and the first component.
    virtual void selectFirstDiagram() = 0;

    /// Computes and shows everything from the rows as they are now.
    virtual void compute() = 0;

    /// Shows instead of everything why nothing can be entered or computed; closing works.
    virtual void sperren(std::string_view grund) = 0;

    virtual void show() = 0;
};

} // namespace zerna
