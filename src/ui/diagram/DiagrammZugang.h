#pragma once

#include "ui/platform/Zugang.h"

namespace zerna {

class Diagramm;

/// A diagram: named after what it shows, with the keys that it knows as actions. What the keyboard cursor reads out is
/// its value and a text inside it that has the focus, so that each step is spoken. A message in place of a diagram is
/// a text.
class DiagrammZugang : public Zugang {
public:
    /// Answers what the widget shows; null while another widget in it shows that.
    using Quelle = std::function<const Diagramm*()>;

    DiagrammZugang(QWidget& flaeche, Quelle diagramm);
    ~DiagrammZugang() override;

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    QString ablesung() const; ///< under the keyboard cursor; empty without one

    /// Tells of another reading, if there is one.
    void sage();

protected:
    QList<Aktion> aktionen() const override;

private:
    QAccessibleInterface* ablesungZugang() const;

    Quelle m_diagramm;
    QString m_gesagt; // the reading that was told last
    mutable QAccessible::Id m_ablesung = 0; // of the text inside; 0 before the first reading
};

/// Tells screen readers what the keyboard cursor in a diagram's widget reads out now.
void sageAblesung(QWidget& flaeche);

} // namespace zerna
