#include "ui/platform/QtSaveFileDialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "support/FakeServices.h"
#include "support/ModalDialog.h"
#include "support/TemporaryFolder.h"

namespace zerna {

/// The dialog in a folder of its own.
struct QtSaveFileDialogTest : testing::Test {
    QtSaveFileDialogTest() { std::filesystem::current_path(folder.path()); }

    KeptCurrentFolder kept;
    TemporaryFolder folder;
    const std::vector<Exportart> types{datDatei({}), friedelminima({})};
    QtSaveFileDialog dialog;
};

TEST_F(QtSaveFileDialogTest, TypedNameAndTypeAreTheAnswer)
{
    writeBytes(folder / "alt.dat", "1"); // whether to replace it is the program's question
    const std::string tooLong(300, 'x');
    for (const auto& [typed, typeKey, key, index] : {std::tuple("Größen", Qt::Key_Up, Qt::Key_Return, 1),
             {"minima.fri", Qt::Key_Down, Qt::Key_Return, 2}, {"werte.dat", Qt::Key_Down, Qt::Key_Escape, 0},
             {"Al/Cu", Qt::Key_Up, Qt::Key_Return, 1}, {"Al \"rein\"", Qt::Key_Up, Qt::Key_Return, 1},
             {"", Qt::Key_Up, Qt::Key_Return, 1}, {".", Qt::Key_Up, Qt::Key_Return, 1},
             {"alt.dat", Qt::Key_Up, Qt::Key_Return, 1}, {tooLong.c_str(), Qt::Key_Up, Qt::Key_Return, 1}}) {
        std::optional<SaveFileDialog::Choice> choice;
        const auto answer = [typed = typed, typeKey = typeKey, key = key](QFileDialog& shown) {
            EXPECT_EQ(shown.windowTitle(), "Daten exportieren ...");
            typeText(QString::fromUtf8(typed));
            auto& kinds = *shown.findChild<QComboBox*>("fileTypeCombo");
            EXPECT_GT(kinds.view()->minimumWidth(), kinds.fontMetrics().horizontalAdvance(kinds.itemText(0)));
            kinds.setFocus();
            press(typeKey);
            press(key);
        };
        inDialog<QFileDialog>(answer, [&] { choice = dialog.choose("Daten exportieren ...", types, {}); });
        EXPECT_EQ(choice ? choice->filterIndex : 0, index) << typed;
        EXPECT_TRUE(!choice || choice->path == folder.path().generic_string() + '/' + typed) << typed;
    }
}

TEST_F(QtSaveFileDialogTest, RefusedChoiceIsShownAgainAndAFolderIsEntered)
{
    std::filesystem::create_directory(folder / "unter");
    std::optional<SaveFileDialog::Choice> choice{{(folder / "Al/Cu \"x\"").string(), 2}};
    const auto answer = [](QFileDialog& shown) {
        auto* const name = shown.findChild<QLineEdit*>("fileNameEdit");
        EXPECT_EQ(name->text(), "Al/Cu \"x\"");
        name->setFocus();
        name->setText("unter");
        press(Qt::Key_Return);
        EXPECT_EQ(shown.directory().dirName(), "unter");
        name->setText("b");
        press(Qt::Key_Return);
    };
    inDialog<QFileDialog>(answer, [&] { choice = dialog.choose(Exporttitel, types, choice); });
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->path, (folder / "unter/b").generic_string());
    EXPECT_EQ(choice->filterIndex, 2);
}

TEST_F(QtSaveFileDialogTest, ReplacingIsAskedForWithNoAsDefault)
{
    for (const auto& [key, modifier, replaces] : {std::tuple(Qt::Key_Return, Qt::NoModifier, false),
             {Qt::Key_Escape, Qt::NoModifier, false}, {Qt::Key_Y, Qt::AltModifier, true}}) {
        const auto answer = [key = key, modifier = modifier](QMessageBox& question) {
            EXPECT_EQ(question.text(), "Die Datei \"<b>größe.dat\" ist schon vorhanden.\nSoll sie ersetzt werden?");
            EXPECT_EQ(question.textFormat(), Qt::PlainText);
            press(key, modifier);
        };
        inDialog<QMessageBox>(answer, [&, expected = replaces] { //
            EXPECT_EQ(dialog.confirmReplace("<b>größe.dat"), expected);
        });
    }
}

} // namespace zerna
