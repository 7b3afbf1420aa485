#include "platform/linux/text.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace orvelle::linux_platform {
namespace {

/// How an escape is written: what it starts with and the digits that follow.
struct EscapeForm {
    std::string_view start;
    std::size_t digitCount;
    int base;

    [[nodiscard]] std::size_t size() const { return start.size() + digitCount; }
};

/// The byte that the escape at the start of `text` stands for; nothing when there is none.
std::optional<char> escapedByte(std::string_view text, const EscapeForm& form) {
    if (text.size() < form.size() || !text.starts_with(form.start))
        return std::nullopt;
    const std::string_view digits = text.substr(form.start.size(), form.digitCount);
    unsigned value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, form.base);
    if (error != std::errc{} || stop != end || value > 0xFF)
        return std::nullopt;
    return static_cast<char>(value);
}

std::string withoutEscapes(std::string_view text, const EscapeForm& form) {
    const std::size_t plainStart = std::min(text.find(form.start), text.size());
    std::string plain(text.substr(0, plainStart)); // nearly always all of it
    text.remove_prefix(plainStart);
    plain.reserve(plain.size() + text.size());
    while (!text.empty()) {
        const std::optional<char> byte = escapedByte(text, form);
        plain += byte.value_or(text.front());
        text.remove_prefix(byte ? form.size() : 1);
    }
    return plain;
}

} // namespace

std::string withoutOctalEscapes(std::string_view text) {
    return withoutEscapes(text, {.start = "\\", .digitCount = 3, .base = 8});
}

std::string withoutHexEscapes(std::string_view text) {
    return withoutEscapes(text, {.start = "\\x", .digitCount = 2, .base = 16});
}

} // namespace orvelle::linux_platform
