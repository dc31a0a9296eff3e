#pragma once

#include "ui/platform/Zugang.h"

namespace zerna {

class Wertanzeige;

/// A result value: a text that cannot be changed and may be read letter by letter, named after its quantity. Pressing
/// it shows the details of the value.
class WertanzeigeZugang : public Zugang, public QAccessibleTextInterface {
public:
    explicit WertanzeigeZugang(Wertanzeige& anzeige);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    QString text(int start, int end) const override { return wert().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(wert().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int offset, int* start, int* end) const override;

protected:
    QList<Aktion> aktionen() const override;

private:
    QString wert() const;

    Wertanzeige& m_anzeige;
};

} // namespace zerna
