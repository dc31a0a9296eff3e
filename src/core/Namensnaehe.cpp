#include "core/Namensnaehe.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "core/Zeichensatz.h"

namespace zerna {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> Umlaute{
    {{"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"ß", "ss"}}};

constexpr std::size_t LaengsterName = 60; // who pastes a page does not mean one of them

bool isLetterOrDigit(char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }

constexpr std::size_t Beginning = 3; // letters that tell a name

/// How many letters may be wrong. A short text is near to nearly everything.
std::size_t allowedDistance(std::size_t length)
{
    constexpr std::size_t Short = 5;
    constexpr std::size_t Medium = 8;
    return length <= Short ? 1 : length <= Medium ? 2 : 3;
}

/// Distance of two compared names; `Fern` if nobody mistakes one for the other.
constexpr std::size_t Fern = 100;

std::size_t distanceOf(const std::string& text, const std::string& name)
{
    if (text.empty() || name.empty())
        return Fern;
    if (text.size() >= Beginning && name.starts_with(text))
        return 1;
    const std::size_t allowed = allowedDistance(text.size());
    if (std::max(text.size(), name.size()) - std::min(text.size(), name.size()) > allowed)
        return Fern;
    const std::size_t distance = abstand(text, name);
    const bool isShort = std::min(text.size(), name.size()) < Beginning;
    const bool mayBe = isShort ? text.front() == name.front() && distance <= 1 : distance <= allowed;
    return mayBe ? distance : Fern;
}

/// Tells most names that are none before anything is done with them: nothing makes a name longer, and who stops long
/// before its end has begun as it does.
bool mayBeNear(const std::string& wanted, std::string_view name)
{
    constexpr std::size_t Separators = 4;
    const std::size_t allowed = allowedDistance(wanted.size());
    const char first = name.empty() ? '-' : static_cast<char>(static_cast<unsigned>(name.front()) | 0x20U);
    const bool beginsOtherwise = first >= 'a' && first <= 'z' && first != wanted.front();
    return wanted.size() <= name.size() + allowed
        && !(beginsOtherwise && name.size() > wanted.size() + allowed + Separators)
        && !(beginsOtherwise && std::min(wanted.size(), name.size()) < Beginning);
}

} // namespace

std::string vergleichsname(std::string_view utf8)
{
    const std::string lower = lowerCase(utf8.substr(0, 2 * LaengsterName));
    std::string name;
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const std::string_view rest = std::string_view(lower).substr(i);
        const auto* const umlaut =
            std::ranges::find_if(Umlaute, [&](const auto& pair) { return rest.starts_with(pair.first); });
        if (umlaut != Umlaute.end())
            name += umlaut->second;
        else if (isLetterOrDigit(lower[i]))
            name += lower[i];
    }
    return name;
}

std::size_t abstand(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> before(b.size() + 1); // the line above the last one
    std::vector<std::size_t> last(b.size() + 1);
    std::iota(last.begin(), last.end(), 0);
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::vector<std::size_t> line(b.size() + 1, i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            line[j + 1] = std::min({last[j + 1] + 1, line[j] + 1, last[j] + (a[i] == b[j] ? 0 : 1)});
            if (i > 0 && j > 0 && a[i] == b[j - 1] && a[i - 1] == b[j])
                line[j + 1] = std::min(line[j + 1], before[j - 1] + 1);
        }
        before = std::exchange(last, std::move(line));
    }
    return last.back();
}

std::vector<std::size_t> naechsteNamen(std::string_view text, std::span<const std::string_view> namen)
{
    constexpr std::size_t Most = 3;
    const std::string wanted = vergleichsname(text);
    std::vector<std::pair<std::size_t, std::size_t>> near; // distance, position
    for (std::size_t i = 0; wanted.size() > 1 && i < namen.size(); ++i) { // a letter may be the first of anything
        if (!mayBeNear(wanted, namen[i]))
            continue;
        if (const std::size_t distance = distanceOf(wanted, vergleichsname(namen[i])); distance < Fern)
            near.emplace_back(distance, i);
    }
    std::ranges::sort(near);
    if (near.size() > Most && near[Most].first == near.front().first)
        near.clear();
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < std::min(near.size(), Most); ++i)
        positions.push_back(near[i].second);
    return positions;
}

std::string aufzaehlung(std::span<const std::string> namen)
{
    std::string text;
    for (std::size_t i = 0; i < namen.size(); ++i)
        text += (i == 0 ? "" : i + 1 < namen.size() ? ", " : " oder ") + namen[i];
    return text;
}

std::string meintenSie(std::span<const std::string> namen)
{
    return namen.empty() ? std::string() : "Meinten Sie " + aufzaehlung(namen) + '?';
}

std::string satzende(const std::string& satz) { return satz.empty() ? satz : ". " + satz; }

std::string vorschlag(std::string_view text, std::span<const std::string> namen)
{
    std::vector<std::string> near;
    for (const std::size_t position : naechsteNamen(text, std::vector<std::string_view>(namen.begin(), namen.end()))) {
        if (std::ranges::find(near, namen[position]) == near.end())
            near.push_back(namen[position]);
    }
    return meintenSie(near);
}

} // namespace zerna
