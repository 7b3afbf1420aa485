#pragma once

#include <functional>

namespace orvelle::bench {

/// Processor time that `paint` takes at the least, in milliseconds: of many times the least, because whatever
/// else the machine does only ever adds to it.
[[nodiscard]] double leastMilliseconds(const std::function<void()>& paint);

/// Writes the costs of single charts as a Markdown table to the standard output.
void printChartCosts();

/// Writes the costs of the menu bar in every display style as a Markdown table to the standard output.
void printItemCosts();

} // namespace orvelle::bench
