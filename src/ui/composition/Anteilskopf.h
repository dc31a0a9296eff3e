#pragma once

#include <QAbstractButton>

namespace zerna {

/// The head of a column of parts, one of two: the chosen one says in which unit they are typed. The other looks like a
/// link.
class Anteilskopf : public QAbstractButton {
    Q_OBJECT

public:
    Anteilskopf(const QString& einheit, QWidget* parent);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zerna
