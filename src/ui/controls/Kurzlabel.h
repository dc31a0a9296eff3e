#pragma once

#include <QWidget>

namespace zerna {

/// A label that cuts off with an ellipsis what it has no room for; whoever sets the text sees to the tool tip. Another
/// text asks for a layout only where the width follows from it.
class Kurzlabel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

public:
    explicit Kurzlabel(QWidget* parent = nullptr);

    const QString& text() const { return m_text; }
    void setText(const QString& text);

    /// As long as it is not emptied it wants no less room than before: what stands beside it stays still.
    void behalteBreite() { m_behaeltBreite = true; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    bool m_behaeltBreite = false;
    int m_breite = 0; // that it keeps
};

} // namespace zerna
