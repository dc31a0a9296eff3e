#include <QMenu>
#include <QTimer>

#include <functional>

#include "support/FakeDesk.h"
#include "support/Fensterprotokoll.h"
#include "support/Transkript.h"

namespace zerna {

/// A script drives the window; the log has what changed with each action on the controls that the script names.
struct StundeTest : FakeDesk {
    StundeTest() { filesWritten(); }

    /// "a/b" is control b inside a.
    QWidget& control(const std::string& path) const
    {
        const std::size_t slash = path.find('/');
        QWidget& outer = find(path.substr(0, slash).c_str());
        return slash == std::string::npos ? outer : *outer.findChild<QWidget*>(path.substr(slash + 1).c_str());
    }

    void click(const std::string& name) const { QTest::mouseClick(&control(name), Qt::LeftButton); }

    void pressKey(const std::string& name, const std::string& key) const
    {
        QTest::keySequence(&control(name), QKeySequence(QString::fromStdString(key)));
    }

    /// The place that the first two words give.
    static QPoint at(const std::string& xy) { return {std::stoi(words(xy).at(0)), std::stoi(words(xy).at(1))}; }

    QPoint placeIn(const std::string& name, const QPoint& position) const
    {
        return control(name).mapTo(window.get(), position);
    }

    void moveMouse(const std::string& name, const QPoint& position) const
    {
        control(name).repaint(); // the read-out is that of the picture painted last
        QTest::mouseMove(window->windowHandle(), placeIn(name, position));
    }

