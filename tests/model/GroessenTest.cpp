#include "model/Groessen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "model/PSEReihe.h"

namespace zerna {

TEST(Groessen, EachIsReadInOneWayAndFoundByItsCodeAlone)
{
    std::set<int> kennzahlen;
    for (const Groesse& groesse : groessen()) {
        SCOPED_TRACE(groesse.kennzahl * 100 + groesse.zeile);
        EXPECT_NE(groesse.wert == nullptr, groesse.elementwert == nullptr);
        EXPECT_EQ(groesse.zeile >= 0, groesse.beschriftung.ends_with(':'));
        if (groesse.kennzahl < 0)
            continue;
        EXPECT_TRUE(kennzahlen.insert(groesse.kennzahl).second);
        EXPECT_EQ(findGroesse(groesse.kennzahl), &groesse);
        EXPECT_FALSE(groesse.name.empty());
        EXPECT_EQ(groesse.ueberElementen(), std::ranges::count(psegroessen(), groesse.kennzahl) == 1);
    }
    EXPECT_EQ(kennzahlen.size(), 23U);
    EXPECT_EQ(letzteReihenkennzahl(), 10);
}

TEST(Groessen, WhatHasNoPlaceIsNotFound)
{
    struct Row {
        int kennzahl;
        bool known, ueberLegierungen;
    };
    for (const auto& [kennzahl, known, ueberLegierungen] : {Row{-1, false, false}, {0, true, true}, {10, true, true},
             {11, true, false}, {22, true, false}, {23, false, false}}) {
        EXPECT_EQ(findGroesse(kennzahl) != nullptr, known) << kennzahl;
        EXPECT_EQ(findReihengroesse(kennzahl) != nullptr, ueberLegierungen) << kennzahl;
    }
}

} // namespace zerna
