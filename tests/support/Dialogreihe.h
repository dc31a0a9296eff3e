#pragma once

#include <QAction>
#include <QTabWidget>
#include <QTimer>

#include <functional>

#include "support/FakeDesk.h"
#include "ui/diagram/frmBild.h"
#include "ui/main/Titeldialog.h"
#include "ui/platform/QtInputBox.h"
#include "ui/platform/QtMessageBoxes.h"
#include "ui/platform/QtOpenFileDialog.h"
#include "ui/platform/QtSaveFileDialog.h"
#include "ui/platform/QtText.h"

namespace zerna {

/// The calculator with all of its dialogs, for what holds for every one of them.
struct Dialogreihe : FakeDesk {
    struct Zeile {
        const char* name;
        std::function<void()> open; ///< returns at once or when the dialog is closed
        std::function<void(QWidget&)> prepare = [](QWidget&) {};
    };

    std::vector<Zeile> dialoge() const
    {
        const auto command = [this](const char* action) { return [this, action] { find<QAction>(action).trigger(); }; };
        const auto onPage = [](int page) {
            return [page](QWidget& dialog) { dialog.findChild<QTabWidget*>()->setCurrentIndex(page); };
        };
        const auto misses = [](QWidget& dialog) {
            auto& field = *dialog.findChild<QLineEdit*>(QStringLiteral("txtAufloesung"));
            field.selectAll();
            QTest::keyClicks(&field, QStringLiteral("99999"));
        };
        static const std::string remark(5000, 'W');
        static const std::string path = "Messungen Wärmebehandlung Oktober/Legierung 17 nach dem dritten Anlassen.dat";
        static const std::string text =
            "Die Datei \"" + path + "\" konnte nicht gespeichert werden:\r\nDatenträger voll.";
        static const std::array kinds{datDatei({}), friedelminima({})};
        static constexpr std::array<std::string_view, 3> Ways{"&Speichern", "&Verwerfen", "&Abbrechen"};
        return {
            {"preferences", command("mnuEinstellungen")},
            {"about", command("mnuInfo")},
            {"title too long", [this] { Titeldialog(remark, remark, window.get()).exec(); }},
            {"picture", command("mnuBild_Speichern")},
            {"picture with a wrong number", command("mnuBild_Speichern"), misses},
            {"search for a share", command("mnuAnteil"), onPage(0)},
            {"search for an element", command("mnuAnteil"), onPage(1)},
            {"search in the ternary diagram",
                [this] {
                    choose("cmbDiagramm_Typ", "3 D - ternär");
                    find<QAction>("mnuAnteil").trigger();
                }},
            {"manual", command("mnuHandbuch")},
            {"print", command("mnuDrucken")},
            {"name of a variant", [] { QtInputBox().ask("Umbenennen", "Neuer Name der Variante:", "Al50Cu50"); }},
            {"open", [] { QtOpenFileDialog().choose(Dateiwahl::Messkurve); }},
            {"save", [] { QtSaveFileDialog().choose(Exporttitel, kinds, {}); }},
            {"replace", [] { QtSaveFileDialog().confirmReplace(path); }},
            {"message", [] { QtMessageBoxes().show(Icon::Exclamation, Programmtitel, text); }},
            {"question", [] { QtMessageBoxes().ask(Programmtitel, text, "Trotzdem &speichern"); }},
            {"choice", [] { QtMessageBoxes().choose(Programmtitel, text, Ways); }},
        };
    }

    /// Opens each dialog, looks at it and closes it.
    template <std::invocable<QWidget&> Look>
    void eachDialog(const Look& look) const
    {
        for (const Zeile& zeile : dialoge()) {
            SCOPED_TRACE(zeile.name);
            bool isSeen = false;
            QTimer::singleShot(0, [&] {
                isSeen = true;
                EXPECT_TRUE(QTest::qWaitFor([this] {
                    const QWidget* const active = QApplication::activeWindow();
                    return active != nullptr && active != window.get();
                })) << "no dialog";
                QWidget& dialog = *QApplication::activeWindow();
                zeile.prepare(dialog);
                QCoreApplication::processEvents();
                look(dialog);
                dialog.close();
            });
            zeile.open();
            EXPECT_TRUE(QTest::qWaitFor([&] { return isSeen; }));
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        }
    }
};

} // namespace zerna
