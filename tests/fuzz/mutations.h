#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvelle::fuzz {

/// Texts that a parser may meet instead of the one that it expects: cut off, with bytes changed, lost or
/// repeated, with numbers beyond their type, or with a part of another text. The same texts every time.
class Mutations {
public:
    /// `others` are the texts to take parts from; it is not empty and outlives the object.
    explicit Mutations(const std::vector<std::string>& others);

    [[nodiscard]] std::string of(const std::string& text);

private:
    /// A number from 0 up to `bound`, which is above 0, exclusively.
    [[nodiscard]] std::size_t below(std::size_t bound);
    void change(std::string& text);

    const std::vector<std::string>& m_others;
    std::uint64_t m_state = 1;
};

} // namespace orvelle::fuzz
