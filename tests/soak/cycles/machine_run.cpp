#include "machine_run.h"

#include <QCoreApplication>
#include <QMetaEnum>

#include <algorithm>
#include <thread>

namespace orvelle::soak {
namespace {

constexpr std::uint64_t cyclesBetweenSettings = 1000;
constexpr std::uint64_t cyclesBetweenPictures = 100;
/// The sources look for new devices in every tenth sample, and look again for those that were silent.
constexpr int cyclesUntilAllIsKnown = 65;
constexpr std::chrono::milliseconds timeToWriteSettings{300};

void sendEvents() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

} // namespace

MachineRun::MachineRun(Machine& machine, std::uint64_t seed)
    : m_machine(machine)
    , m_seed(seed)
    , m_settings(m_folder.filePath(QStringLiteral("orvelle.conf")))
    , m_themes(m_settings) {
    MachineSources sources = watched(machine.sources(), m_answers);
    m_hasSteadyClock = sources.steadyNow != nullptr;
    m_monitor.emplace(std::move(sources), m_settings);
    m_items.emplace(ModuleContext{*m_monitor, m_settings, m_themes});
    QObject::connect(&*m_monitor, &SystemMonitor::changed, [this] { check(); });
    m_monitor->start();
}

void MachineRun::check() {
    ++m_cycles;
    const WallTime now = m_hasSteadyClock ? m_machine.clocks.steady : m_machine.clocks.wall;
    m_values.check(*m_monitor, m_answers, m_failures);
    m_speeds.check(*m_monitor, m_answers, now, m_failures);
    m_answers.wereProcessesAsked = false;
}

double MachineRun::cycle(Random& random) {
    m_machine.change(random);
    // The checks take part in both times alike.
    const double start = threadMicroseconds();
    m_monitor->updateCycle();
    m_items->show(m_failures);
    return threadMicroseconds() - start;
}

void MachineRun::cycles(std::uint64_t count, Random& random) {
    for (; count > 0 && m_failures.all().empty(); --count) {
        cycle(random);
        if (m_cycles % cyclesBetweenPictures == 0)
            m_items->paint();
        if (m_cycles % cyclesBetweenSettings == 0)
            changeSettings();
    }
}

void MachineRun::changeSettings() {
    const QMetaEnum styles = QMetaEnum::fromType<MenuBarDisplayStyle>();
    m_style = (m_style + 1) % styles.keyCount();
    m_settings.setMenuBarDisplayStyle(static_cast<MenuBarDisplayStyle>(styles.value(m_style)));
    m_monitor->restart();
    sendEvents();
}

Footprint MachineRun::settledFootprint() {
    m_machine.reset();
    for (int cycle = 0; cycle < cyclesUntilAllIsKnown && m_failures.all().empty(); ++cycle) {
        m_machine.clocks.passUsually();
        m_monitor->updateCycle();
        m_items->show(m_failures);
    }
    // Each of two changes starts the thread that writes them, which ends when it had no work for long.
    m_settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    m_settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::miniBars);
    sendEvents();
    std::this_thread::sleep_for(timeToWriteSettings);
    return measureFootprint();
}

Measurement MachineRun::measure(const Limits& limits) {
    Measurement measured;
    for (int repetition = 0; repetition < limits.measurements && m_failures.all().empty(); ++repetition) {
        m_machine.reset();
        m_settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::miniBars);
        Random random(m_seed + 1);
        std::vector<double> costs;
        for (std::uint64_t done = 0; done < limits.measuredCycles && m_failures.all().empty(); ++done)
            costs.push_back(cycle(random));
        const double cost = median(std::move(costs));
        if (repetition == 0 || cost < measured.microsecondsPerCycle)
            measured.microsecondsPerCycle = cost;
    }
    measured.footprint = settledFootprint();
    measured.timers = static_cast<std::size_t>(m_monitor->findChildren<QTimer*>().size());
    return measured;
}

RunResult MachineRun::run(const Limits& limits) {
    using Clock = std::chrono::steady_clock;
    RunResult result;
    const Clock::time_point start = Clock::now();
    Random random(m_seed);
    cycles(limits.warmUpCycles, random);
    result.first = measure(limits);
    const auto isOver = [&] {
        return limits.cycles ? m_cycles >= *limits.cycles : Clock::now() - start >= limits.time;
    };
    while (!isOver() && m_failures.all().empty())
        cycles(100, random);
    result.last = measure(limits);
    result.cycles = m_cycles;
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    result.failures = m_failures.all();
    return result;
}

} // namespace orvelle::soak
