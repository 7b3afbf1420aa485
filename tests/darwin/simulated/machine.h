#pragma once

#include "darwin/simulated/property.h"

#include <array>
#include <cstring>
#include <optional>
#include <type_traits>
#include <utility>

/// What the simulated system holds. Tests write it, the simulated calls answer from it.
namespace orvelle::simulated {

/// Names in the management information base.
constexpr std::pair bootTimeName{1, 21};
constexpr std::pair physicalMemoryName{6, 24};
constexpr std::pair swapUsageName{2, 5};

/// The answer of `host_processor_info`.
struct Processors {
    std::uint32_t count = 0;
    std::vector<std::int32_t> words{}; ///< four counters a processor: user, system, idle, nice
    bool hasArray = true;              ///< false: the call succeeds and yet gives no array
};

/// The answer of `host_statistics64`.
struct PageCounters {
    std::uint32_t free = 0, active = 0, inactive = 0, wired = 0, compressor = 0, purgeable = 0, external = 0;
    std::uint32_t wordCount = 38; ///< words that this kernel knows; no more than asked for are written
};

/// One entry of the interface list.
struct Interface {
    std::optional<std::string> name{};
    unsigned int flags = 0;
    std::optional<std::vector<std::uint8_t>> address{};  ///< whole socket address, its length byte first
    std::optional<std::array<std::uint32_t, 2>> bytes{}; ///< received and sent; none: no data pointer
};

struct Process {
    std::int32_t pid = 0;
    std::string path{};
    std::string shortName{};
    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t residentBytes = 0;
    int informationSize = 96; ///< what `proc_pidinfo` answers
};

/// A service in the registry. Without properties they cannot be read.
struct Service {
    std::optional<Property> properties{};
};

struct Volume {
    std::optional<std::string> path{};
    std::optional<Properties> values{}; ///< by the short names of their keys; none: cannot be read
};

/// A key of the System Management Controller.
struct ControllerKey {
    std::string type{};
    std::uint32_t size = 0;
    std::vector<std::uint8_t> bytes{};
};

struct Machine {
    Processors processors{};
    PageCounters pages{};
    std::vector<double> loadAverages{};
    std::map<std::pair<int, int>, std::vector<std::uint8_t>> sysctls{};
    std::vector<Interface> interfaces{};
    std::vector<Process> processes{};
    std::optional<int> listedPidBytes{}; ///< what the second `proc_listpids` answers instead of the truth
    std::map<std::string, std::vector<Service>> services{};
    std::optional<Property> powerSources{}; ///< a list; in it a string is a source without description
    std::optional<std::vector<Volume>> volumes{};
    std::map<std::string, ControllerKey> controllerKeys{};

    template <class Value>
    void setSysctl(std::pair<int, int> name, const Value& value) {
        static_assert(std::is_trivially_copyable_v<Value>);
        std::vector<std::uint8_t> bytes(sizeof value);
        std::memcpy(bytes.data(), &value, sizeof value);
        sysctls[name] = std::move(bytes);
    }
};

} // namespace orvelle::simulated
