#pragma once

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

#include "bench/Aufbau.h"
#include "tests/support/FakeServices.h"
#include "ui/main/frmMain.h"
#include "ui/platform/QtSettingsStore.h"

namespace zerna {

/// The program with its window and the Fermi energy in the diagram. Settings are files, as they are in use.
class Fenster {
public:
    explicit Fenster(int komponenten = 5)
        : m_programm(m_boxes, m_settings, pathFromUtf8(Datenpfad).parent_path())
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        m_programm.settings().SaveSetting("Komponenten", std::to_string(komponenten - 1));
        for (std::size_t i = 0; i < Aufbau::Symbole.size(); ++i)
            m_programm.settings().SaveSetting("Element_" + std::to_string(i), Aufbau::Symbole.at(i));
        m_programm.start([this]() -> Hauptfenster& {
            m_window = std::make_unique<frmMain>(m_programm, Dialoge{m_saveDialog, m_inputBox, m_openDialog});
            return *m_window;
        });
        auto& quantities = find<QComboBox>("cmbDiagramm");
        choose("cmbDiagramm", quantities.findData(FermienergieCode));
        QCoreApplication::processEvents();
    }

    void choose(const char* list, int index) const
    {
        auto& found = find<QComboBox>(list);
        found.setCurrentIndex(index);
        emit found.activated(index);
    }

    template <class Widget>
    Widget& find(const char* name) const
    {
        return *m_window->findChild<Widget*>(QLatin1String(name));
    }

private:
    StummeMeldungen m_boxes;
    QTemporaryDir m_folder;
    QtSettingsStore m_settings;
    FakeSaveDialog m_saveDialog;
    FakeInputBox m_inputBox;
    FakeOpenDialog m_openDialog;
    Programm m_programm;
    std::unique_ptr<frmMain> m_window;
};

/// One key until nothing is left to do and everything is painted.
inline void press(QWidget& widget, int key, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
    QCoreApplication::processEvents();
}

} // namespace zerna
