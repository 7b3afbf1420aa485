#include "platform/linux/linux_sensor_source.h"

#include "platform/linux/files.h"
#include "platform/linux/hwmon.h"

#include <algorithm>

namespace orvelle::linux_platform {

std::optional<double> temperatureFrom(std::optional<std::int64_t> thousandths) {
    if (!thousandths)
        return std::nullopt;
    const double degrees = static_cast<double>(*thousandths) / 1000.0;
    return isPlausibleTemperature(degrees) ? std::optional(degrees) : std::nullopt;
}

LinuxSensorSource::LinuxSensorSource(std::filesystem::path root, MonotonicClock now)
    : m_root(std::move(root))
    , m_now(std::move(now)) {}

std::optional<double> LinuxSensorSource::readCPUTemperature() {
    sample();
    return bestRanked(&Temperature::cpuRank);
}

std::optional<double> LinuxSensorSource::readGPUTemperature() {
    return bestRanked(&Temperature::gpuRank);
}

std::vector<NamedTemperature> LinuxSensorSource::readSensors() {
    std::vector<NamedTemperature> sensors;
    for (const Chip& chip : m_chips) {
        for (const Temperature& temperature : chip.temperatures) {
            if (const auto degrees = temperatureFrom(temperature.channel.value))
                sensors.push_back({.key = temperature.key, .name = temperature.name, .value = *degrees});
        }
    }
    return sensors;
}

std::vector<std::int64_t> LinuxSensorSource::readFanSpeeds() {
    std::vector<std::int64_t> speeds;
    for (const Chip& chip : m_chips) {
        for (const Channel& fan : chip.fans) {
            if (fan.value && *fan.value > 0)
                speeds.push_back(std::min(*fan.value, maximumFanSpeed));
        }
    }
    return speeds;
}

std::optional<double> LinuxSensorSource::bestRanked(std::optional<int> Temperature::* rank) const {
    std::optional<int> bestRank;
    std::optional<double> best;
    for (const Chip& chip : m_chips) {
        for (const Temperature& temperature : chip.temperatures) {
            const std::optional<int> itsRank = temperature.*rank;
            const std::optional<double> degrees = temperatureFrom(temperature.channel.value);
            if (!itsRank || !degrees || (bestRank && *itsRank >= *bestRank))
                continue;
            bestRank = itsRank;
            best = degrees;
        }
    }
    return best;
}

LinuxSensorSource::Chip LinuxSensorSource::keep(const HwmonChip& found, bool isTitleShared) {
    const auto channel = [&found](const HwmonChannel& of) {
        return Channel{.file = KeptFile(found.folder / (of.file + "_input"), KeptFile::Layout::value)};
    };
    Chip chip{.sleepGuard = SleepGuard(found.device.powerFolders)};
    for (const HwmonChannel& temperature : found.temperatures)
        chip.temperatures.push_back({.channel = channel(temperature),
                                     .key = sensorKey(found, temperature),
                                     .name = sensorName(found, temperature, isTitleShared),
                                     .cpuRank = cpuTemperatureRank(found.name, temperature.label),
                                     .gpuRank = gpuTemperatureRank(found.name)});
    for (const HwmonChannel& fan : found.fans)
        chip.fans.push_back(channel(fan));
    return chip;
}

void LinuxSensorSource::search() {
    std::vector<std::string> folderNames = namesIn(m_root / "sys/class/hwmon");
    std::ranges::sort(folderNames);
    if (folderNames == m_folderNames && !m_hasLostChannel) {
        for (Chip& chip : m_chips) {
            chip.sleepGuard.lookAgain();
            for (Temperature& temperature : chip.temperatures)
                temperature.channel.isSilent = false;
            for (Channel& fan : chip.fans)
                fan.isSilent = false;
        }
        return;
    }
    m_folderNames = std::move(folderNames);
    m_hasLostChannel = false;
    m_chips.clear();
    const std::vector<HwmonChip> found = scanHwmon(m_root);
    for (const HwmonChip& chip : found) {
        const auto sameTitle = std::ranges::count(found, chip.title(), &HwmonChip::title);
        m_chips.push_back(keep(chip, sameTitle > 1));
    }
}

void LinuxSensorSource::sample() {
    if (m_pace.isSearchDue())
        search();
    for (Chip& chip : m_chips)
        sampleChip(chip);
    if (m_hasLostChannel)
        m_pace.hasten();
}

void LinuxSensorSource::sampleChip(Chip& chip) {
    const SleepGuard::Advice advice = chip.sleepGuard.adviceAt(m_now());
    if (advice == SleepGuard::Advice::wait)
        return;
    const auto sampleUnlessAsleep = [this, advice](Channel& channel) {
        if (advice == SleepGuard::Advice::avoid)
            channel.value.reset();
        else
            sampleChannel(channel);
    };
    for (Temperature& temperature : chip.temperatures)
        sampleUnlessAsleep(temperature.channel);
    for (Channel& fan : chip.fans)
        sampleUnlessAsleep(fan);
}

void LinuxSensorSource::sampleChannel(Channel& channel) {
    if (channel.isSilent)
        return;
    const bool answeredBefore = channel.value.has_value();
    channel.value = readNumber(channel.file);
    channel.isSilent = !channel.value;
    // The device may have gone, and another may have taken its number.
    m_hasLostChannel = m_hasLostChannel || (answeredBefore && channel.isSilent);
}

} // namespace orvelle::linux_platform
