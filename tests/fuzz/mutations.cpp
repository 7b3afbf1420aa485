#include "mutations.h"

#include <array>
#include <string_view>

namespace orvelle::fuzz {
namespace {

using namespace std::string_view_literals;

/// Texts that parsers are prone to misread.
constexpr std::array<std::string_view, 18> troublesome{"18446744073709551615"sv,
                                                       "18446744073709551616"sv,
                                                       "9223372036854775808"sv,
                                                       "-9223372036854775809"sv,
                                                       "-1"sv,
                                                       "1e999"sv,
                                                       "nan"sv,
                                                       "inf"sv,
                                                       "0x"sv,
                                                       "\\040"sv,
                                                       "\\777"sv,
                                                       "\\x2"sv,
                                                       "\n"sv,
                                                       "\0"sv,
                                                       " "sv,
                                                       ")"sv,
                                                       "\xFF\xFE"sv,
                                                       "\xE2\x80\xAE"sv};

constexpr std::size_t longestPart = 64;

} // namespace

Mutations::Mutations(const std::vector<std::string>& others)
    : m_others(others) {}

std::string Mutations::of(const std::string& text) {
    std::string mutation = text;
    const std::size_t changes = 1 + below(4);
    for (std::size_t made = 0; made < changes; ++made)
        change(mutation);
    return mutation;
}

std::size_t Mutations::below(std::size_t bound) {
    // The standard library's distributions give different numbers in different implementations.
    m_state = m_state * 6364136223846793005U + 1442695040888963407U; // Knuth's MMIX generator
    return static_cast<std::size_t>(m_state >> 33U) % bound;
}

void Mutations::change(std::string& text) {
    const std::size_t place = below(text.size() + 1);
    const std::size_t length = below(longestPart);
    switch (below(6)) {
    case 0:
        text.resize(place);
        return;
    case 1:
        if (place < text.size())
            text[place] = static_cast<char>(below(256));
        return;
    case 2:
        text.erase(place, length);
        return;
    case 3:
        text.insert(place, text.substr(place, length));
        return;
    case 4:
        text.insert(place, troublesome[below(troublesome.size())]);
        return;
    default:
        const std::string& other = m_others[below(m_others.size())];
        text.replace(place, length, other, below(other.size() + 1), longestPart);
    }
}

} // namespace orvelle::fuzz
