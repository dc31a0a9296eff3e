#include "ui/platform/QtSaveFileDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QTranslator>

#include "support/FakeServices.h"
#include "support/ModalDialog.h"
#include "support/TemporaryFolder.h"

namespace zerna {

/// The dialog in a folder of its own, with the toolkit's German texts.
struct QtSaveFileDialogTest : testing::Test {
    QtSaveFileDialogTest()
    {
        std::filesystem::current_path(folder.path());
        EXPECT_TRUE(german.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
        QCoreApplication::installTranslator(&german);
    }

    /// What the user's keys make of the dialog: path and filter index, or "cancel".
    template <class User>
    std::string chosen(const User& user)
    {
        std::string result;
        inDialog<QFileDialog>(user, [&] {
            const auto choice = dialog.choose("Daten exportieren ...", types);
            result = choice ? choice->path + '|' + std::to_string(choice->filterIndex) : "cancel";
        });
        return result;
    }

    template <class User>
    bool replaces(const User& user)
    {
        bool answer = false;
        inDialog<QMessageBox>(user, [&] { answer = dialog.confirmReplace("<b>größe.dat"); });
        return answer;
    }

    KeptCurrentFolder kept;
    TemporaryFolder folder;
    QTranslator german;
    const std::vector<Exportart> types{datDatei({}), friedelminima({})};
    QtSaveFileDialog dialog;
};

TEST_F(QtSaveFileDialogTest, TypedNameAndTypeAreTheAnswer)
{
    struct Row {
        const char* name;
        const char* typed;
        bool secondType;
        Qt::Key key;
        const char* expected; // file and filter index
    };
    const Row rows[]{
        {"first type", "Größen", false, Qt::Key_Return, "Größen|1"},
        {"second type", "minima.fri", true, Qt::Key_Return, "minima.fri|2"},
        {"cancel", "werte.dat", true, Qt::Key_Escape, nullptr},
    };
    for (const Row& row : rows) {
        const auto answer = [&row](QFileDialog& shown) {
            typeText(QString::fromUtf8(row.typed));
            shown.findChild<QComboBox*>("fileTypeCombo")->setFocus();
            press(row.secondType ? Qt::Key_Down : Qt::Key_Up);
            press(row.key);
        };
        EXPECT_EQ(chosen(answer), row.expected != nullptr ? (folder / row.expected).string() : "cancel") << row.name;
    }
}

TEST_F(QtSaveFileDialogTest, ExistingFileIsReplacedOnlyIfTheUserSaysSo)
{
    writeBytes(folder / "alt.dat", "1");
    const auto answer = [](Qt::Key mnemonic) {
        return [mnemonic](QFileDialog& shown) {
            typeText("alt.dat");
            inDialog<QMessageBox>(
                [mnemonic](QMessageBox&) { press(mnemonic, Qt::AltModifier); }, [] { press(Qt::Key_Return); });
            if (shown.isVisible())
                press(Qt::Key_Escape);
        };
    };
    EXPECT_EQ(chosen(answer(Qt::Key_J)), (folder / "alt.dat|1").string());
    EXPECT_EQ(chosen(answer(Qt::Key_N)), "cancel") << "back in the dialog";
}

TEST_F(QtSaveFileDialogTest, DialogSpeaksGerman)
{
    chosen([](QFileDialog& shown) {
        EXPECT_EQ(shown.windowTitle(), "Daten exportieren ...");
        EXPECT_EQ(shown.findChild<QLabel*>("fileNameLabel")->text(), "Datei&name:");
        EXPECT_EQ(shown.findChild<QLabel*>("fileTypeLabel")->text(), "Dateien des Typs:");
        EXPECT_EQ(shown.labelText(QFileDialog::Accept), "S&peichern");
        EXPECT_EQ(shown.labelText(QFileDialog::Reject), "Abbrechen");
        press(Qt::Key_Escape);
    });
}

TEST_F(QtSaveFileDialogTest, ReplacingIsAskedForWithNoAsDefault)
{
    EXPECT_FALSE(replaces([](QMessageBox& question) {
        EXPECT_EQ(question.windowTitle(), "Daten exportieren ...");
        EXPECT_EQ(question.text(), "Die Datei \"<b>größe.dat\" ist schon vorhanden.\nSoll sie ersetzt werden?");
        EXPECT_EQ(question.textFormat(), Qt::PlainText);
        EXPECT_EQ(question.button(QMessageBox::Yes)->text(), "&Ja");
        press(Qt::Key_Return);
    }));
    EXPECT_FALSE(replaces([](QMessageBox&) { press(Qt::Key_Escape); }));
    EXPECT_TRUE(replaces([](QMessageBox&) { press(Qt::Key_J, Qt::AltModifier); }));
}

} // namespace zerna
