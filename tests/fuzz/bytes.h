#pragma once

#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace orvelle::fuzz {

/// Makes values of a fuzzer's bytes, from the front. Zeros and empty texts when there are no more.
class Bytes {
public:
    explicit Bytes(std::string_view bytes)
        : m_rest(bytes) {}

    [[nodiscard]] bool isEmpty() const { return m_rest.empty(); }

    template <class Number>
    requires std::is_arithmetic_v<Number>
    Number number() {
        Number value{};
        const std::size_t size = std::min(sizeof value, m_rest.size());
        std::copy_n(m_rest.begin(), size, reinterpret_cast<char*>(&value));
        m_rest.remove_prefix(size);
        return value;
    }

    /// Below `bound`, which is above 0.
    std::size_t below(std::size_t bound) { return number<std::uint8_t>() % bound; }

    /// The bytes before the next `end`, which is skipped.
    std::string_view part(char end) {
        const std::size_t size = std::min(m_rest.find(end), m_rest.size());
        const std::string_view taken = m_rest.substr(0, size);
        m_rest.remove_prefix(std::min(size + 1, m_rest.size()));
        return taken;
    }
    QString line() { return text(part('\n')); }
    QString rest() { return text(std::exchange(m_rest, {})); }

    [[nodiscard]] static QString text(std::string_view bytes) {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }

private:
    std::string_view m_rest;
};

} // namespace orvelle::fuzz
