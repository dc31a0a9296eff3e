#pragma once

#include <concepts>
#include <optional>

namespace zerna {

/// Keeps what was computed last for as long as the same is asked for again. The key names all that the result depends
/// on; asking for another one changes nothing but the time that it takes.
template <std::equality_comparable Key, class Result>
class LastResult {
public:
    /// The result for a key, valid until another key is asked for.
    template <std::invocable Compute>
    const Result& get(const Key& key, Compute&& compute) const
    {
        if (!m_result || !(m_key == key)) {
            m_result.reset(); // large results do not stand in memory side by side
            m_result.emplace(compute());
            m_key = key;
        }
        return *m_result;
    }

private:
    mutable Key m_key{};
    mutable std::optional<Result> m_result;
};

} // namespace zerna
