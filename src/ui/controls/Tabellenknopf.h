#pragma once

#include <QList>
#include <QWidget>

#include <vector>

#include "core/Settings.h"
#include "core/Zahlentext.h"

class QAction;

namespace zerna {

class StyledButton;

/// With which decimal separator numbers of tables are copied and saved.
Dezimaltrenner tabellentrenner(const Settings& settings);

/// The button that copies a table, and beside it a menu that copies with decimal comma or point; the choice is
/// remembered for the button.
class Tabellenknopf : public QWidget {
    Q_OBJECT

public:
    /// What it consists of is named after the table: "MFE" makes "cmdMFE_Tabelle" and "mnuMFE_Komma".
    Tabellenknopf(Settings& settings, const QString& table, const QString& hint, QWidget* parent = nullptr);

    /// What takes the keyboard focus, in this order.
    std::vector<QWidget*> tabOrder() const;

    /// The entries of the menu.
    const QList<QAction*>& choices() const { return m_choices; }

    /// With which decimal separator numbers are copied.
    Dezimaltrenner trenner() const { return tabellentrenner(m_settings); }

signals:
    void copyRequested(Dezimaltrenner trenner);

private:
    void createMenu(const QString& table);
    QAction* addChoice(const QString& caption, const QString& name, Dezimaltrenner trenner);

    Settings& m_settings;
    StyledButton* m_cmdTabelle = nullptr;
    StyledButton* m_cmdTrenner = nullptr;
    QList<QAction*> m_choices;
};

} // namespace zerna
