#pragma once

#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/clsElement.h"

namespace zerna {

/// All element records in the order of the data file, found by position (from 1) or by symbol.
class ElementCollection {
public:
    using Element = std::shared_ptr<clsElement>;

    /// Appends under a key; error 457 if the key is taken.
    void Add(Element element, std::string_view key);

    /// Item `position`, 1 to Count; error 9 for any other.
    const Element& Item(int position) const;

    /// The item of that key; error 5 if there is none.
    const Element& Item(std::string_view key) const;

    /// The item of that key, null if there is none; with `ignoringCase` the first whose key differs in case only.
    const Element& find(std::string_view key, bool ignoringCase = false) const;

    int Count() const { return static_cast<int>(m_elements.size()); }

    /// Another number after each change of what is found here (not of what the elements hold).
    std::size_t Stand() const { return m_stand; }

    void clear();

    auto begin() const { return m_elements.begin(); }
    auto end() const { return m_elements.end(); }

private:
    static constexpr std::size_t Tafelgroesse = 128; // a full table fits without growing

    struct Hash {
        using is_transparent = void;
        // Not noexcept, so that the library keeps each key's hash instead of computing it anew at every step.
        // A symbol has one to three bytes, so this is done before the library's is called.
        std::size_t operator()(std::string_view key) const
        {
            std::size_t hash = 0;
            for (const char c : key)
                hash = 257 * hash + static_cast<unsigned char>(c);
            return hash;
        }
    };

    std::vector<Element> m_elements;
    std::pmr::monotonic_buffer_resource m_memory{Tafelgroesse * 80}; // of the positions
    std::pmr::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> m_positions{&m_memory}; // from 0
    std::size_t m_stand = 0;
};

} // namespace zerna
