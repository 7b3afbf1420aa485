#include "platform/readable_name.h"

#include <optional>

namespace orvelle {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD"; // U+FFFD

/// One character and the bytes that spell it.
struct Character {
    char32_t code = 0;
    std::string_view bytes;
};

/// The size of a character that begins with a given byte, and the least code that needs that size: a lesser
/// code has a shorter spelling.
struct Form {
    std::size_t size = 0;
    char32_t firstBits = 0;
    char32_t leastCode = 0;
};

std::optional<Form> formOf(unsigned char first) {
    if (first < 0x80)
        return Form{.size = 1, .firstBits = first, .leastCode = 0};
    if (first >= 0xC0 && first < 0xE0)
        return Form{.size = 2, .firstBits = first & 0x1FU, .leastCode = 0x80};
    if (first >= 0xE0 && first < 0xF0)
        return Form{.size = 3, .firstBits = first & 0x0FU, .leastCode = 0x800};
    if (first >= 0xF0 && first < 0xF8)
        return Form{.size = 4, .firstBits = first & 0x07U, .leastCode = 0x10000};
    return std::nullopt;
}

/// The character that `text`, which is not empty, begins with; nothing when its bytes are not UTF-8 (RFC
/// 3629).
std::optional<Character> firstCharacter(std::string_view text) {
    const std::optional<Form> form = formOf(static_cast<unsigned char>(text.front()));
    if (!form || text.size() < form->size)
        return std::nullopt;
    char32_t code = form->firstBits;
    for (const char byte : text.substr(1, form->size - 1)) {
        const auto bits = static_cast<unsigned char>(byte);
        if ((bits & 0xC0U) != 0x80U)
            return std::nullopt;
        code = (code << 6U) | (bits & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < form->leastCode || code > 0x10FFFF || isSurrogate)
        return std::nullopt;
    return Character{.code = code, .bytes = text.substr(0, form->size)};
}

/// Control characters of both ranges (line feed, tab, escape, next line) and the two Unicode line separators.
bool isControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code <= 0x9F) || code == 0x2028 || code == 0x2029;
}

/// The marks, embeddings, overrides and isolates of the bidirectional algorithm (Unicode annex 9).
bool changesDirection(char32_t code) {
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

} // namespace

void assignReadableName(std::string& target, std::string_view name) {
    target.clear();
    target.reserve(name.size());
    while (!name.empty()) {
        const std::optional<Character> character = firstCharacter(name);
        if (!character)
            target += replacementCharacter;
        else if (isControl(character->code))
            target += ' ';
        else if (!changesDirection(character->code))
            target += character->bytes;
        name.remove_prefix(character ? character->bytes.size() : 1);
    }
}

std::string readableName(std::string_view name) {
    std::string readable;
    assignReadableName(readable, name);
    return readable;
}

} // namespace orvelle
