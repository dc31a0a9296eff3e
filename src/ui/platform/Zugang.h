#pragma once

#include <QAccessibleWidget>

#include <functional>

namespace zerna {

/// What screen readers, braille displays and voice control are told of a widget that paints itself. A subclass says
/// what the widget is, what it shows and what can be done with it.
class Zugang : public QAccessibleWidget {
public:
    /// Something that can be done without keyboard and mouse. `name` is one of the toolkit's, or the words for it.
    struct Aktion {
        QString name;
        std::function<void()> tun;
        QString taste = {}; ///< that does the same
    };

    using QAccessibleWidget::QAccessibleWidget;

    /// Nothing can be done with a widget that is disabled.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;
    QString localizedActionName(const QString& name) const override;

protected:
    virtual QList<Aktion> aktionen() const { return {}; }

    /// Opens the widget's context menu as the menu key does, once the caller has been answered.
    Aktion menueaktion() const;
};

/// A caption as it is read out, without the mark of its mnemonic.
QString ohneKuerzel(const QString& caption);

} // namespace zerna
