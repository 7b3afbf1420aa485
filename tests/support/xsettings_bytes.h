#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvelle {

/// Writes the bytes of a desktop's published settings, in either byte order.
class XSettingsBytes {
public:
    explicit XSettingsBytes(bool mostSignificantFirst = false)
        : m_isMostSignificantFirst(mostSignificantFirst) {}

    XSettingsBytes& integer(std::string_view name, std::int32_t value) {
        begin(0, name);
        number(static_cast<std::uint32_t>(value), 4);
        return *this;
    }
    XSettingsBytes& text(std::string_view name, std::string_view value) {
        begin(1, name);
        number(static_cast<std::uint32_t>(value.size()), 4);
        padded(value);
        return *this;
    }
    XSettingsBytes& color(std::string_view name) {
        begin(2, name);
        m_settings.append(8, '\x7f');
        return *this;
    }
    /// A setting of any type without a value.
    XSettingsBytes& begin(std::uint8_t type, std::string_view name) {
        ++m_count;
        number(type, 1);
        number(0, 1);
        number(static_cast<std::uint32_t>(name.size()), 2);
        padded(name);
        number(serial, 4);
        return *this;
    }

    [[nodiscard]] std::string bytes() const { return bytes(m_count); }
    /// The same bytes with this count of settings, which may be wrong.
    [[nodiscard]] std::string bytes(std::uint32_t count) const {
        XSettingsBytes header(m_isMostSignificantFirst);
        header.number(m_isMostSignificantFirst ? 1 : 0, 1);
        header.m_settings.append(3, '\0');
        header.number(serial, 4);
        header.number(count, 4);
        return header.m_settings + m_settings;
    }

private:
    static constexpr std::uint32_t serial = 5;

    void number(std::uint32_t value, int size) {
        for (int index = 0; index < size; ++index) {
            const int shift = 8 * (m_isMostSignificantFirst ? size - 1 - index : index);
            m_settings.push_back(static_cast<char>(value >> shift));
        }
    }
    void padded(std::string_view text) {
        m_settings.append(text);
        m_settings.append((4 - text.size() % 4) % 4, '\0');
    }

    bool m_isMostSignificantFirst;
    std::uint32_t m_count = 0;
    std::string m_settings;
};

} // namespace orvelle
