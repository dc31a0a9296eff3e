#pragma once

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/Plattform.h"
#include "programm/Programm.h"
#include "support/FakeServices.h"
#include "support/RecordingBoxes.h"
#include "support/TemporaryFolder.h"
#include "ui/main/frmMain.h"

namespace zerna {

/// The program on a desk of its own: a folder with the shipped elements, message boxes, dialogs and settings that are
/// recorded, and the window, which is driven by keys and mouse.
struct FakeDesk : testing::Test {
    FakeDesk()
    {
        writeBytes(folder / Programmdatei, "");
        std::filesystem::copy_file(ZERNA_BIN_DIR "/elemente.dat", folder / "elemente.dat");
    }

    /// Starts the program, and gives the window the size that it has on a large screen.
    void open()
    {
        start();
        window->resize(1280, 800);
    }

    /// Starts the program, for the second time if it runs, and makes its window the active one.
    void start()
    {
        window.reset();
        programm.emplace(boxes, settings, folder.path());
        ASSERT_TRUE(programm->start([this]() -> Hauptfenster& {
            window = std::make_unique<frmMain>(*programm, Dialoge{*saving, inputBox, openDialog});
            return *window;
        }));
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    /// Starts with aluminium and copper, both crystalline, 50 at% each.
    void openAluminiumCopper()
    {
        settings["Komponenten"] = "1";
        settings["Element_0"] = "Al";
        settings["Element_1"] = "Cu";
        open();
        choose("cmdDichte_0", "kristallin");
        choose("cmdDichte_1", "kristallin");
    }

    template <class Widget = QWidget>
    Widget& find(const char* name) const
    {
        auto* const widget = window->findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr)
            throw std::logic_error(std::string("no control ") + name);
        return *widget;
    }

    /// What the user reads in a field, list, label or value.
    std::string text(const char* name) const
    {
        if (const auto* const list = qobject_cast<QComboBox*>(&find(name)))
            return list->currentText().toStdString();
        return find(name).property("text").toString().toStdString();
    }

    /// The texts of several fields, lists or labels, separated by "|".
    std::string texts(const std::vector<const char*>& names) const
    {
        std::string all;
        for (const char* const name : names)
            all.append(text(name)).append("|");
        return all.substr(0, all.size() - 1);
    }

    /// Replaces the text of a field letter by letter, so that the texts in between are seen too.
    void type(const char* name, const char* typed) const
    {
        auto& field = find<QLineEdit>(name);
        QTest::mouseClick(&field, Qt::LeftButton);
        field.selectAll();
        if (*typed == '\0')
            QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, QLatin1String(typed));
    }

    /// Steps onto an entry of a list with one key; the entries on the way to it would take long.
    void choose(const char* name, const char* entry) const
    {
        auto& list = find<QComboBox>(name);
        const int target = list.findText(QString::fromUtf8(entry));
        ASSERT_GE(target, 0) << entry;
        list.setFocus();
        list.setCurrentIndex(target > 0 ? target - 1 : 1);
        QTest::keyClick(&list, target > 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    void click(const char* name) const { QTest::mouseClick(&find(name), Qt::LeftButton); }

    static std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }

    KeptCurrentFolder kept;
    TemporaryFolder folder;
    RecordingBoxes boxes;
    FakeSettings settings;
    FakeSaveDialog saveDialog;
    FakeInputBox inputBox;
    FakeOpenDialog openDialog;
    SaveFileDialog* saving = &saveDialog; ///< what the window saves with
    std::optional<Programm> programm;
    std::unique_ptr<frmMain> window;
};

} // namespace zerna
