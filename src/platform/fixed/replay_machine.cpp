#include "platform/fixed/replay_machine.h"

#include <algorithm>

namespace orvelle {

struct ReplayMachine::Moments {
    std::vector<MachineSources> all;
    std::size_t present = 0;

    [[nodiscard]] const MachineSources& now() const { return all[present]; }
};

namespace {

using MomentsPointer = std::shared_ptr<const ReplayMachine::Moments>;

class ReplayProcessorSource final : public ProcessorSource {
public:
    explicit ReplayProcessorSource(MomentsPointer moments)
        : m_moments(std::move(moments)) {}

    [[nodiscard]] std::optional<std::vector<CoreTicks>> readTicks() override {
        return m_moments->now().processor->readTicks();
    }
    [[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages() override {
        return m_moments->now().processor->readLoadAverages();
    }
    [[nodiscard]] std::optional<std::int64_t> readBootTime() override {
        return m_moments->now().processor->readBootTime();
    }

private:
    MomentsPointer m_moments;
};

class ReplayMemorySource final : public MemorySource {
public:
    explicit ReplayMemorySource(MomentsPointer moments)
        : m_moments(std::move(moments)) {}

    [[nodiscard]] std::optional<MemoryReading> read() override { return m_moments->now().memory->read(); }

private:
    MomentsPointer m_moments;
};

class ReplayProcessSource final : public ProcessSource {
public:
    explicit ReplayProcessSource(MomentsPointer moments)
        : m_moments(std::move(moments)) {}

    [[nodiscard]] std::optional<std::uint64_t> readTotalMemory() override {
        return m_moments->now().process->readTotalMemory();
    }
    [[nodiscard]] std::optional<std::span<const ProcessRecord>> readProcesses() override {
        return m_moments->now().process->readProcesses();
    }

private:
    MomentsPointer m_moments;
};

} // namespace

ReplayMachine::ReplayMachine(std::vector<MachineSources> moments)
    : m_moments(std::make_shared<Moments>(Moments{.all = std::move(moments)})) {}

MachineSources ReplayMachine::sources(WallClock now) const {
    return {.now = std::move(now),
            .processor = std::make_unique<ReplayProcessorSource>(m_moments),
            .memory = std::make_unique<ReplayMemorySource>(m_moments),
            .process = std::make_unique<ReplayProcessSource>(m_moments)};
}

std::size_t ReplayMachine::momentCount() const {
    return m_moments->all.size();
}

void ReplayMachine::advance() {
    m_moments->present = std::min(m_moments->present + 1, m_moments->all.size() - 1);
}

} // namespace orvelle
