#pragma once

#include <QWidget>

class QBoxLayout;

namespace zerna {

/// Two columns: the left one as wide as it wants to be, the right one with all that is left. Where that is less than
/// the right one needs, it stands below the left one.
class Spaltenpaar : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Once, both children of this widget.
    void setSpalten(QWidget* left, QWidget* right, const QMargins& margins, int spacing);

    QSize sizeHint() const override; ///< the least with both beside each other
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void place();
    QSize least(bool beside) const;

    QBoxLayout* m_columns = nullptr;
};

} // namespace zerna
