#include "opened_windows.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMouseEvent>
#include <QQuickWindow>

#include <thread>

namespace orvelle::soak {
namespace {

constexpr int samplesOfAPanel = 3;
constexpr int longestHistory = 60; // samples
constexpr std::chrono::seconds longestOpening{20};
constexpr std::chrono::milliseconds timeToWriteSettings{300};

void doWhatIsDue() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/// Qt remembers what the mouse was over until a button is pressed in the window.
void click(QWindow& window) {
    const QPointF point = QRectF(QPointF(), window.size()).center();
    for (const auto& [type, buttons] : {std::pair{QEvent::MouseButtonPress, Qt::LeftButton},
                                        std::pair{QEvent::MouseButtonRelease, Qt::NoButton}}) {
        QMouseEvent event(type, point, window.mapToGlobal(point), Qt::LeftButton, buttons, {});
        QCoreApplication::sendEvent(&window, &event);
    }
}

/// One of the values of an enumeration whose values are counted from 0 to `last`.
template <class Style>
Style anyUpTo(Style last, Random& random) {
    return static_cast<Style>(random.upTo(static_cast<std::uint64_t>(last)));
}

} // namespace

OpenedWindows::OpenedWindows(std::uint64_t seed)
    : m_random(seed)
    , m_settings(m_folder.filePath(QStringLiteral("orvelle.conf")))
    , m_themes(m_settings)
    , m_monitor(m_machine.sources(), m_settings)
    , m_factory(findWindowFactory()({.monitor = m_monitor,
                                     .settings = m_settings,
                                     .themes = m_themes,
                                     .openSettings = [] {},
                                     .quitApp = [] {}})) {
    if (!m_factory)
        m_failure = "the windows cannot be loaded";
    m_monitor.updateCycle();
}

void OpenedWindows::sample() {
    m_machine.change(m_random);
    m_monitor.updateCycle();
    ++m_samples;
    doWhatIsDue();
}

void OpenedWindows::open(QWindow* window) {
    auto* const view = qobject_cast<QQuickWindow*>(window);
    if (view == nullptr) {
        m_failure = "a window cannot be made";
        return;
    }
    bool isPainted = false;
    const auto connection =
        QObject::connect(view, &QQuickWindow::frameSwapped, view, [&isPainted] { isPainted = true; });
    view->show();
    const QDeadlineTimer deadline(longestOpening);
    while (!isPainted && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    QObject::disconnect(connection);
    if (!isPainted)
        m_failure = "a window is not painted";
    ++m_openings;
}

void OpenedWindows::look(QWindow* panel, int samples) {
    open(panel);
    for (int taken = 0; taken < samples && m_failure.empty(); ++taken)
        sample();
    if (!m_failure.empty())
        return;
    click(*panel);
    panel->hide();
    sample();
}

void OpenedWindows::useEach() {
    restyle(m_random);
    for (const ModuleInfo& module : moduleTable) {
        const std::unique_ptr<QWindow> panel = m_factory->makePanel(module.id, 0);
        look(panel.get(), samplesOfAPanel);
        look(panel.get(), 1);
        if (!m_failure.empty())
            return;
    }
    const std::unique_ptr<QWindow> settings = m_factory->makeSettings();
    open(settings.get());
    restyle(m_random);
    sample();
}

void OpenedWindows::watch(ModuleId module, int samples) {
    const std::unique_ptr<QWindow> panel = m_factory->makePanel(module, 0);
    look(panel.get(), samples);
}

void OpenedWindows::restyle(Random& random) {
    m_themes.selectTheme(random.oneOf(builtInThemes()).id);
    m_settings.setGraphLineStyle(anyUpTo(GraphLineStyle::dotted, random));
    m_settings.setGraphFillStyle(anyUpTo(GraphFillStyle::striped, random));
    m_settings.setBarChartStyle(anyUpTo(BarChartStyle::thinLine, random));
    m_settings.setRingChartStyle(anyUpTo(RingChartStyle::pieChart, random));
    m_settings.setGlowIntensity(anyUpTo(GlowIntensity::intense, random));
    doWhatIsDue();
}

void OpenedWindows::settle() {
    m_machine.reset();
    for (int taken = 0; taken < longestHistory; ++taken) {
        m_machine.clocks.passUsually();
        m_monitor.updateCycle();
    }
    Random same(1);
    restyle(same);
    std::this_thread::sleep_for(timeToWriteSettings);
    doWhatIsDue();
}

} // namespace orvelle::soak
