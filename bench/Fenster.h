#pragma once

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include <memory>

#include "bench/Aufbau.h"
#include "tests/support/FakeServices.h"
#include "ui/main/frmMain.h"

namespace zerna {

/// The program with its window, five components and the Fermi energy in the diagram.
class Fenster {
public:
    Fenster()
        : m_programm(m_boxes, m_settings, pathFromUtf8(Datenpfad).parent_path())
    {
        m_settings["Komponenten"] = "4";
        for (std::size_t i = 0; i < Aufbau::Symbole.size(); ++i)
            m_settings["Element_" + std::to_string(i)] = Aufbau::Symbole.at(i);
        m_programm.start([this]() -> Hauptfenster& {
            m_window = std::make_unique<frmMain>(m_programm, Dialoge{m_saveDialog, m_inputBox, m_openDialog});
            return *m_window;
        });
        auto& quantities = find<QComboBox>("cmbDiagramm");
        quantities.setCurrentIndex(quantities.findData(FermienergieCode));
        emit quantities.activated(quantities.currentIndex());
        QCoreApplication::processEvents();
    }

    template <class Widget>
    Widget& find(const char* name) const
    {
        return *m_window->findChild<Widget*>(QLatin1String(name));
    }

private:
    StummeMeldungen m_boxes;
    FakeSettings m_settings;
    FakeSaveDialog m_saveDialog;
    FakeInputBox m_inputBox;
    FakeOpenDialog m_openDialog;
    Programm m_programm;
    std::unique_ptr<frmMain> m_window;
};

/// One key in a field until nothing is left to do and everything is painted.
inline void press(QLineEdit& field, int key, const QString& text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&field, &event);
    }
    QCoreApplication::processEvents();
}

} // namespace zerna
