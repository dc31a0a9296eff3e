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

TEST_F(clsParserTest, Operators)
{
    const std::pair<std::string, const char*> rows[] = {{"", "0"}, {"12.5", "12,5"}, {"2+3*4", "14"}, {"(2+3)*4", "20"},
        {"8/4/2-1-1", "-1"}, {"2*3^2", "18"}, {"2^3^2", "64"}, {" 1  +  2 ", "3"}, {"1 2", "12"}, {"z_Cu+Z_cu", "3"},
        {"z_Fe*3", "0,3"}, {"HEX(255,9)+1", "0x100"}, {"hex(0-1)", "0xFFFFFFFF"},
        {"abs(1/3)*3-1", "-1,11022302462516E-15"}, {"1" + repeated(300000, "+1"), "300001"},
        {"2*3+(1" + repeated(40, "+1*2") + ")", "87"}, {repeated(199, "(") + "1" + repeated(199, ")"), "1"}};
    for (const auto& [formula, value] : rows) {
        SCOPED_TRACE(formula.substr(0, 40));
        EXPECT_EQ(parser.Parse(formula), value);
        EXPECT_FALSE(parser.LastError());
    }
    parser.Parse("1234,5");
    EXPECT_EQ(parser.FormatLastResult("Scientific"), "1,23E+03");
    EXPECT_EQ(parser.FormatLastResult("Standard"), "1234,5");
    EXPECT_EQ(parser.FormatLastResult("Fixed"), "");
}

TEST_F(clsParserTest, AnExponentNeedsANumberBeforeIt)
{
    for (const auto& [formula, value] :
        {std::pair("1,5e-3", "0,0015"), {"1,5E+3", "1500"}, {"2*e-1", "4,5436563656918"}, {"e-1", "1,7718281828459"},
            {"(E+1)", "3,7718281828459"}, {"z_Fe-1", "-0,9"}, {"&HE+1", "15"}})
        EXPECT_EQ(parser.Parse(formula), value) << formula;
}

TEST_F(clsParserTest, FunctionsWithTheirOddities)
{
    const std::pair<const char*, const char*> rows[] = {{"ln(e)", "1,0195070963063"}, {"sin(pi/6)", "0,5"},
        {"cos(0)", "1"}, {"atan(1)*4", "3,14159265358979"}, {"abs(2-5)", "3"}, {"sqrt(16)", "4"}, {"log(8;2)", "3"},
        {"lg(1000)", "3"}, {"ld(8)", "3"}, {"exp(1)", "2,71828182845905"}, {"tan(1)", "1,5574077246549"},
        {"root3(27)", "3"}, {"root(27;3)", "3"}, {"pow(pow(2;3);2)", "64"}, {"deg(PI)", "180"},
        {"rad(180)", "3,14159265358979"}, {"pow2(3)", "9"}, {"arcsin(0,5)", "0,523598775598299"}, {"sinh(1)", "0"},
        {"arccos(0,5)", "-0,523598775598299"}, {"cosh(1)", "1,54308063481524"}, {"tanh(1)", "0,761594155955765"},
        {"cot(1)", "0,642092615934331"}, {"coth(1)", "1,31303528549933"}, {"arsinh(1)", "0,881373587019543"},
        {"arcosh(2)", "1,31695789692482"}, {"artanh(0,5)", "0,549306144334055"}, {"arcoth(2)", "0,549306144334055"},
        {"hex(&H10)", "0x10"}};
    ASSERT_EQ(static_cast<int>(std::size(rows)), parser.FunctionCount());
    for (int i = 0; i < parser.FunctionCount(); ++i) {
        const auto& [formula, value] = rows[i];
        EXPECT_EQ(parser.Parse(formula), value) << formula;
        EXPECT_TRUE(std::string(formula).starts_with(i == 28 ? "hex" : parser.FunctionName(i))) << formula;
    }
    EXPECT_EQ(parser.FunctionName(28), "Hex");
    EXPECT_EQ(parser.FunctionName(29), "");
}

TEST_F(clsParserTest, ErrorsGiveZeroAndTellWhere)
{
    struct Row {
        const char* name;
        std::string formula;
        int number;
        std::size_t place;
    };
    const Row rows[] = {
        {"a sign", "-3", 13, 1},
        {"a sign behind an operator", "2*-3", 13, 3},
        {"nothing behind an operator", "2+", 13, 3},
        {"never closed", "(1", 13, 1},
        {"never opened", "1)", 13, 2},
        {"no operator behind parentheses", "(1)2", 13, 4},
        {"no argument", "sin()", 13, 5},
        {"one argument of two", "1+pow(2)", 13, 8},
        {"an empty argument", "pow(;2)", 13, 5},
        {"blanks count", "1 + ä + x", 13, 5},
        {"characters count, not bytes", "ä*(2+x)", 13, 1},
        {"operands come before arithmetic", "1/0+ä+1/0", 13, 5},
        {"powers come before quotients", "1/0+0^(0-1)", 5, 6},
        {"two separators", "1.234,5", 13, 1},
        {"division by zero", "3+1/0", 11, 4},
        {"zero by zero", "0/0", 6, 2},
        {"logarithm of zero", "1+ln(0)", 5, 3},
        {"root of a negative number", "sqrt(1-2)", 5, 1},
        {"broken power of a negative number", "(0-8)^(1/3)", 5, 6},
        {"overflow", "10^400", 6, 3},
        {"number too large", "1e400", 6, 1},
        {"too large for hex", "hex(1e10)", 6, 1},
        {"unknown element", "z_Qq", 5, 1},
        {"unknown valence", "z_Xx", 5, 1},
        {"101 arguments", "sin(" + repeated(100, "1;") + "1)", 9, 205},
        {"parentheses never closed", repeated(100000, "("), 13, 1},
        {"parentheses too deep", repeated(100000, "(") + "1" + repeated(100000, ")"), 5, 201},
        {"functions too deep", repeated(100000, "abs(") + "1" + repeated(100000, ")"), 5, 801},
        {"a million letters", std::string(1000000, 'x'), 13, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(parser.Parse(row.formula), "0");
        EXPECT_EQ(parser.LastError()->Nummer, row.number);
        EXPECT_EQ(parser.LastError()->Stelle, row.place);
    }
    EXPECT_TRUE(boxes.shown.empty());
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