    /// Chooses an entry of the menu that the action opens.
    void answerMenu(const std::string& entry, const std::function<void()>& open)
    {
        QTimer::singleShot(0, [this, &entry] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* const action : menu->actions()) {
                offers.push_back(action->text().replace('\t', ": ").toStdString());
                if (action->text().section('\t', 0, 0).remove('&').toStdString() == entry)
                    menu->setActiveAction(action);
            }
            EXPECT_EQ(menu->activeAction() == nullptr, entry.empty()) << entry;
            QTest::keyClick(menu, menu->activeAction() != nullptr ? Qt::Key_Return : Qt::Key_Escape);
        });
        open();
        QCoreApplication::processEvents();
        window->activateWindow(); // as it is on a screen once the menu has gone
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void rightClick(const std::string& name) const
    {
        const QPoint place = placeIn(name, control(name).rect().center());
        QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, place);
    }

    void save(const std::string& button, const std::string& name, int type)
    {
        saveDialog.answer = {(folder / name).string(), type};
        click(button);
        saveDialog.answer.reset();
    }

    void watch(const std::string& names)
    {
        for (const std::string& range : words(names)) {
            for (const std::string& name : expanded(range)) {
                watched.push_back(name);
                seen[name];
            }
        }
    }

    /// An action is given the name of a control and what follows it.
    using Aktion = std::function<void(const std::string& name, const std::string& rest)>;
    const std::map<std::string, Aktion> actions{
        {"settings", [this](auto& name, auto& text) { settings[name] = text; }},
        {"open", [this](auto&, auto&) { open(); }},
        {"type", [this](auto& name, auto& text) { type(name.c_str(), text.c_str()); }},
        {"choose", [this](auto& name, auto& entry) { choose(name.c_str(), entry.c_str()); }},
        {"click", [this](auto& name, auto&) { click(name); }},
        {"focus", [this](auto& name, auto&) { control(name).setFocus(); }},
        {"key", [this](auto& name, auto& key) { pressKey(name, key); }},
        {"press", [this](auto& name, auto& text) { QTest::keyClicks(&control(name), QString::fromStdString(text)); }},
        {"move", [this](auto& name, auto& xy) { moveMouse(name, at(xy)); }},
        {"tap", [this](auto& name, auto& xy) { QTest::mouseClick(&control(name), Qt::LeftButton, {}, at(xy)); }},
        {"twice",
            [this](auto& name, auto& xyEntry) {
                const std::string entry = QString::fromStdString(xyEntry).section(' ', 2).toStdString();
                answerMenu(entry, [&] { QTest::mouseDClick(&control(name), Qt::LeftButton, {}, at(xyEntry)); });
            }},
        {"menu", [this](auto& name, auto& entry) { answerMenu(entry, [&] { rightClick(name); }); }},
        {"take", [this](auto& name, auto& entry) { answerMenu(entry, [&] { pressKey(name, "Return"); }); }},
        {"save", [this](auto& name, auto& file) { save(name, words(file).at(0), std::stoi(words(file).at(1))); }},
        {"input", [this](auto& text, auto&) { inputBox.answer = text.empty() ? std::nullopt : std::optional(text); }},
        {"answer", [this](auto& yesOrNo, auto&) { boxes.answer = yesOrNo == "yes"; }},
        {"watch", [this](auto& name, auto& others) { watch(name + ' ' + others); }},
    };

    /// Carries out one line of the script and returns what changed.
    std::string play(const std::string& line)
    {
        boxes.shown.clear();
        boxes.asked.clear();
        offers.clear();
        inputBox.prompts.clear();
        saveDialog.asked.clear();
        QApplication::clipboard()->clear();
        const std::map<std::string, std::string> settingsBefore = settings.stored;
        const QString text = QString::fromStdString(line);
        const std::string verb = text.section(' ', 0, 0).toStdString();
        const QWidget* const focusBefore = QApplication::focusWidget();
        actions.at(verb)(text.section(' ', 1, 1).toStdString(), text.section(' ', 2).toStdString());
        QCoreApplication::processEvents();
        Protokoll log;
        logQuestions(log);
        if (verb != "settings" && verb != "watch") {
            for (const auto& [key, value] : settings.stored) {
                if (key.ends_with("/Fensterplatz"))
                    continue; // comes some time after the change
                if (!settingsBefore.contains(key) || settingsBefore.at(key) != value)
                    log.add("setting", key + " = " + value);
            }
            Anblicke now;
            for (const std::string& name : watched)
                now[name] = lookAt(control(name));
            logChanges(log, watched, std::exchange(seen, now), now);
            if (verb == "key" && QApplication::focusWidget() != focusBefore)
                log.add("focus", QApplication::focusWidget()->objectName().toStdString());
        }
        return log.text() + clipboardText() + filesWritten();
    }

    void logQuestions(Protokoll& log)
    {
        for (const RecordingBoxes::Box& box : boxes.shown) {
            QString text = QString::fromStdString(box.text);
            text.replace(QString::fromStdString(folder.path().string()), QStringLiteral("(folder)"));
            log.add("box", box.caption + ": " + oneLine(text));
        }
        for (const std::string& question : boxes.asked)
            log.add("asked", oneLine(QString::fromStdString(question)));
        for (const std::string& entry : offers)
            log.add("menu", entry);
        if (saveDialog.offered != std::exchange(offered, saveDialog.offered))
            log.add("dialog", saveDialog.offered);
        for (const std::string& asked : saveDialog.asked)
            log.add("replace", asked);
        for (const std::string& prompt : inputBox.prompts)
            log.add("prompt", oneLine(QString::fromStdString(prompt)));
    }

    static std::string clipboardText()
    {
        if (const QImage image = QApplication::clipboard()->image(); !image.isNull())
            return "  clipboard: picture " + sizeText(image) + '\n';
        const QString text = QApplication::clipboard()->text();
        return text.isEmpty() ? "" : "  clipboard" + textContent(text);
    }

    /// What was written since the last call.
    std::string filesWritten()
    {
        std::string log;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            const std::string name = entry.path().filename().string();
            if (std::exchange(written[name], entry.last_write_time()) != entry.last_write_time())
                log += "  file " + name + fileContent(name, bytesOf(entry.path()));
        }
        return log;
    }

    std::vector<std::string> watched;
    Anblicke seen;
    std::string offered; // by the save dialog the last time
    std::vector<std::string> offers; // entries of the menu
    std::map<std::string, std::filesystem::file_time_type> written;
};

TEST_F(StundeTest, TheWindowAnswersAsRecorded)
{
    playTranscript(ZERNA_TESTS_DIR "/ui/stunde.txt", "> ", [this](const std::string& line) { return play(line); });
}

} // namespace zerna
