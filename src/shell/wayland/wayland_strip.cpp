#include "shell/wayland/wayland_strip.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace orvelle {

WaylandStrip::WaylandStrip(std::unique_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection))
    , m_globals(m_connection->display())
    , m_outputs(m_globals)
    , m_cursor(m_globals)
    , m_seats(m_globals, m_cursor)
    , m_window([this] { return place(); }) {
    m_timer.setSingleShot(true);
    m_timer.callOnTimeout(this, &WaylandStrip::update);
    connect(&bar(), &Bar::emptyChanged, this, &WaylandStrip::updateSoon);
    connect(&m_globals, &WaylandGlobals::changed, this, &WaylandStrip::updateSoon);
    connect(&m_outputs, &WaylandOutputs::changed, this, &WaylandStrip::updateSoon);
    connect(&m_outputs, &WaylandOutputs::removed, this, &WaylandStrip::handleRemoval);
    connect(m_connection.get(), &WaylandConnection::lost, this, [this](const QString& reason) {
        hide();
        Q_EMIT lost(reason);
    });
}

WaylandStrip::~WaylandStrip() {
    m_surface.reset(); // needs the bar, as the next one
    m_closed.reset();
}

std::unique_ptr<PressCatcher> WaylandStrip::catchPresses() const {
    return std::make_unique<PressCatcher>(m_globals, m_outputs, m_surface ? &m_surface->output() : nullptr);
}

BarPlace WaylandStrip::place() const {
    QScreen* screen = m_surface ? m_surface->output().screen() : QGuiApplication::primaryScreen();
    if (!m_surface)
        return {screen, QRect(), 1, false};
    const QPoint corner = screen == nullptr ? QPoint() : screen->geometry().topLeft();
    return {screen, QRect(corner, m_surface->size()), m_surface->pixelsPerPoint(), m_surface->isShown()};
}

void WaylandStrip::updateSoon() {
    if (!m_timer.isActive())
        m_timer.start(0);
}

void WaylandStrip::update() {
    m_closed.reset();
    const WaylandOutput* output = wantedOutput();
    if (output != nullptr)
        m_cursor.setScale(output->scale());
    if (bar().isEmpty() || output == nullptr || !m_globals.canShowStrip() || m_connection->isLost())
        hide();
    else if (!m_surface || &m_surface->output() != output)
        showOn(*output);
}

const WaylandOutput* WaylandStrip::wantedOutput() const {
    const std::vector<const WaylandOutput*> outputs = m_outputs.known();
    const auto accepting =
        std::ranges::find_if(outputs, [this](const WaylandOutput* output) { return output != m_refusing; });
    if (accepting != outputs.end())
        return *accepting;
    return outputs.empty() ? nullptr : outputs.front();
}

void WaylandStrip::showOn(const WaylandOutput& output) {
    hide();
    m_surface = std::make_unique<StripSurface>(m_globals, output, bar());
    m_life.start();
    connect(m_surface.get(), &StripSurface::closed, this, &WaylandStrip::handleClosed);
    connect(m_surface.get(), &StripSurface::painted, this, [this] {
        if (!std::exchange(m_wasPainted, true))
            Q_EMIT firstPainted();
    });
}

void WaylandStrip::hide() {
    if (!m_surface)
        return;
    m_surface.reset();
    Q_EMIT bar().moved();
}

void WaylandStrip::handleClosed() {
    m_refusing = &m_surface->output();
    m_closed = std::move(m_surface);
    Q_EMIT bar().moved();
    m_timer.start(m_retryDelay.next(std::chrono::milliseconds(m_life.elapsed())));
}

void WaylandStrip::handleRemoval(const WaylandOutput& output) {
    if (m_refusing == &output)
        m_refusing = nullptr;
    if (m_surface && &m_surface->output() == &output)
        hide();
}

} // namespace orvelle
