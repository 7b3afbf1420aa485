#include "shell/x11/bar_placement.h"

#include "shell/painted/bar.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {
namespace {

/// Screens, docks and window managers change in bursts; the bar moves this long after the first change. It
/// also bounds the cost when another program keeps moving its dock out of the way.
constexpr std::chrono::milliseconds burstDuration{50};

/// So long a window manager, and what else follows the screens, has to notice that the bar reserves nothing.
constexpr std::chrono::milliseconds shortestMeasurement{150};
/// After this time the window manager will not announce another work area.
constexpr std::chrono::milliseconds longestMeasurement{1000};

/// How much of the screen's top is reserved.
int reservedHeight(const std::optional<TopStrut>& strut, const QRect& screen) {
    return strut ? std::max(strut->height - screen.top(), 0) : 0;
}

std::vector<QRect> pixelsOfScreensOtherThan(const QScreen& screen) {
    std::vector<QRect> others;
    for (const QScreen* other : screen.virtualSiblings()) {
        if (other != &screen)
            others.push_back(screenPixels(other->geometry(), other->devicePixelRatio()));
    }
    return others;
}

} // namespace

BarPlacement::BarPlacement(QWindow& bar)
    : m_bar(bar) {
    m_timer.setSingleShot(true);
    m_timer.callOnTimeout(this, &BarPlacement::update);
    // The user may close any window through the window manager; a bar that still has items comes back.
    connect(&m_bar, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible && m_isShown)
            updateSoon();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &BarPlacement::measureSoon);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &BarPlacement::watchScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &BarPlacement::measureSoon);
    for (QScreen* screen : QGuiApplication::screens())
        watchScreen(screen);
}

void BarPlacement::watchScreen(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &BarPlacement::measureSoon);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &BarPlacement::measureSoon);
    measureSoon();
}

void BarPlacement::handleEvent(const xcb_generic_event_t& event) {
    if (m_hints == nullptr)
        return;
    if (m_hints->isManagerChange(event))
        measureSoon();
    else if (m_hints->isLayoutChange(event))
        updateSoon();
}

void BarPlacement::setShown(bool shown) {
    m_isShown = shown;
    m_timer.start(0);
}

void BarPlacement::updateSoon() {
    if (!m_timer.isActive())
        m_timer.start(burstDuration);
}

void BarPlacement::measureSoon() {
    m_mustMeasure = true;
    updateSoon();
}

void BarPlacement::update() {
    if (!m_isShown) {
        m_bar.hide();
        return;
    }
    // There is none for a moment while the last screen is unplugged.
    QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    m_bar.setScreen(screen);
    if (!m_bar.isVisible())
        declareDock();
    place(*screen);
    m_bar.show();
}

void BarPlacement::declareDock() {
    m_bar.create();
    if (m_hints == nullptr)
        return;
    m_hints->declareDock(static_cast<xcb_window_t>(m_bar.winId()));
    m_mustMeasure = true;
}

void BarPlacement::place(const QScreen& screen) {
    if (m_hints != nullptr)
        placeAmongDocks(screen);
    else
        m_bar.setGeometry(barGeometry(screen.geometry(), screen.devicePixelRatio(), 0));
}

void BarPlacement::placeAmongDocks(const QScreen& screen) {
    const QRect geometry = screen.geometry();
    const double pixelsPerPoint = screen.devicePixelRatio();
    const QRect pixels = screenPixels(geometry, pixelsPerPoint);
    std::vector<TopDock> docks = m_hints->otherTopDocks(static_cast<xcb_window_t>(m_bar.winId()));
    measureStrip(pixels, docks);
    if (const std::optional<TopDock> strip = m_strip.asDock(pixels))
        docks.push_back(*strip);
    const int height = static_cast<int>(std::ceil(barHeightPoints * pixelsPerPoint));
    const QRect target = barGeometry(geometry, pixelsPerPoint, freeOffset(pixels, height, docks));
    // At a scale of 1.5 Qt asks for steps of 2 pixels, and the window manager cuts 33 pixels to 32. Steps
    // count from the base size.
    m_bar.setBaseSize(target.size());
    m_bar.setGeometry(target);

    if (m_strip.isMeasuring())
        m_timer.start(burstDuration);
    else
        reserve(strutFor(windowPixels(target, geometry, pixelsPerPoint), pixels,
                         m_hints->rootSize().value_or(pixels.size()), pixelsOfScreensOtherThan(screen)));
}

void BarPlacement::measureStrip(const QRect& screen, const std::vector<TopDock>& docks) {
    const std::vector<QRect> areas = m_hints->workAreas();
    const TopStrip::Announcement announced{.height = heightAboveWorkArea(screen, areas),
                                           .isReservedByDocks = isReservedByDocks(screen, areas, docks)};
    if (std::exchange(m_mustMeasure, false))
        withdrawStrut(screen, std::nullopt);
    else if (!m_strip.isMeasuring() && m_strip.isRefutedBy(announced, reservedHeight(m_strut, screen)))
        withdrawStrut(screen, announced.height);
    const bool hadStrut = m_sinceWithdrawal.isValid();
    if (m_strip.isMeasuring() && (!hadStrut || m_sinceWithdrawal.hasExpired(shortestMeasurement.count())))
        m_strip.measure(announced, hadStrut && m_sinceWithdrawal.hasExpired(longestMeasurement.count()));
}

void BarPlacement::withdrawStrut(const QRect& screen, std::optional<int> refutation) {
    m_strip.beginMeasurement(reservedHeight(m_strut, screen), refutation);
    if (m_strut || m_bar.isVisible())
        m_sinceWithdrawal.start();
    reserve(std::nullopt);
}

void BarPlacement::reserve(const std::optional<TopStrut>& strut) {
    // The window manager answers every strut, changed or not, with an announcement that leads back here.
    if (strut == m_strut)
        return;
    m_hints->setStrut(static_cast<xcb_window_t>(m_bar.winId()), strut);
    m_strut = strut;
}

} // namespace orvelle
