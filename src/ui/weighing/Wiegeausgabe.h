#pragma once

#include <QWidget>

#include <functional>

#include "model/einwaage/Wiegeprotokoll.h"
#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"

namespace zerna {

class Menue;
class StyledButton;

/// The buttons that print, copy and save the weighing protocol.
class Wiegeausgabe : public QWidget {
    Q_OBJECT

public:
    /// `protokoll` is asked for the protocol when a button is pressed.
    Wiegeausgabe(Programm& programm, SaveFileDialog& saveDialog, std::function<Wiegeprotokoll()> protokoll,
        QWidget* parent = nullptr);

    void addBefehle(Menue& menue);
    void print();

private:
    StyledButton* makeButton(const QString& caption, const char* name, const QString& hint);
    void copy();
    void save();

    Programm& m_programm;
    SaveFileDialog& m_saveDialog;
    std::function<Wiegeprotokoll()> m_protokoll;
};

} // namespace zerna
