#pragma once

#include <QAccessibleObject>

namespace zerna {

/// What is spoken of a message, its parent: screen readers speak a notification whenever one is shown, with or without
/// a text, and nothing of other widgets. A message that tells of this one is spoken when it wants to be, and once.
class Durchsage : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
};

class DurchsageZugang : public QAccessibleObject {
public:
    explicit DurchsageZugang(QObject* durchsage);

    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override { return parent()->rect(); }
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
};

} // namespace zerna
