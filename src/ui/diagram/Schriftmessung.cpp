#include "ui/diagram/Schriftmessung.h"

#include <QFont>
#include <QFontMetricsF>

#include <algorithm>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>

#include "ui/platform/QtText.h"

namespace zerna {

namespace {

class Schriftmessung {
public:
    explicit Schriftmessung(const QFont& font)
        : m_font(font)
        , m_metrics(font)
    {
    }

    bool isOf(const QFont& font, double height) const { return m_font == font && m_metrics.height() == height; }
    double height() const { return m_metrics.height(); }

    double width(std::string_view text)
    {
        constexpr std::size_t Most = 2000; // texts, so that no session gathers ever more of them
        if (m_widths.size() >= Most)
            m_widths.clear();
        const auto [place, isNew] = m_widths.try_emplace(std::string(text));
        if (isNew)
            place->second = m_metrics.horizontalAdvance(toQt(text));
        return place->second;
    }

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    std::unordered_map<std::string, double> m_widths;
};

/// The one of a font, of which a picture has few. On another screen the same font may have another height.
std::shared_ptr<Schriftmessung> messungIn(const QFont& font)
{
    constexpr std::size_t Most = 12; // fonts
    static thread_local std::deque<std::shared_ptr<Schriftmessung>> kept;
    const double height = QFontMetricsF(font).height();
    const auto found = std::ranges::find_if(kept, [&](const auto& messung) { return messung->isOf(font, height); });
    if (found != kept.end())
        return *found;
    if (kept.size() >= Most)
        kept.pop_front();
    return kept.emplace_back(std::make_shared<Schriftmessung>(font));
}

} // namespace

Textmasse textmasse(const QFont& font)
{
    const auto messung = messungIn(font);
    return {[messung](std::string_view text) { return messung->width(text); }, messung->height()};
}

} // namespace zerna
