#pragma once

#include "ui/controls/Wertfeld.h"

namespace zerna {

/// A field for a mass in milligrams; it marks a text that is none.
class Massenfeld : public Wertfeld {
    Q_OBJECT

public:
    explicit Massenfeld(const QString& name, QWidget* parent = nullptr);

    /// Unbekannt while the text is no mass, 0 while there is none.
    float masse() const { return m_masse; }
    void setMasse(const QString& text); ///< without taking it for typing

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The focus went to another field of the window, not to a menu or another window.
    void left();

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void read();

    float m_masse = 0;
};

} // namespace zerna
