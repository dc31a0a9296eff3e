#pragma once

#include <QWidget>

#include <array>

namespace zerna {

class Ansage;
class StyledButton;

/// A caption and a whole number from 0 to 100 that two buttons step down (0) and up (1).
class conLabel : public QWidget {
    Q_OBJECT

public:
    explicit conLabel(QWidget* parent = nullptr);

    /// Written values are shown as they are, whatever their range.
    int Value() const { return m_value; }
    void setValue(int value);

    void setLabel(const QString& label);
    const QString& label() const { return m_label; }

    /// Whether the buttons can be used.
    bool Enabled() const { return m_enabled; }
    void setEnabled(bool enabled); ///< the control's own flag

    /// The buttons from above.
    std::array<QWidget*, 2> buttons() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A button has stepped the value.
    void Change();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void step(int button);
    void updateTexts();
    int buttonWidth() const;

    Ansage* m_ansage;
    int m_value = 50;
    QString m_label;
    bool m_enabled = true;
    std::array<StyledButton*, 2> m_buttons{};
};

/// The value after a step of button 0 (down) or any other (up).
/// Intended: wraps from 100 to 0 and from 0 to 100.
int steppedValue(int value, int button);

} // namespace zerna
