#pragma once

#include "core/sources/sensor_source.h"
#include "platform/linux/files.h"
#include "platform/linux/hwmon.h"
#include "platform/linux/search_pace.h"
#include "platform/linux/sleep_guard.h"

namespace orvelle::linux_platform {

/// Answers from the hwmon chips below a root directory, with the kernel's own labels. The sample is taken
/// when the processor's temperature is asked for. A device that sleeps is left asleep: none of its values is
/// opened, and its sensors are missing until it wakes by itself. One that falls asleep when
/// idle is read so rarely that it can; between two readings its values are those of the last.
class LinuxSensorSource final : public SensorSource {
public:
    explicit LinuxSensorSource(std::filesystem::path root,
                               MonotonicClock now = std::chrono::steady_clock::now);

    [[nodiscard]] std::optional<double> readCPUTemperature() override;
    [[nodiscard]] std::optional<double> readGPUTemperature() override;
    [[nodiscard]] std::vector<NamedTemperature> readSensors() override;
    [[nodiscard]] std::vector<std::int64_t> readFanSpeeds() override;

private:
    /// A value file and what it held at this sample.
    struct Channel {
        KeptFile file;
        std::optional<std::int64_t> value{};
        /// It did not answer and is left alone until the next search, since a refusal costs more than an
        /// answer.
        bool isSilent = false;
    };
    struct Temperature {
        Channel channel;
        std::string key;
        std::string name;
        std::optional<int> cpuRank;
        std::optional<int> gpuRank;
    };
    struct Chip {
        SleepGuard sleepGuard;
        std::vector<Temperature> temperatures{};
        std::vector<Channel> fans{};
    };

    void search();
    void sample();
    void sampleChip(Chip& chip);
    void sampleChannel(Channel& channel);
    [[nodiscard]] std::optional<double> bestRanked(std::optional<int> Temperature::* rank) const;
    [[nodiscard]] static Chip keep(const HwmonChip& found, bool isTitleShared);

    std::filesystem::path m_root;
    MonotonicClock m_now;
    SearchPace m_pace;
    bool m_hasLostChannel = false;
    std::vector<std::string> m_folderNames;
    std::vector<Chip> m_chips;
};

/// The degrees Celsius that a `temp*_input` stands for, in thousandths; nothing when they are not plausible.
[[nodiscard]] std::optional<double> temperatureFrom(std::optional<std::int64_t> thousandths);

} // namespace orvelle::linux_platform
