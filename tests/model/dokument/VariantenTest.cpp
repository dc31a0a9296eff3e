#include "model/dokument/Varianten.h"

#include "model/EingabeFixture.h"

namespace zerna {

struct VariantenTest : EingabeFixture {
    /// Keeps aluminium with so much copper.
    void merke(const char* aluminium)
    {
        eingabe.setProzent(0, aluminium);
        merken(vergleich, eingabe);
    }

    /// "a b* c": the names, the reference with a star.
    static std::string namen(const Vergleich& vergleich)
    {
        std::string text;
        for (std::size_t i = 0; i < vergleich.varianten.size(); ++i)
            text += (i == 0 ? "" : " ") + vergleich.varianten[i].name + (i == vergleich.referenz ? "*" : "");
        return text;
    }

    Vergleich vergleich;
};

TEST_F(VariantenTest, AreNamedAfterTheirCompositionUnlikeEachOther)
{
    merke("60");
    merke("33,3");
    merke("60");
    merke("60,0");
    eingabe.setAnzahl(1);
    merken(vergleich, eingabe);
    EXPECT_EQ(namen(vergleich), "Al60Cu40* Al33,3Cu66,7 Al60Cu40 (2) Al60Cu40 (3) Al");
    eingabe.setAnzahl(3);
    eingabe.waehleElement(2, "Mg");
    eingabe.setProzent(0, "95");
    eingabe.setProzent(1, "5,0");
    eingabe.setEinheit(Anteilseinheit::Masse);
    merken(vergleich, eingabe);
    EXPECT_EQ(vergleich.varianten.back().name, "Al95Cu5") << "only shown in mass %";
    eingabe.setProzent(0, "95");
    eingabe.setProzent(1, "5,0");
    merken(vergleich, eingabe);
    EXPECT_EQ(vergleich.varianten.back().name, "Al95Cu5 Masse %");
    EXPECT_EQ(vergleich.varianten[1].eingabe.zeile(0).prozent.text, "33,3") << "a later change has reached it";

    for (const auto& [typed, name] : {std::tuple("  Probe 7\t(heiß)\r\n", "Probe 7 (heiß)"), {"Al", "Al (2)"},
             {"Al33,3Cu66,7", "Al33,3Cu66,7"}, {" ", "Al33,3Cu66,7"}}) {
        umbenennen(vergleich, 1, typed);
        EXPECT_EQ(vergleich.varianten[1].name, name) << typed;
    }
    umbenennen(vergleich, 1, std::string(59, 'x') + "ßü");
    EXPECT_EQ(vergleich.varianten[1].name, std::string(59, 'x') + "ß");
}

TEST_F(VariantenTest, TheReferenceStaysTheSameAlloy)
{
    for (int i = 0; i < 4; ++i)
        merken(vergleich, eingabe);
    for (std::size_t i = 0; i < 4; ++i)
        umbenennen(vergleich, i, std::string(1, static_cast<char>('a' + i)));
    setzeReferenz(vergleich, 1);
    const auto moved = [this](std::size_t from, std::size_t to) {
        Vergleich copy = vergleich;
        verschieben(copy, from, to);
        return namen(copy);
    };
    EXPECT_EQ(moved(1, 3), "a c d b*");
    EXPECT_EQ(moved(1, 0), "b* a c d");
    EXPECT_EQ(moved(0, 3), "b* c d a");
    EXPECT_EQ(moved(0, 1), "b* a c d");
    EXPECT_EQ(moved(3, 0), "d a b* c");
    EXPECT_EQ(moved(3, 2), "a b* d c");
    const auto without = [this](std::size_t position) {
        Vergleich copy = vergleich;
        loeschen(copy, position);
        return namen(copy);
    };
    EXPECT_EQ(without(0), "b* c d");
    EXPECT_EQ(without(1), "a* c d");
    EXPECT_EQ(without(3), "a b* c");
    for (const auto& wrong :
        {std::function<void()>([this] { verschieben(vergleich, 0, 4); }), {[this] { loeschen(vergleich, 4); }},
            {[this] { setzeReferenz(vergleich, 4); }}, {[this] { umbenennen(vergleich, 4, "x"); }}})
        EXPECT_THROW(wrong(), Laufzeitfehler);
    EXPECT_EQ(namen(vergleich), "a b* c d");
}

TEST_F(VariantenTest, WhatCannotBeKeptIsRefusedWithTheReason)
{
    const float before = calc.Valenz();
    EXPECT_EQ(merkhindernis(vergleich, eingabe, calc), "");
    eingabe.setProzent(0, "6o");
    EXPECT_NE(merkhindernis(vergleich, eingabe, calc).find("Komponente 1 (Al): "), std::string::npos);
    eingabe.setProzent(0, "60");
    valenz(0, "-9")(eingabe);
    EXPECT_NE(merkhindernis(vergleich, eingabe, calc).find("Valenz ist nicht positiv"), std::string::npos);
    EXPECT_EQ(calc.Valenz(), before) << "the calculator has another alloy now";
    valenz(0, "3")(eingabe);
    while (vergleich.varianten.size() < MaxVarianten)
        merken(vergleich, eingabe);
    EXPECT_NE(merkhindernis(vergleich, eingabe, calc).find("schon 50 "), std::string::npos);
    EXPECT_THROW(merken(vergleich, eingabe), Laufzeitfehler);
    EXPECT_EQ(vergleich.varianten.size(), MaxVarianten);
}

} // namespace zerna
