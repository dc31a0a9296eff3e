#include <QMenu>
#include <QTimer>

#include <functional>
#include <map>
#include <sstream>

#include "support/FakeDesk.h"
#include "support/Fensterprotokoll.h"
#include "support/Transkript.h"

namespace zerna {

namespace {

/// The words of an action.
class Worte : public std::istringstream {
public:
    using std::istringstream::istringstream;

    std::string word()
    {
        std::string text;
        *this >> text;
        return text;
    }

    int number() { return std::stoi(word()); }

    std::string rest()
    {
        std::string text;
        std::getline(*this >> std::ws, text);
        return text;
    }
};

} // namespace

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
        const QKeyCombination keys = QKeySequence(QString::fromStdString(key))[0];
        QTest::keyClick(&control(name), keys.key(), keys.keyboardModifiers());
    }

    QPoint placeIn(const std::string& name, const QPoint& position) const
    {
        return control(name).mapTo(window.get(), position);
    }

    void moveMouse(const std::string& name, int x, int y) const
    {
        control(name).repaint(); // the read-out is that of the picture painted last
        QTest::mouseMove(window->windowHandle(), placeIn(name, {x, y}));
    }

    /// Steps onto the entry with one key; the entries on the way to it would take long.
    void choose(const std::string& name, const std::string& entry) const
    {
        auto& list = find<QComboBox>(name.c_str());
        const int target = list.findText(QString::fromStdString(entry));
        ASSERT_GE(target, 0) << entry;
        list.setFocus();
        list.setCurrentIndex(target > 0 ? target - 1 : 1);
        QTest::keyClick(&list, target > 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    /// Chooses an entry of the menu that the action opens.
    void answerMenu(const std::string& entry, const std::function<void()>& open) const
    {
        QTimer::singleShot(0, [&entry] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* const action : menu->actions()) {
                if (action->text().remove('&').toStdString() == entry)
                    menu->setActiveAction(action);
            }
            EXPECT_NE(menu->activeAction(), nullptr) << entry;
            QTest::keyClick(menu, menu->activeAction() != nullptr ? Qt::Key_Return : Qt::Key_Escape);
        });
        open();
        QCoreApplication::processEvents();
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

    using Aktion = std::function<void(const std::string& name, Worte& words)>;
    const std::map<std::string, Aktion> actions{
        {"settings", [this](auto& name, Worte& words) { settings[name] = words.rest(); }},
        {"open", [this](auto&, Worte&) { open(); }},
        {"type", [this](auto& name, Worte& words) { type(name.c_str(), words.rest().c_str()); }},
        {"choose", [this](auto& name, Worte& words) { choose(name, words.rest()); }},
        {"click", [this](auto& name, Worte&) { click(name); }},
        {"focus", [this](auto& name, Worte&) { control(name).setFocus(); }},
        {"key", [this](auto& name, Worte& words) { pressKey(name, words.rest()); }},
        {"press",
            [this](
                auto& name, Worte& words) { QTest::keyClicks(&control(name), QString::fromStdString(words.rest())); }},
        {"move",
            [this](auto& name, Worte& words) {
                const int x = words.number();
                moveMouse(name, x, words.number());
            }},
        {"menu", [this](auto& name, Worte& words) { answerMenu(words.rest(), [&] { rightClick(name); }); }},
        {"take", [this](auto& name, Worte& words) { answerMenu(words.rest(), [&] { pressKey(name, "Return"); }); }},
        {"save",
            [this](auto& name, Worte& words) {
                const std::string file = words.word();
                save(name, file, words.number());
            }},
        {"input",
            [this](auto& text, Worte&) {
                inputBox.answer = text.empty() ? std::nullopt : std::optional<std::string>(text);
            }},
        {"watch",
            [this](auto& name, Worte& words) {
                for (std::string range = name; !range.empty(); range = words.word()) {
                    for (const std::string& one : expanded(range)) {
                        watched.push_back(one);
                        seen[one];
                    }
                }
            }},
    };

    /// Carries out one line of the script and returns what changed.
    std::string play(const std::string& line)
    {
        boxes.shown.clear();
        inputBox.prompts.clear();
        saveDialog.asked.clear();
        QApplication::clipboard()->clear();
        const std::map<std::string, std::string> settingsBefore = settings.stored;
        Worte words(line);
        const std::string verb = words.word();
        const std::string name = words.word();
        actions.at(verb)(name, words);
        QCoreApplication::processEvents();
        Protokoll log;
        logQuestions(log);
        if (verb != "settings" && verb != "watch") {
            for (const auto& [key, value] : settings.stored) {
                if (!settingsBefore.contains(key) || settingsBefore.at(key) != value)
                    log.add("setting", key + " = " + value);
            }
            logControls(log);
        }
        return log.text() + clipboardText() + filesWritten();
    }

    void logQuestions(Protokoll& log)
    {
        for (const RecordingBoxes::Box& box : boxes.shown)
            log.add("box", box.caption + ": " + oneLine(QString::fromStdString(box.text)));
        if (saveDialog.offered != std::exchange(offered, saveDialog.offered))
            log.add("dialog", saveDialog.offered);
        for (const std::string& asked : saveDialog.asked)
            log.add("replace", asked);
        for (const std::string& prompt : inputBox.prompts)
            log.add("prompt", oneLine(QString::fromStdString(prompt)));
    }

    void logControls(Protokoll& log)
    {
        Anblicke now;
        for (const std::string& name : watched)
            now[name] = lookAt(control(name));
        logChanges(log, watched, seen, now);
        seen = std::move(now);
    }

    static std::string clipboardText()
    {
        if (const QImage image = QApplication::clipboard()->image(); !image.isNull())
            return "  clipboard: picture " + std::to_string(image.width()) + " x " + std::to_string(image.height())
                + '\n';
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
    std::map<std::string, std::filesystem::file_time_type> written;
};

TEST_F(StundeTest, TheWindowAnswersAsRecorded)
{
    playTranscript(ZERNA_TESTS_DIR "/ui/stunde.txt", "> ", [this](const std::string& line) { return play(line); });
}

} // namespace zerna
