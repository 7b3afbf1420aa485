#pragma once

#include "samplers.h"

#include <optional>
#include <string>
#include <vector>

namespace orvelle::bench {

/// Processor time of one sample of one program.
struct ProgramCost {
    std::string name;
    double milliseconds = 0;
};

/// System calls of one sample and what they may be at most.
struct SystemCalls {
    double perSample = 0;
    double processes = 0;
    double ran = 0;
    [[nodiscard]] double limit() const { return 1.1 * processes + 3 * ran + 20; }
};

/// What was measured under one kind of load.
struct Measurement {
    std::string load;
    double target = 0; ///< our cost as a share of the cheapest lister's, at most; 0 for none
    std::size_t processes = 0;
    std::vector<ProgramCost> costs; ///< ours first
    std::optional<SystemCalls> systemCalls;
};

/// The name under which our own sampler is measured, and those of the bare kernel calls: these are no
/// listers.
inline const std::string ourName = "Orvelle";
inline const std::string clockFloorName = "floor: clocks alone";
inline const std::string statFloorName = "floor: stat files alone";

/// All measurements as a Markdown table each, with the conditions of the machine.
[[nodiscard]] std::string markdown(const std::vector<Measurement>& measurements, const MemoryGrowth& growth,
                                   const std::string& conditions);

/// What further processes cost in memory, as a sentence.
[[nodiscard]] std::string memoryText(const MemoryGrowth& growth);

} // namespace orvelle::bench
