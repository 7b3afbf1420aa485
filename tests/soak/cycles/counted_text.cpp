#include "counted_text.h"

#include "common/counter.h"
#include "platform/linux/text.h"

#include <algorithm>

namespace orvelle::soak {

CountedText::CountedText(std::string_view text, const LabelSize& labelSize) {
    using namespace linux_platform;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        const std::size_t size = labelSize(line);
        Line read{.label = std::string(size > 0 ? line.substr(0, size) : line), .counters = {}};
        line.remove_prefix(size > 0 ? size : line.size());
        while (const auto counter = takeNumber<std::uint64_t>(line))
            read.counters.push_back(*counter);
        m_lines.push_back(std::move(read));
    }
}

void CountedText::count(std::uint64_t step, Random& random) {
    for (Line& line : m_lines) {
        for (std::uint64_t& counter : line.counters)
            counter = countedOn(counter, step, UINT64_MAX, random);
    }
}

void CountedText::add(std::string label, std::size_t counters) {
    m_lines.push_back({.label = std::move(label), .counters = std::vector<std::uint64_t>(counters)});
}

void CountedText::remove(std::string_view label) {
    std::erase_if(m_lines, [label](const Line& line) { return line.label == label; });
}

std::string CountedText::text() const {
    std::string text;
    for (const Line& line : m_lines) {
        text += line.label;
        for (const std::uint64_t counter : line.counters)
            (text += ' ') += std::to_string(counter);
        text += '\n';
    }
    return text;
}

} // namespace orvelle::soak
