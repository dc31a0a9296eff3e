#include "ui/main/Verlauf.h"

#include "support/RechnerTest.h"

namespace zerna {

struct VerlaufTest : RechnerTest {
    VerlaufTest()
    {
        addElements();
        dokument.eingabe.setAnzahl(2);
        dokument.eingabe.waehleElement(0, "Al");
        dokument.eingabe.waehleElement(1, "Cu");
        verlauf.beginne();
    }

    void type(const char* prozent, const char* geste = "txtProzent_0")
    {
        dokument.eingabe.setProzent(0, prozent);
        verlauf.geschehen({QString::fromLatin1(prozent), QString::fromLatin1(geste)});
    }

    /// The names of the steps, the last one that has been done in brackets.
    std::string schritte()
    {
        std::string names;
        for (int i = 0; i < verlauf.stapel().count(); ++i) {
            const std::string name = verlauf.stapel().text(i).toStdString();
            names += i + 1 == verlauf.stapel().index() ? '[' + name + ']' : name + ' ';
        }
        return names;
    }

    const std::string& prozent() const { return dokument.eingabe.zeile(0).prozent.text; }

    Dokument dokument{elements};
    Eingabe gerechnet{elements};
    Verlauf verlauf{dokument, gerechnet};
};

TEST_F(VerlaufTest, AGestureIsOneStepUntilItEnds)
{
    type("6");
    type("60");
    verlauf.trenne();
    type("61");
    type("62", "");
    type("63", "");
    EXPECT_EQ(schritte(), "60 61 62 [63]");
    verlauf.stapel().undo();
    verlauf.stapel().undo();
    type("64"); // does not go on with what is behind it
    EXPECT_EQ(schritte(), "60 61 [64]");
    type("61"); // leads back
    EXPECT_EQ(schritte(), "60 [61]");
    verlauf.geschehen({QStringLiteral("nothing")});
    EXPECT_EQ(schritte(), "60 [61]");
    verlauf.stapel().undo();
    verlauf.stapel().undo();
    EXPECT_EQ(prozent(), "50");
    verlauf.stapel().redo();
    EXPECT_EQ(prozent(), "60");
}

TEST_F(VerlaufTest, AThousandStepsAndTheStateOfTheFileAreKept)
{
    for (int i = 0; i < Verlauf::Grenze + 5; ++i)
        type(std::to_string(i).c_str(), "");
    EXPECT_EQ(verlauf.stapel().count(), Verlauf::Grenze);
    verlauf.trenne();
    verlauf.stapel().setClean();
    type("9");
    EXPECT_FALSE(verlauf.stapel().isClean());
    verlauf.stapel().undo();
    EXPECT_TRUE(verlauf.stapel().isClean());
    while (verlauf.stapel().canUndo())
        verlauf.stapel().undo();
    EXPECT_EQ(prozent(), "5"); // the oldest five are forgotten, and a sixth made room for the last
}

/// While the alloy is incomplete the state remembers which one the results belong to, and only then.
TEST_F(VerlaufTest, AnIncompleteStateKnowsItsResults)
{
    const Verlauf::Stand* back = nullptr;
    QObject::connect(&verlauf, &Verlauf::zurueckgekehrt, &verlauf, [&](const auto& stand) { back = &stand; });
    gerechnet = dokument.eingabe;
    type("");
    verlauf.trenne();
    type("30");
    verlauf.stapel().undo();
    ASSERT_TRUE(back != nullptr && back->gerechnet);
    EXPECT_EQ(back->gerechnet->zeile(0).prozent.text, "50");
    verlauf.stapel().undo();
    EXPECT_FALSE(back->gerechnet);
}

} // namespace zerna
