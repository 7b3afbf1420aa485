#include "shell/wayland/wayland_output.h"

#include "shell/wayland/event_handlers.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <wayland-client.h>
#include <xdg-output-unstable-v1-client-protocol.h>

namespace orvelle {
namespace {

constexpr std::uint32_t outputVersion = 4; // from which on it has a name
constexpr int largestScale = 16;

} // namespace

const wl_output_listener WaylandOutput::listener = [] {
    wl_output_listener events{};
    events.geometry = onEvent<&WaylandOutput::handleGeometry>;
    events.mode = onEvent<&WaylandOutput::handleMode>;
    events.done = onEvent<&WaylandOutput::handleDone>;
    events.scale = onEvent<&WaylandOutput::handleScale>;
    events.name = onEvent<&WaylandOutput::handleName>;
    events.description = ignoredEvent;
    return events;
}();

const zxdg_output_v1_listener WaylandOutput::sizeListener = [] {
    zxdg_output_v1_listener events{};
    events.logical_position = ignoredEvent;
    events.logical_size = onEvent<&WaylandOutput::handleSize>;
    events.done = onEvent<&WaylandOutput::handleSizeDone>;
    events.name = onEvent<&WaylandOutput::handleName>;
    events.description = ignoredEvent;
    return events;
}();

double screenScale(int wholeScale, const QSize& pixels, const QSize& points) {
    if (pixels.isEmpty() || points.isEmpty())
        return wholeScale;
    constexpr double partsPerPixel = 120;
    // The longer side has the smaller error, because points are whole numbers too. It also is the longer one
    // of a screen that is turned.
    const double exact = std::max(pixels.width(), pixels.height()) /
                         static_cast<double>(std::max(points.width(), points.height()));
    const double scale = std::round(exact * partsPerPixel) / partsPerPixel;
    return std::ceil(scale) == wholeScale ? scale : wholeScale;
}

WaylandOutput::WaylandOutput(const WaylandGlobals& globals, const WaylandGlobal& global)
    : m_output(globals.bind<wl_output>(global, wl_output_interface, outputVersion))
    , m_globalName(global.name) {
    wl_output_add_listener(m_output.get(), &listener, this);
    askSize(globals);
}

void WaylandOutput::askSize(const WaylandGlobals& globals) {
    if (m_size || globals.screenSizes() == nullptr)
        return;
    m_size.reset(zxdg_output_manager_v1_get_xdg_output(globals.screenSizes(), m_output.get()));
    zxdg_output_v1_add_listener(m_size.get(), &sizeListener, this);
}

void WaylandOutput::handleGeometry(int x, int y, int /*widthMillimetres*/, int /*heightMillimetres*/,
                                   int /*subpixel*/, const char* /*make*/, const char* /*model*/,
                                   int /*transform*/) {
    m_position = QPoint(x, y);
}

void WaylandOutput::handleMode(std::uint32_t flags, int width, int height, int /*refresh*/) {
    if ((flags & WL_OUTPUT_MODE_CURRENT) != 0)
        m_pixels = QSize(width, height);
    // The first version has no event that ends a description.
    if (wl_output_get_version(m_output.get()) < WL_OUTPUT_DONE_SINCE_VERSION)
        handleDone();
}

void WaylandOutput::handleDone() {
    m_isKnown = true;
    Q_EMIT changed();
}

void WaylandOutput::handleSizeDone() {
    // Later versions end a description with the event of the screen itself.
    if (m_isKnown)
        Q_EMIT changed();
}

double WaylandOutput::pixelsPerPoint() const {
    return screenScale(m_scale, m_pixels, m_points);
}

void WaylandOutput::handleScale(int scale) {
    m_scale = std::clamp(scale, 1, largestScale);
}

void WaylandOutput::handleName(const char* name) {
    m_name = QString::fromUtf8(name);
}

QScreen* WaylandOutput::screen() const {
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto byName =
        std::ranges::find_if(screens, [this](const QScreen* screen) { return screen->name() == m_name; });
    if (!m_name.isEmpty() && byName != screens.end())
        return *byName;
    const auto byPosition = std::ranges::find_if(
        screens, [this](const QScreen* screen) { return screen->geometry().topLeft() == m_position; });
    return byPosition != screens.end() ? *byPosition : QGuiApplication::primaryScreen();
}

WaylandOutputs::WaylandOutputs(const WaylandGlobals& globals)
    : m_globals(globals) {
    connect(&globals, &WaylandGlobals::announced, this, &WaylandOutputs::add);
    connect(&globals, &WaylandGlobals::removed, this, &WaylandOutputs::remove);
    connect(&globals, &WaylandGlobals::changed, this, &WaylandOutputs::askSizes);
}

std::vector<const WaylandOutput*> WaylandOutputs::known() const {
    std::vector<const WaylandOutput*> known;
    for (const auto& output : m_outputs) {
        if (output->isKnown())
            known.push_back(output.get());
    }
    return known;
}

void WaylandOutputs::add(const WaylandGlobal& global) {
    if (global.interface != wl_output_interface.name)
        return;
    m_outputs.push_back(std::make_unique<WaylandOutput>(m_globals, global));
    connect(m_outputs.back().get(), &WaylandOutput::changed, this, &WaylandOutputs::changed);
}

void WaylandOutputs::askSizes() {
    for (const auto& output : m_outputs)
        output->askSize(m_globals);
}

void WaylandOutputs::remove(std::uint32_t name) {
    const auto found = std::ranges::find(m_outputs, name, &WaylandOutput::globalName);
    if (found == m_outputs.end())
        return;
    Q_EMIT removed(**found);
    m_outputs.erase(found);
    Q_EMIT changed();
}

} // namespace orvelle
