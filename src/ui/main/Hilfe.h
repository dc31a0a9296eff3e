#pragma once

#include <QObject>
#include <QPointer>

#include "core/Settings.h"

class QWidget;

namespace zerna {

class frmHandbuch;

/// The manual at hand: F1 anywhere in the program opens the section about what has the focus, in a message box what is
/// said about that message.
class Hilfe : public QObject {
    Q_OBJECT

public:
    Hilfe(QWidget& window, Settings& settings);

    /// Shows the section about what has the focus.
    void zeige();

    void zeigeAbschnitt(const QString& anker);

    /// The window, made when it is first asked for.
    frmHandbuch& fenster();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bringeNachVorn();

    QWidget& m_window;
    Settings& m_settings;
    QPointer<frmHandbuch> m_fenster;
};

} // namespace zerna
