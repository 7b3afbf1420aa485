#include "theme/colors.h"
#include "windows/charts/animated_line_graph_item.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>
#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cmath>
#include <ctime>
#include <iostream>
#include <memory>
#include <string>
#include <sys/resource.h>

/// Measures what a panel costs while it is open and its machine idle: three glowing graphs in a window on the
/// software scene graph, with a new sample every 3 seconds. The window stands on the display that the
/// environment names.
namespace orvelle::bench {
namespace {

constexpr auto sampleInterval = std::chrono::seconds(3);
constexpr qsizetype sampleCount = 60;
constexpr std::array panelColors{SystemColors::cyan, SystemColors::green, SystemColors::orange};

/// What the process has used since it was started.
struct Usage {
    double processorSeconds = 0;
    long waits = 0; ///< how often it went to sleep
    int frames = 0;
};

Usage usageSoFar(int frames) {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    rusage resources{};
    ::getrusage(RUSAGE_SELF, &resources);
    return {.processorSeconds = static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9,
            .waits = resources.ru_nvcsw,
            .frames = frames};
}

class Panel {
public:
    Panel() {
        m_window.resize(320, 300);
        m_window.setColor(QColor(30, 30, 32));
        for (std::size_t index = 0; index < m_graphs.size(); ++index)
            m_graphs[index] = placedGraph(index);
        QObject::connect(&m_window, &QQuickWindow::afterRendering, &m_window, [this] { ++m_frames; });
        QObject::connect(&m_sampling, &QTimer::timeout, &m_window, [this] { addSample(); });
        for (qsizetype sample = 0; sample < sampleCount; ++sample)
            addSample();
    }

    void show() {
        m_window.show();
        m_sampling.start(sampleInterval);
    }
    [[nodiscard]] int frames() const { return m_frames; }

private:
    using Graph = std::unique_ptr<AnimatedLineGraphItem>;

    Graph placedGraph(std::size_t index) {
        auto graph = std::make_unique<AnimatedLineGraphItem>();
        graph->setParentItem(m_window.contentItem());
        graph->setPosition({16, 20 + 90 * static_cast<double>(index)});
        graph->setSize({288, 60});
        graph->setProperty("lineColor", panelColors[index]);
        graph->setProperty("gridColor", QColor(255, 255, 255, 15));
        graph->setProperty("glowIntensity", QVariant::fromValue(GlowIntensity::intense));
        return graph;
    }

    void addSample() {
        const double time = m_time++;
        m_history.append(0.5 + 0.3 * std::sin(time * 0.4) + 0.15 * std::sin(time * 1.7));
        if (m_history.size() > sampleCount)
            m_history.removeFirst();
        for (const Graph& graph : m_graphs)
            graph->setProperty("data", QVariant::fromValue(m_history));
    }

    QQuickWindow m_window;
    std::array<Graph, panelColors.size()> m_graphs;
    QTimer m_sampling;
    QList<double> m_history;
    double m_time = 0;
    int m_frames = 0;
};

void print(const Usage& before, const Usage& after, int seconds) {
    const double percent = 100 * (after.processorSeconds - before.processorSeconds) / seconds;
    const auto perSecond = [seconds](auto count) { return static_cast<double>(count) / seconds; };
    std::cout << fmt::format("{} graphs on {}, a sample every {} s: {:.2f} % of a core, {:.2f} frames and "
                             "{:.2f} waits per second, over {} s\n",
                             panelColors.size(), QGuiApplication::platformName().toStdString(),
                             sampleInterval.count(), percent, perSecond(after.frames - before.frames),
                             perSecond(after.waits - before.waits), seconds);
}

int run(int seconds) {
    Panel panel;
    panel.show();
    Usage before;
    QTimer::singleShot(sampleInterval * 2, [&] { // opening the window costs more and is not measured
        before = usageSoFar(panel.frames());
        QTimer::singleShot(std::chrono::seconds(seconds), [&] {
            print(before, usageSoFar(panel.frames()), seconds);
            QGuiApplication::quit();
        });
    });
    return QGuiApplication::exec();
}

} // namespace
} // namespace orvelle::bench

int main(int argumentCount, char** arguments) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argumentCount, arguments);
    return orvelle::bench::run(argumentCount > 1 ? std::stoi(arguments[1]) : 60);
}
