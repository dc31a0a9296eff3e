#pragma once

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace zerna {

/// Writes down what screen readers are told while it lives: "Focus: Al, Ordnungszahl 13, …".
class Zugangsprotokoll {
public:
    Zugangsprotokoll()
    {
        events().clear();
        setActive(true);
        QAccessible::installUpdateHandler(&Zugangsprotokoll::note);
    }
    ~Zugangsprotokoll()
    {
        QAccessible::installUpdateHandler(nullptr);
        setActive(false);
    }
    Zugangsprotokoll(const Zugangsprotokoll&) = delete;
    Zugangsprotokoll& operator=(const Zugangsprotokoll&) = delete;

    /// What was told since the last call, once the user has paused.
    static std::vector<std::string> told()
    {
        QTest::qWait(450);
        return std::exchange(events(), {});
    }

    /// How often something of a kind was told so far.
    static std::ptrdiff_t count(const std::string& kind)
    {
        return std::ranges::count_if(events(), [&](const std::string& event) { return event.starts_with(kind); });
    }

private:
    /// The toolkit has no public way to listen without a bus.
    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }

    static std::vector<std::string>& events()
    {
        static std::vector<std::string> all;
        return all;
    }

    static void note(QAccessibleEvent* event)
    {
        const QAccessibleInterface* const read = event->accessibleInterface();
        const bool isResult = // fields of the toolkit tell their texts themselves
            event->type() == QAccessible::TextUpdated && qobject_cast<QLineEdit*>(event->object()) == nullptr;
        const bool isSpoken =
            event->type() == QAccessible::ObjectShow && read != nullptr && read->role() == QAccessible::Notification;
        const char* kind = event->type() == QAccessible::Focus ? "Focus"
            : isSpoken                                         ? "Alert"
            : event->type() == QAccessible::NameChanged        ? "Name"
            : event->type() == QAccessible::ValueChanged       ? "Value"
            : isResult                                         ? "Value"
                                                               : nullptr;
        if (kind == nullptr || read == nullptr || read->state().invisible)
            return;
        QString text = read->text(QAccessible::Name);
        if (*kind == 'V')
            text += QStringLiteral(" = ") + read->text(QAccessible::Value);
        events().push_back(kind + (": " + text.toStdString()));
    }
};

} // namespace zerna
