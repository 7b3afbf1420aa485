#include "shell/x11/xsettings.h"

#include <algorithm>
#include <variant>

namespace orvelle {
namespace {

constexpr std::uint32_t leastSignificantFirst = 0;
constexpr std::uint32_t mostSignificantFirst = 1;

constexpr std::uint32_t integerType = 0;
constexpr std::uint32_t textType = 1;
constexpr std::uint32_t colorType = 2;
constexpr std::size_t colorSize = 8;
constexpr std::size_t serialSize = 4;

/// Takes values from the front of the bytes; nothing when there are too few.
class Reader {
public:
    explicit Reader(std::string_view bytes)
        : m_rest(bytes) {}

    void setMostSignificantFirst(bool isFirst) { m_isMostSignificantFirst = isFirst; }

    std::optional<std::string_view> bytes(std::size_t count) {
        if (count > m_rest.size())
            return std::nullopt;
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return taken;
    }

    std::optional<std::uint32_t> number(std::size_t size) {
        const std::optional<std::string_view> taken = bytes(size);
        if (!taken)
            return std::nullopt;
        std::uint32_t value = 0;
        for (std::size_t index = 0; index < size; ++index) {
            const char byte = (*taken)[m_isMostSignificantFirst ? index : size - 1 - index];
            value = value << 8 | static_cast<unsigned char>(byte);
        }
        return value;
    }

    /// A text whose length is a multiple of 4 with the padding, which may be missing at the very end.
    std::optional<std::string_view> paddedText(std::size_t size) {
        const std::optional<std::string_view> text = bytes(size);
        if (text)
            m_rest.remove_prefix(std::min((4 - size % 4) % 4, m_rest.size()));
        return text;
    }

private:
    std::string_view m_rest;
    bool m_isMostSignificantFirst = false;
};

/// Takes the byte order and the rest of the header. Returns the number of settings that it announces.
std::optional<std::uint32_t> takeHeader(Reader& reader) {
    const std::optional<std::uint32_t> order = reader.number(1);
    if (order != leastSignificantFirst && order != mostSignificantFirst)
        return std::nullopt;
    reader.setMostSignificantFirst(order == mostSignificantFirst);
    if (!reader.bytes(3 + serialSize))
        return std::nullopt;
    return reader.number(4);
}

/// The value of a colour is not needed.
struct Color {};
using Value = std::variant<Color, std::int32_t, std::string_view>;

/// Takes the value of a setting. Nothing when it is truncated or its type, and with it its size, is unknown.
std::optional<Value> takeValue(Reader& reader, std::uint32_t type) {
    if (type == integerType) {
        const std::optional<std::uint32_t> number = reader.number(4);
        return number ? std::optional<Value>(static_cast<std::int32_t>(*number)) : std::nullopt;
    }
    if (type == colorType)
        return reader.bytes(colorSize) ? std::optional<Value>(Color()) : std::nullopt;
    if (type != textType)
        return std::nullopt;
    const std::optional<std::uint32_t> size = reader.number(4);
    const std::optional<std::string_view> text = size ? reader.paddedText(*size) : std::nullopt;
    return text ? std::optional<Value>(*text) : std::nullopt;
}

std::optional<Value> valueOf(std::string_view property, std::string_view name) {
    Reader reader(property);
    const std::uint32_t count = takeHeader(reader).value_or(0);
    for (std::uint32_t index = 0; index < count; ++index) {
        const std::optional<std::uint32_t> type = reader.number(1);
        reader.bytes(1); // unused
        const std::optional<std::string_view> found = reader.paddedText(reader.number(2).value_or(0));
        if (!type || !found || !reader.bytes(serialSize))
            return std::nullopt;
        const std::optional<Value> value = takeValue(reader, *type);
        if (!value || found == name)
            return value;
    }
    return std::nullopt;
}

/// The value, if it has this type.
template <class Wanted>
std::optional<Wanted> settingOf(std::string_view property, std::string_view name) {
    const std::optional<Value> value = valueOf(property, name);
    const Wanted* wanted = value ? std::get_if<Wanted>(&*value) : nullptr;
    return wanted != nullptr ? std::optional<Wanted>(*wanted) : std::nullopt;
}

} // namespace

std::optional<std::int32_t> integerSetting(std::string_view property, std::string_view name) {
    return settingOf<std::int32_t>(property, name);
}

std::optional<std::string_view> textSetting(std::string_view property, std::string_view name) {
    return settingOf<std::string_view>(property, name);
}

} // namespace orvelle
