#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle::linux_platform {

// Reading of kernel text without copies. Nothing here trusts the text: a missing or malformed number is
// nothing, and a number beyond its type is the largest one.

/// Cuts `text` at the first `separator` and returns the part before it; the separator is dropped. Without one
/// the whole text is returned and `text` becomes empty.
inline std::string_view takeUntil(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    return part;
}

inline std::string_view takeLine(std::string_view& text) {
    return takeUntil(text, '\n');
}

/// The next word of a line, leading blanks and tabs skipped; empty at the end of the line.
inline std::string_view takeWord(std::string_view& line) {
    // By hand: find_first_of calls a function for each character, and words are most of what a sample reads.
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    const auto start = std::find_if_not(line.begin(), line.end(), isBlank);
    const auto stop = std::find_if(start, line.end(), isBlank);
    const std::string_view word(start, stop);
    line = {stop, line.end()};
    return word;
}

/// `text` without blanks, tabs and line ends at either end.
[[nodiscard]] inline std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t start = text.find_first_not_of(blanks);
    if (start == std::string_view::npos)
        return {};
    return text.substr(start, text.find_last_not_of(blanks) - start + 1);
}

[[nodiscard]] inline bool isDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The number that `word` begins with; the largest of its type when it does not fit, nothing when there is
/// none.
template <class Number>
requires std::integral<Number> || std::floating_point<Number>
[[nodiscard]] std::optional<Number> parseNumber(std::string_view word) {
    Number value{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error == std::errc::result_out_of_range)
        return word.starts_with('-') ? std::numeric_limits<Number>::lowest()
                                     : std::numeric_limits<Number>::max();
    if (error != std::errc{})
        return std::nullopt;
    return value;
}

/// The hexadecimal number that `word` begins with, a leading 0x allowed; nothing when there is none or it
/// does not fit.
[[nodiscard]] inline std::optional<std::uint32_t> parseHexadecimal(std::string_view word) {
    if (word.starts_with("0x"))
        word.remove_prefix(2);
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value, 16);
    return error == std::errc{} ? std::optional(value) : std::nullopt;
}

/// The next word of a line as a number.
template <class Number>
[[nodiscard]] std::optional<Number> takeNumber(std::string_view& line) {
    return parseNumber<Number>(takeWord(line));
}

/// Sum that stays at the largest value instead of wrapping.
[[nodiscard]] constexpr std::uint64_t saturatingAdd(std::uint64_t left, std::uint64_t right) {
    return left > std::numeric_limits<std::uint64_t>::max() - right
               ? std::numeric_limits<std::uint64_t>::max()
               : left + right;
}

/// Product that stays at the largest value instead of wrapping.
[[nodiscard]] constexpr std::uint64_t saturatingMultiply(std::uint64_t left, std::uint64_t right) {
    return right != 0 && left > std::numeric_limits<std::uint64_t>::max() / right
               ? std::numeric_limits<std::uint64_t>::max()
               : left * right;
}

/// Difference that stays at 0 instead of wrapping.
[[nodiscard]] constexpr std::uint64_t saturatingSubtract(std::uint64_t left, std::uint64_t right) {
    return left > right ? left - right : 0;
}

/// `text` with every backslash and three octal digits replaced by the byte that they stand for: the way in
/// which mountinfo and fstab write blanks and line ends (`\040`).
[[nodiscard]] std::string withoutOctalEscapes(std::string_view text);

/// `text` with every `\x` and two hexadecimal digits replaced by the byte that they stand for: the way in
/// which udev writes what it does not put into a link's name (`\x20`).
[[nodiscard]] std::string withoutHexEscapes(std::string_view text);

/// Keeps the sum of a list of counters within 64 bits, whatever a damaged text says: each counter is cut at
/// what the ones before it left. No machine moves 2^63 bytes, so real counters are never cut.
class SaturatingSum {
public:
    [[nodiscard]] std::uint64_t take(std::uint64_t counter) {
        const std::uint64_t taken = std::min(counter, m_left);
        m_left -= taken;
        return taken;
    }

private:
    std::uint64_t m_left = std::uint64_t{1} << 63;
};

} // namespace orvelle::linux_platform
