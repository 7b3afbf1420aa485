#pragma once

#include "common/random.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::soak {

/// A text of the kernel in which some lines consist of a label and counters, such as proc/stat, proc/net/dev
/// and proc/diskstats.
class CountedText {
public:
    /// How many characters of a line are its label; 0 for a line that stays as it is.
    using LabelSize = std::function<std::size_t(std::string_view line)>;

    CountedText() = default;
    CountedText(std::string_view text, const LabelSize& labelSize);

    /// Moves every counter on by at most `step`.
    void count(std::uint64_t step, Random& random);
    void add(std::string label, std::size_t counters);
    /// Removes the line of this label.
    void remove(std::string_view label);
    [[nodiscard]] std::string text() const;

private:
    struct Line {
        std::string label;
        std::vector<std::uint64_t> counters;
    };
    std::vector<Line> m_lines;
};

} // namespace orvelle::soak
