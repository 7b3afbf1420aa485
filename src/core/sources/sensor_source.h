#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

/// Whether a reading can be the temperature of a running machine. A sensor that is not wired up reads 0, a
/// broken one something far outside this range, so such a reading counts as absent.
[[nodiscard]] constexpr bool isPlausibleTemperature(double degreesCelsius) {
    return degreesCelsius > 0 && degreesCelsius < 150;
}

/// Revolutions per minute that no fan reaches; a source cuts higher readings here.
inline constexpr std::int64_t maximumFanSpeed = 100'000;

/// One temperature sensor and what it reads now.
struct NamedTemperature {
    std::string key;  ///< stands for the same sensor at every reading, also after a restart of the machine
    std::string name; ///< for display: valid UTF-8, one line
    double value = 0; ///< degrees Celsius, plausible

    bool operator==(const NamedTemperature&) const = default;
};

/// What `SensorMonitor` asks of an operating system. The four questions are asked once per sample, in the
/// order in which they stand here, so a source may take its sample at the first and answer the others from
/// it.
class SensorSource {
public:
    virtual ~SensorSource() = default;

    /// Degrees Celsius, plausible; nothing when no sensor of the processor answers.
    [[nodiscard]] virtual std::optional<double> readCPUTemperature() = 0;

    /// Degrees Celsius, plausible; nothing when no sensor of a graphics processor answers.
    [[nodiscard]] virtual std::optional<double> readGPUTemperature() = 0;

    /// The sensors that read plausibly now, in an order that does not change between samples.
    [[nodiscard]] virtual std::vector<NamedTemperature> readSensors() = 0;

    /// Revolutions per minute of the fans that turn now, in an order that does not change between samples.
    [[nodiscard]] virtual std::vector<std::int64_t> readFanSpeeds() = 0;
};

} // namespace orvelle
