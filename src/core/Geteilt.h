#pragma once

#include <memory>
#include <utility>

namespace zerna {

/// A value that is large and seldom changes: its copies share it. It is replaced as a whole, never changed.
template <class Value>
class Geteilt {
public:
    Geteilt(Value value = {}) // NOLINT(google-explicit-constructor): stands for its value
        : m_value(std::make_shared<const Value>(std::move(value)))
    {
    }

    const Value& operator*() const { return *m_value; }
    const Value* operator->() const { return m_value.get(); }

    /// Whether it is the same one, not just an equal one.
    bool istDasselbe(const Geteilt& other) const { return m_value == other.m_value; }

    bool operator==(const Geteilt& other) const { return istDasselbe(other) || *m_value == *other.m_value; }

private:
    std::shared_ptr<const Value> m_value; // never null
};

} // namespace zerna
