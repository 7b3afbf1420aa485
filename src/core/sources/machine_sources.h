#pragma once

#include "core/sources/clock.h"
#include "core/sources/memory_source.h"
#include "core/sources/process_source.h"
#include "core/sources/processor_source.h"

#include <memory>

namespace orvelle {

/// Everything that the monitors ask of one machine, and its clock.
struct MachineSources {
    WallClock now;
    std::unique_ptr<ProcessorSource> processor;
    std::unique_ptr<MemorySource> memory;
    std::unique_ptr<ProcessSource> process;
};

} // namespace orvelle
