#include "parser/clsParser.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

namespace {

std::string repeated(int count, std::string_view text)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

} // namespace

struct clsParserTest : FilesTest {
    clsParserTest()
    {
        for (const auto& [symbol, valence] : {std::pair("Cu", 1.5F), {"Fe", 0.1F}, {"Xx", Unbekannt}}) {
            elements.Add(std::make_shared<clsElement>(files, boxes), symbol);
            elements.Item(symbol)->setsymbol(symbol);
            elements.Item(symbol)->setValenz(valence);
        }
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
};

// Operators, functions and errors are recorded in befehle.txt.
TEST_F(clsParserTest, LastResultAndError)
{
    const std::pair<std::string, const char*> rows[] = {{"z_Cu+Z_cu", "3"}, {"z_Fe*3", "0,3"}, {"z_Fe-1", "-0,9"},
        {"1" + repeated(300000, "+1"), "300001"}, {"1234,5", "1234,5"}};
    for (const auto& [formula, value] : rows) {
        EXPECT_EQ(parser.Parse(formula), value);
        EXPECT_FALSE(parser.LastError());
    }
    for (const char* const number : {"007,50", ",5", "3,", "0.00001", "123456789012345", "0,1234567890123456", "0"})
        EXPECT_EQ(parser.Parse(number), parser.Parse("(" + std::string(number) + ")"));
    parser.Parse("1234,5");
    EXPECT_EQ(parser.FormatLastResult("Scientific"), "1,23E+03");
    EXPECT_EQ(parser.FormatLastResult("Standard"), "1234,5");
    EXPECT_EQ(parser.FormatLastResult("Fixed"), "");
    EXPECT_EQ(parser.Parse("1+z_Xx"), "0") << "unknown valence";
    EXPECT_EQ(parser.LastError()->Nummer, 5);
    EXPECT_EQ(parser.LastError()->Stelle, 3U);
    std::string names;
    for (int i = 0; i <= parser.FunctionCount(); ++i)
        names.append(parser.FunctionName(i)).append(" ");
    EXPECT_EQ(names,
        "ln sin cos atan abs sqrt log lg ld exp tan root3 root pow deg rad pow2 arcsin sinh arccos cosh tanh cot coth "
        "arsinh arcosh artanh arcoth Hex  ");
}

TEST_F(clsParserTest, NamesAnUnknownFunctionAndCountsItAsZero)
{
    EXPECT_EQ(parser.Parse("2+foo(1)"), "2");
    parser.Parse("foo(2)+hex(2e9)+hex(2e9)"); // too large for hexadecimal digits, but that is not the first error
    EXPECT_EQ(parser.LastError()->Nummer, 5);
    const RecordingBoxes::Box box{Icon::None, "Formelparser", "Fehler in Formel. (Funktion 'foo' nicht definiert?)"};
    EXPECT_EQ(boxes.shown, std::vector({box, box}));
}

/// Evaluates a formula of its own whenever a box is shown.
struct EvaluatingBoxes : RecordingBoxes {
    void show(Icon icon, std::string_view caption, std::string_view text) override
    {
        RecordingBoxes::show(icon, caption, text);
        if (shown.size() == 1)
            nested = parser->Parse("1+2*z_Qq");
        else
            nested = parser->Parse("hex(7)*(1+2)+10");
    }
    clsParser* parser = nullptr;
    std::string nested;
};

TEST_F(clsParserTest, AnEvaluationBehindAMessageLeavesTheFirstAlone)
{
    EvaluatingBoxes evaluating;
    clsParser reentrant(elements, evaluating);
    evaluating.parser = &reentrant;
    EXPECT_EQ(reentrant.Parse("2*(3+foo(1))+z_Cu*bar(2)+5"), "11");
    EXPECT_EQ(evaluating.shown.size(), 2U);
    EXPECT_EQ(evaluating.nested, "0x1F");
    EXPECT_EQ(reentrant.FormatLastResult("Standard"), "11");
    ASSERT_TRUE(reentrant.LastError());
    EXPECT_EQ(reentrant.LastError()->Grund, "Funktion \"foo\" ist nicht definiert");
}

TEST_F(clsParserTest, AValueCarriesItsErrorAndAtMostTenMessages)
{
    const Formelwert value = formelwert("hex(255)" + repeated(12, "+foo(1)") + "+1/0", elements);
    EXPECT_EQ(value.text, "0");
    EXPECT_EQ(value.wert, 0);
    EXPECT_FALSE(value.hexadezimal);
    EXPECT_EQ(value.fehler->Stelle, 10U); // the first foo, though only the division ends the evaluation
    const std::string longName = repeated(20, "größe");
    const auto messageFor = [&](const std::string& name) { return formelwert(name + "(1)", elements).meldungen.at(0); };
    EXPECT_NE(messageFor(longName).find("'" + longName + "'"), std::string::npos) << "whole";
    EXPECT_LT(messageFor(repeated(20000, "größe")).size(), 500U) << "not a formula again";
    EXPECT_EQ(value.meldungen, std::vector<std::string>(10, "Fehler in Formel. (Funktion 'foo' nicht definiert?)"));

    for (int time = 0; time < 2; ++time) {
        const Formelwert hexadecimal = formelwert("hex(z_Cu*2)", elements);
        EXPECT_EQ(hexadecimal.text, "0x3");
        EXPECT_EQ(hexadecimal.wert, 3);
        EXPECT_TRUE(hexadecimal.hexadezimal);
        EXPECT_FALSE(hexadecimal.fehler);
    }
}

TEST_F(clsParserTest, RemovesBlanksInItsOwnWay)
{
    for (const auto& [formula, compact] :
        {std::pair("1  +  2", "1 + 2"), {"1+2 ", "1+2 "}, {" 1 2 ", "12"}, {"   ", " "}})
        EXPECT_EQ(removeBlanks(formula), compact) << formula;
}

} // namespace zerna
