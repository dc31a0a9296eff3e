#include "core/clsElement.h"

#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "support/FilesTest.h"

namespace zerna {

struct clsElementTest : FilesTest {
    clsElementTest() { element.setDateinummer(1); }

    void read(std::string_view bytes)
    {
        files.openBytes(1, std::string(bytes));
        element.Daten_Lesen();
    }

    std::string written(const ElementRecord& toWrite)
    {
        files.open(1, folder / "a.dat", Zugriff::Ausgabe);
        element.setRecord(toWrite);
        element.Daten_Speichern();
        files.close(1);
        return bytesOf(folder / "a.dat");
    }

    const std::string wasserstoff{
        "\x01\x01\x01\0H\x0B\0Wasserstoff\x01\0\x2E\x04\x81\x3F\xF6\x28\x60\x41\x71\x3D\xA2\x41"
        "\0\0\x80\x3F\x97\xFF\x90\x3D\xE3\xA5\x9B\x3D\xE6\xB1\x61\xFF\x33\x33\x15\x42\x68\x91"
        "\x59\x41\xCD\xCC\x0C\x40\x05\0(1)s1\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x01\0H",
        88};
    const std::vector<ElementRecord> builtin = readElementCsv(bytesOf(ZERNA_DATA_DIR "/builtin-table.csv"));
    ElementRecord record = builtin.front();
    clsElement element{files, boxes};
};

TEST_F(clsElementTest, RecordLayout)
{
    EXPECT_EQ(written(record), wasserstoff);
    saveElements(folder / "builtin.dat", builtin);
    EXPECT_EQ(bytesOf(folder / "builtin.dat").size(), 540U);
    record.symbol.clear();
    record.Name = "Süß€" + std::string(65531, 'x');
    const std::string bytes = written(record);
    element.setRecord({});
    read(bytes);
    EXPECT_EQ(element.record(), record);
    EXPECT_TRUE(files.at(1).atEnd() && boxes.shown.empty());

    record.Name += 'x';
    EXPECT_EQ(written(record), ""); // nothing rather than half a record
    EXPECT_EQ(boxes.shown.at(0).text, "Error 6 (Überlauf) in procedure Daten_Speichern of Klassenmodul clsElement");
}

TEST_F(clsElementTest, ReportsARecordCutAtEveryByteOnce)
{
    const std::vector<RecordingBoxes::Box> once{{Icon::None, "Zerna",
        "Error 62 (Eingabe hinter Dateiende) in procedure Daten_Lesen of Klassenmodul clsElement"}};
    for (std::size_t size = 0; size < wasserstoff.size(); ++size) {
        boxes.shown.clear();
        element.setEGK("alt");
        read(wasserstoff.substr(0, size));
        EXPECT_EQ(boxes.shown, once) << size;
        EXPECT_EQ(element.symbol() + element.EGK(), size < 5 ? "" : "H") << "cleared first, what was read stays";
    }
    EXPECT_EQ(errorNumber([&] { files.at(32768); }), 6);
}

TEST_F(clsElementTest, OrbitalGroups)
{
    for (int slot = 0; slot < 18; ++slot)
        element.setElektronen(slot, static_cast<std::uint8_t>(slot));
    for (const auto& [orbital, sum] : {std::pair(0, 43), {1, 37}, {2, 45}, {3, 28}, {4, 0}, {-1, 0}})
        EXPECT_EQ(element.Orbital_L_Elektronen(orbital), sum) << orbital;
    element.setElektronen(12, 240);
    EXPECT_EQ(errorNumber([&] { element.Orbital_L_Elektronen(3); }), 6);
    EXPECT_EQ(errorNumber([&] { element.Elektronen(-1); }), 9);
}

} // namespace zerna
