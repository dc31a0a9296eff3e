#pragma once

#include <QAccessible>
#include <QTimer>

class QWidget;

namespace zerna {

/// Tells screen readers that something has changed once the user pauses: while texts are typed they would otherwise
/// speak of each letter's results.
class Ansage : public QObject {
    Q_OBJECT

public:
    /// `event`: ValueChanged for a value, Alert for a message.
    Ansage(QWidget* widget, QAccessible::Event event);

    /// The widget has changed. Costs next to nothing while nobody listens.
    void merke();

private:
    void sage();

    QWidget* m_widget;
    QAccessible::Event m_event;
    QString m_gesagt; // the value that was told last
    QTimer m_pause;
};

/// Tells of a message at once.
void sageSofort(QWidget& message);

} // namespace zerna
