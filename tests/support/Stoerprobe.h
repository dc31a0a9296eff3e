#pragma once

#include <functional>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "support/Stoerung.h"
#include "support/TemporaryFolder.h"

namespace zerna {

/// Writes a file again and again, and each time another call of the system fails: the earlier file or the whole new one
/// is there and nothing else, and a failure says which file or folder and why. A file that is written over in place,
/// since it has a second name, may be lost on a disk that refuses to undo it; the new one is then beside it.
struct Stoerprobe {
    std::filesystem::path ziel; ///< in a folder of its own
    std::function<std::string()> schreibe; ///< answers what was said about a failure; empty if there was none
    std::string frueher = "alt"; ///< the earlier file's bytes; empty for no earlier file
    bool schweigt = false; ///< a failure is not said
    bool verlinkt = false; ///< it has a second name, which must go on naming the same bytes

    void laufe() const
    {
        const std::string whole = wholeFile();
        for (const Stoerung::Art art : Stoerung::Arten) {
            std::string was = "?";
            for (int call = 1; !was.empty(); ++call) {
                ASSERT_LT(call, 200);
                prepare();
                std::string said;
                {
                    const Stoerung stoerung(ziel.parent_path(), art, call);
                    said = schreibe();
                    was = Stoerung::was();
                }
                SCOPED_TRACE("disturbance " + std::to_string(static_cast<int>(art)) + ", " + was + ": " + said);
                check(said, whole, was, art == Stoerung::Art::Verschwunden);
            }
        }
    }

private:
    std::string wholeFile() const
    {
        prepare();
        EXPECT_EQ(schreibe(), "");
        return bytesOf(ziel);
    }

    void prepare() const
    {
        std::filesystem::remove(ziel);
        std::filesystem::remove(zweiterName());
        if (!frueher.empty())
            writeBytes(ziel, frueher);
        if (verlinkt)
            std::filesystem::create_hard_link(ziel, zweiterName());
    }

    void check(const std::string& said, const std::string& whole, const std::string& was, bool isGone) const
    {
        const std::string now = bytesOf(ziel);
        const bool isKept = said.find("vollständig in \"" + neben().filename().string()) != said.npos;
        EXPECT_TRUE(now == whole || ((schweigt || !said.empty()) && now == frueher) || isKept)
            << "it holds: " << now.substr(0, 99);
        EXPECT_EQ(bytesOf(neben()), isKept ? whole : "");
        EXPECT_EQ(bytesOf(zweiterName()), verlinkt ? now : "");
        if (!said.empty()) {
            EXPECT_NE(was, "");
            EXPECT_THAT(said,
                testing::AnyOf(
                    testing::HasSubstr(ziel.filename().string()), testing::HasSubstr(ziel.parent_path().string())));
            EXPECT_THAT(said,
                testing::ContainsRegex(
                    "voll|verweigert|E/A-Fehler|nicht gefunden|Pfad|keinen Ordner|keine lesbare Datei"));
        }
        std::filesystem::remove(neben());
        EXPECT_EQ(isGone || was.starts_with("unlink") ? schreibe() : "", "") << "this goes with the next one";
        EXPECT_THAT(names(), testing::IsSubsetOf({ziel.filename().string(), zweiterName().filename().string()}));
    }

    std::set<std::string> names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(ziel.parent_path()))
            names.insert(entry.path().filename().string());
        return names;
    }

    std::filesystem::path neben() const { return ziel.string() + ".neu"; }
    std::filesystem::path zweiterName() const { return ziel.parent_path() / "zweiter Name"; }
};

} // namespace zerna
