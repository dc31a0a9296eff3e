#pragma once

#include <QObject>
#include <QTimer>

#include "core/Settings.h"

class QWidget;

namespace zerna {

/// The window's place on the screen: it opens where and as large as it was last, as far as that place still exists, and
/// keeps in the settings what the user makes of it.
class Fensterplatz : public QObject {
    Q_OBJECT

public:
    /// The place has that key in the settings.
    Fensterplatz(QWidget& window, Settings& settings, const char* key = "Fensterplatz");

    /// Gives the window its last place, or on a first start this size as far as the screen has it.
    void einnehmen(const QSize& usual);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save();

    QWidget& m_window;
    Settings& m_settings;
    const char* m_key;
    QTimer m_afterTheLastChange; // while the user drags, nothing is written
};

} // namespace zerna
