#include "ui/comparison/Vergleichsbereich.h"

#include <QHeaderView>
#include <QMimeData>
#include <QTableView>

#include <functional>

#include "support/FakeDesk.h"

namespace zerna {

/// Aluminium and copper are kept with 50, 60 and 75 at%.
struct VergleichsbereichTest : FakeDesk {
    VergleichsbereichTest()
    {
        openAluminiumCopper();
        QObject::connect(&find<Vergleichsbereich>("Pic_1_2"), &Vergleichsbereich::geschehen,
            [this](const QString& step) { steps.push_back(step.toStdString()); });
        for (const char* const share : {"50", "60", "75"}) {
            type("txtProzent_0", share);
            QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
        }
        click("optButton_1_2");
    }

    QTableView& table() const { return find<QTableView>("tblVergleich"); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(&table(), key, modifiers); }

    /// What the header says of a column.
    QRect header(int column) const
    {
        const QHeaderView& alloys = *table().horizontalHeader();
        return {alloys.sectionViewportPosition(column), 0, alloys.sectionSize(column), alloys.height()};
    }

    /// The cell of a line and a column.
    QString cell(const char* line, int column) const
    {
        const QAbstractItemModel& model = *table().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.headerData(row, Qt::Vertical).toString() == QLatin1String(line))
                return model.index(row, column).data().toString();
        }
        return QStringLiteral("no such line");
    }

    /// "Al50Cu50* Al60Cu40": the names as they stand on the screen, the reference with a star, the current one in
    /// brackets.
    std::string namen() const
    {
        QStringList names;
        for (int i = 0; i < table().model()->columnCount(); ++i) {
            const int column = table().horizontalHeader()->logicalIndex(i);
            const QString name =
                table().model()->headerData(column, Qt::Horizontal).toString().replace("\nReferenz", "*");
            names += column == table().currentIndex().column() ? '[' + name + ']' : name;
        }
        return names.join(' ').toStdString();
    }

    std::vector<std::string> steps; // what was done
};

TEST_F(VergleichsbereichTest, KeysMoveRenameAndDelete)
{
    EXPECT_EQ(namen(), "Al50Cu50* Al60Cu40 [Al75Cu25]");
    const auto step = [this] { return steps.empty() ? std::string() : std::exchange(steps, {}).back(); };
    key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(namen(), "Al50Cu50* [Al75Cu25] Al60Cu40");
    EXPECT_EQ(step(), "Variante verschieben");
    click("cmdVergleich_Referenz");
    EXPECT_EQ(namen(), "Al50Cu50 [Al75Cu25*] Al60Cu40");
    EXPECT_EQ(step(), "Referenz setzen");
    EXPECT_FALSE(find("cmdVergleich_Referenz").isEnabled());
    inputBox.answer = "Probe";
    key(Qt::Key_F2);
    EXPECT_EQ(namen(), "Al50Cu50 [Probe*] Al60Cu40");
    EXPECT_EQ(step(), "Variante umbenennen");
    key(Qt::Key_F2);
    EXPECT_TRUE(steps.empty()) << "the same name is no step";
    key(Qt::Key_Delete);
    EXPECT_EQ(namen(), "Al50Cu50* [Al60Cu40]");
    EXPECT_EQ(step(), "Variante löschen");
    key(Qt::Key_Delete);
    key(Qt::Key_Delete);
    key(Qt::Key_Delete);
    EXPECT_EQ(namen(), "");
    EXPECT_TRUE(find("lblVergleich_Anleitung").isVisible());
    EXPECT_FALSE(find("cmdVergleich_Loeschen").isEnabled());
}

TEST_F(VergleichsbereichTest, ANameIsDraggedToAnotherPlace)
{
    QWidget& names = *table().horizontalHeader()->viewport();
    QTest::mousePress(&names, Qt::LeftButton, {}, header(0).center());
    for (const int x : {header(1).left(), header(1).center().x(), header(2).center().x() + 20})
        QTest::mouseMove(&names, {x, header(0).center().y()});
    QTest::mouseRelease(&names, Qt::LeftButton, {}, {header(2).center().x() + 20, header(0).center().y()});
    QCoreApplication::processEvents();
    EXPECT_EQ(namen(), "Al60Cu40 Al75Cu25 [Al50Cu50*]");
    EXPECT_EQ(programm->Dokument().vergleich->varianten.at(2).name, "Al50Cu50");
}

