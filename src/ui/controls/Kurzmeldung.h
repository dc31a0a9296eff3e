#pragma once

#include <QLabel>

namespace zerna {

/// A line that says what has just been done. It takes the room that is there; what does not fit is cut and told by the
/// tool tip.
class Kurzmeldung : public QLabel {
    Q_OBJECT

public:
    explicit Kurzmeldung(QWidget* parent = nullptr);

    /// Shows a text that is always there to be read.
    void schreibe(const QString& text);

    /// Shows it in place of what it said; screen readers speak it at once.
    void zeige(const QString& text);

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    QString m_text;
};

} // namespace zerna
