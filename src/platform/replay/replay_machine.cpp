#include "platform/replay/replay_machine.h"

#include <algorithm>

namespace orvelle {

struct ReplayMachine::Moments {
    std::vector<MachineSources> all;
    std::size_t present = 0;

    [[nodiscard]] const MachineSources& now() const { return all[present]; }
};

namespace {

/// A source that asks the present moment's source.
template <class Interface>
class ReplaySource : public Interface {
public:
    explicit ReplaySource(std::shared_ptr<const ReplayMachine::Moments> moments)
        : m_moments(std::move(moments)) {}

protected:
    [[nodiscard]] const MachineSources& now() const { return m_moments->now(); }

private:
    std::shared_ptr<const ReplayMachine::Moments> m_moments;
};

class ReplayProcessorSource final : public ReplaySource<ProcessorSource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<std::vector<CoreTicks>> readTicks() override {
        return now().processor->readTicks();
    }
    [[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages() override {
        return now().processor->readLoadAverages();
    }
    [[nodiscard]] std::optional<std::int64_t> readBootTime() override {
        return now().processor->readBootTime();
    }
};

class ReplayMemorySource final : public ReplaySource<MemorySource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<MemoryReading> read() override { return now().memory->read(); }
};

class ReplayDiskSource final : public ReplaySource<DiskSource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<std::vector<MountedVolume>> readVolumes() override {
        return now().disk->readVolumes();
    }
    [[nodiscard]] std::optional<std::vector<DiskCounters>> readCounters() override {
        return now().disk->readCounters();
    }
};

class ReplayNetworkSource final : public ReplaySource<NetworkSource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<std::vector<InterfaceEntry>> read() override { return now().network->read(); }
};

class ReplayBatterySource final : public ReplaySource<BatterySource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<std::vector<std::optional<PowerSourceDescription>>>
    readPowerSources() override {
        return now().battery->readPowerSources();
    }
    [[nodiscard]] std::optional<SmartBatteryProperties> readSmartBattery() override {
        return now().battery->readSmartBattery();
    }
};

class ReplaySensorSource final : public ReplaySource<SensorSource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<double> readCPUTemperature() override {
        return now().sensor->readCPUTemperature();
    }
    [[nodiscard]] std::optional<double> readGPUTemperature() override {
        return now().sensor->readGPUTemperature();
    }
    [[nodiscard]] std::vector<NamedTemperature> readSensors() override { return now().sensor->readSensors(); }
    [[nodiscard]] std::vector<std::int64_t> readFanSpeeds() override { return now().sensor->readFanSpeeds(); }
};

class ReplayProcessSource final : public ReplaySource<ProcessSource> {
public:
    using ReplaySource::ReplaySource;

    [[nodiscard]] std::optional<std::uint64_t> readTotalMemory() override {
        return now().process->readTotalMemory();
    }
    [[nodiscard]] std::optional<std::span<const ProcessRecord>> readProcesses() override {
        return now().process->readProcesses();
    }
};

} // namespace

ReplayMachine::ReplayMachine(std::vector<MachineSources> moments)
    : m_moments(std::make_shared<Moments>(Moments{.all = std::move(moments)})) {}

MachineSources ReplayMachine::sources(WallClock now) const {
    return {.now = std::move(now),
            .processor = std::make_unique<ReplayProcessorSource>(m_moments),
            .memory = std::make_unique<ReplayMemorySource>(m_moments),
            .disk = std::make_unique<ReplayDiskSource>(m_moments),
            .network = std::make_unique<ReplayNetworkSource>(m_moments),
            .battery = std::make_unique<ReplayBatterySource>(m_moments),
            .sensor = std::make_unique<ReplaySensorSource>(m_moments),
            .process = std::make_unique<ReplayProcessSource>(m_moments)};
}

std::size_t ReplayMachine::momentCount() const {
    return m_moments->all.size();
}

void ReplayMachine::advance() {
    m_moments->present = std::min(m_moments->present + 1, m_moments->all.size() - 1);
}

} // namespace orvelle