TEST_F(VergleichsbereichTest, AnAlloyGoesBackIntoTheCalculator)
{
    const std::string computed = text("lblMFE_7");
    type("txtProzent_0", "10");
    EXPECT_EQ(cell("Fermienergie [eV]", 2).toStdString() + " eV", computed) << "the column has followed";
    QTest::mouseClick(
        table().viewport(), Qt::LeftButton, {}, table().visualRect(table().model()->index(7, 2)).center());
    key(Qt::Key_Return);
    EXPECT_TRUE(find("Pic_1_0").isVisible());
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1", "lblMFE_7"}), "75|25|" + computed);
    click("optButton_1_2");
    QTest::mouseDClick(table().horizontalHeader()->viewport(), Qt::LeftButton, {}, header(0).center());
    EXPECT_EQ(text("txtProzent_0"), "50");
    EXPECT_EQ(text("lblMeldung"), "✓  „Al50Cu50“ geladen");
}

TEST_F(VergleichsbereichTest, EachStepIsUndoneByItsName)
{
    const std::string before = namen();
    inputBox.answer = "Probe";
    for (const auto& [name, act] :
        {std::pair<const char*, std::function<void()>>{"merken", [this] { key(Qt::Key_D, Qt::ControlModifier); }},
            {"umbenennen", [this] { key(Qt::Key_F2); }}, {"löschen", [this] { key(Qt::Key_Delete); }},
            {"verschieben", [this] { key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier); }}}) {
        SCOPED_TRACE(name);
        table().setCurrentIndex(table().model()->index(0, 2));
        table().setFocus();
        act();
        EXPECT_NE(namen(), before);
        EXPECT_EQ(find<QAction>("mnuRueckgaengig").text().remove('&').toStdString(),
            std::string("Rückgängig: Variante ") + name);
        key(Qt::Key_Z, Qt::ControlModifier);
        table().setCurrentIndex(table().model()->index(0, 2));
        EXPECT_EQ(namen(), before);
    }
    table().setCurrentIndex(table().model()->index(0, 0));
    key(Qt::Key_Return);
    EXPECT_EQ(text("txtProzent_0"), "50");
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtProzent_0"), "75");
}

TEST_F(VergleichsbereichTest, CopiesAndSavesWhatIsShown)
{
    choose("cmbVergleich_Art", "Differenz in %");
    EXPECT_EQ(cell("Anteil Al [at%]", 2), QStringLiteral("+50 %"));
    EXPECT_EQ(table().model()->index(0, 2).data(Qt::AccessibleTextRole), QStringLiteral("Anteil Al, Al75Cu25: +50 %"));
    EXPECT_EQ(table().model()->index(0, 0).data(Qt::AccessibleTextRole), QStringLiteral("Anteil Al, Al50Cu50: 50 at%"));
    table().setCurrentIndex(table().model()->index(1, 1));
    table().selectionModel()->select(
        {table().model()->index(0, 1), table().model()->index(1, 2)}, QItemSelectionModel::Select);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "20\t50\r\n-20\t-50");
    table().selectAll();
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard().substr(0, 73), "Größe\tEinheit\tAl50Cu50\tAl60Cu40 gegen Al50Cu50 in %\tAl75Cu25 gegen Al50");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasHtml());
    settings["Tabelle_Dezimaltrenner"] = "Punkt";
    for (const auto& [type, name, begin] : {std::tuple(1, "v.csv", "\xEF\xBB\xBFGröße;Einheit;Al50Cu50;Al6"),
             {2, "v.txt", "\xEF\xBB\xBFGröße\tEinheit\tAl50Cu50\tAl6"},
             {3, "v.html", "<meta charset=\"utf-8\"><table"}}) {
        saveDialog.answer = {(folder / name).string(), type};
        click("cmdVergleich_Speichern");
        const std::string bytes = bytesOf(folder / name);
        EXPECT_EQ(bytes.substr(0, std::string(begin).size()), begin);
        EXPECT_EQ(bytes.find(','), std::string::npos) << name;
    }
}

TEST_F(VergleichsbereichTest, WhatCannotBeKeptIsRefusedAndNothingIsLost)
{
    click("optButton_1_0");
    type("txtProzent_0", "x");
    click("optButton_1_1");
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown.front().text.substr(0, 19), "Komponente 1 (Al): ");
    click("optButton_1_0");
    type("txtProzent_0", "12,5");
    while (table().model()->columnCount() < 50 && steps.size() < 60)
        QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(text("lblMeldung"), "✓  „Al12,5Cu87,5 (47)“ gemerkt: Spalte 50 im Vergleich");
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(table().model()->columnCount(), 50);
    EXPECT_EQ(boxes.shown.size(), 2);
}

} // namespace zerna
