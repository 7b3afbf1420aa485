#include "core/system_monitor.h"
#include "platform/replay/fake_sources.h"
#include "settings/settings_store.h"

#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// Notes what is asked of it, by the name of the question.
class NotingProcessorSource final : public ProcessorSource {
public:
    explicit NotingProcessorSource(QStringList& questions)
        : m_questions(questions) {}
    [[nodiscard]] std::optional<std::vector<CoreTicks>> readTicks() override {
        m_questions.append(QStringLiteral("ticks"));
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages() override { return std::nullopt; }
    [[nodiscard]] std::optional<std::int64_t> readBootTime() override { return std::nullopt; }

private:
    QStringList& m_questions;
};

class NotingProcessSource final : public ProcessSource {
public:
    explicit NotingProcessSource(QStringList& questions)
        : m_questions(questions) {}
    [[nodiscard]] std::optional<std::uint64_t> readTotalMemory() override {
        m_questions.append(QStringLiteral("total memory"));
        return std::nullopt;
    }
    [[nodiscard]] std::optional<std::span<const ProcessRecord>> readProcesses() override {
        m_questions.append(QStringLiteral("processes"));
        return std::nullopt;
    }

private:
    QStringList& m_questions;
};

class SystemMonitorOrder : public ::testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<SystemMonitor> makeMonitor() {
        MachineSources sources = machine.sources();
        sources.processor = std::make_unique<NotingProcessorSource>(questions);
        sources.process = std::make_unique<NotingProcessSource>(questions);
        return std::make_unique<SystemMonitor>(std::move(sources), settings);
    }
    /// How often the processes were asked for since the last time this was asked.
    [[nodiscard]] qsizetype processSamples() {
        const qsizetype count = questions.count(QStringLiteral("processes"));
        questions.clear();
        return count;
    }
    /// The timers of the monitor that run.
    [[nodiscard]] static QList<QTimer*> runningTimers(const SystemMonitor& monitor) {
        QList<QTimer*> timers = monitor.findChildren<QTimer*>();
        timers.removeIf([](const QTimer* timer) { return !timer->isActive(); });
        return timers;
    }

    QTemporaryDir directory;
    SettingsStore settings{directory.filePath(QStringLiteral("settings.conf"))};
    FakeMachine machine;
    QStringList questions; ///< in the order in which they were asked
};

TEST_F(SystemMonitorOrder, AsksForTheProcessorsBaselineAndThenForTheMemoryWhenItIsMade) {
    const std::unique_ptr<SystemMonitor> monitor = makeMonitor();
    EXPECT_EQ(questions, (QStringList{QStringLiteral("ticks"), QStringLiteral("total memory")}));
}

TEST_F(SystemMonitorOrder, MakesItsMonitorsInTheirOrder) {
    // What is made first goes last.
    QStringList made;
    std::unique_ptr<SystemMonitor> monitor = makeMonitor();
    const auto note = [&made](QObject& each, const char* name) {
        QObject::connect(&each, &QObject::destroyed, [&made, name] { made.prepend(QLatin1String(name)); });
    };
    note(monitor->battery(), "battery");
    note(monitor->cpu(), "cpu");
    note(monitor->disk(), "disk");
    note(monitor->memory(), "memory");
    note(monitor->network(), "network");
    note(monitor->process(), "process");
    note(monitor->sensor(), "sensor");
    monitor.reset();
    EXPECT_EQ(made.join(QLatin1Char(' ')), QStringLiteral("cpu memory disk network battery sensor process"));
}

TEST_F(SystemMonitorOrder, SamplesTheProcessesInTheFirstCycleAndInEveryThirdAfterIt) {
    const std::unique_ptr<SystemMonitor> monitor = makeMonitor();
    for (const int expected : {1, 0, 0, 1, 0, 0, 1}) {
        monitor->updateCycle();
        EXPECT_EQ(processSamples(), expected) << "in cycle " << monitor->updateCycleCount();
    }
}

TEST_F(SystemMonitorOrder, ContinuesTheThirdsAfterARestart) {
    const std::unique_ptr<SystemMonitor> monitor = makeMonitor();
    monitor->start();
    EXPECT_EQ(processSamples(), 1);
    for (const int expected : {0, 0, 1, 0, 0, 1}) {
        monitor->restart();
        EXPECT_EQ(processSamples(), expected) << "in cycle " << monitor->updateCycleCount();
    }
}

TEST_F(SystemMonitorOrder, ItsTimerGoesOnAtTheIntervalThatIsSet) {
    const std::unique_ptr<SystemMonitor> monitor = makeMonitor();
    for (const auto& [seconds, milliseconds] :
         {std::pair{1.0, 3000}, {3.0, 3000}, {5.0, 5000}, {10.0, 10'000}}) {
        settings.setUpdateInterval(seconds);
        monitor->restart();
        const QList<QTimer*> timers = runningTimers(*monitor);
        ASSERT_EQ(timers.size(), 1) << seconds;
        EXPECT_EQ(timers.front()->interval(), milliseconds) << seconds;
        EXPECT_FALSE(timers.front()->isSingleShot()) << seconds;
    }
}

} // namespace
} // namespace orvelle
