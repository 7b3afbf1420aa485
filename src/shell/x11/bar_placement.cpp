#include "shell/x11/bar_placement.h"

#include "shell/painted/bar.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <cmath>

namespace orvelle {
namespace {

/// Screens, docks and window managers change in bursts; the bar moves this long after the first change. It
/// also bounds the cost when another program keeps moving its dock out of the way.
constexpr std::chrono::milliseconds burstDuration{50};

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
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &BarPlacement::updateSoon);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &BarPlacement::watchScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &BarPlacement::updateSoon);
    for (QScreen* screen : QGuiApplication::screens())
        watchScreen(screen);
}

void BarPlacement::watchScreen(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &BarPlacement::updateSoon);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &BarPlacement::updateSoon);
    updateSoon();
}

void BarPlacement::handleEvent(const xcb_generic_event_t& event) {
    if (m_hints != nullptr && m_hints->isLayoutChange(event))
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
    const auto window = static_cast<xcb_window_t>(m_bar.winId());
    m_hints->declareDock(window);
    m_strut.reset();
    m_hints->setStrut(window, m_strut);
}

void BarPlacement::place(const QScreen& screen) {
    const QRect geometry = screen.geometry();
    const double pixelsPerPoint = screen.devicePixelRatio();
    if (m_hints == nullptr) {
        m_bar.setGeometry(barGeometry(geometry, pixelsPerPoint, 0));
        return;
    }
    const auto window = static_cast<xcb_window_t>(m_bar.winId());
    const QRect pixels = screenPixels(geometry, pixelsPerPoint);
    const int height = static_cast<int>(std::ceil(barHeightPoints * pixelsPerPoint));
    const int offset = freeOffset(pixels, height, m_hints->otherTopDocks(window));
    const QRect target = barGeometry(geometry, pixelsPerPoint, offset);
    // At a scale of 1.5 Qt asks for steps of 2 pixels, and the window manager cuts 33 pixels to 32. Steps
    // count from the base size.
    m_bar.setBaseSize(target.size());
    m_bar.setGeometry(target);

    const std::optional<TopStrut> strut =
        strutFor(windowPixels(target, geometry, pixelsPerPoint), pixels,
                 m_hints->rootSize().value_or(pixels.size()), pixelsOfScreensOtherThan(screen));
    // The window manager answers every strut, changed or not, with an announcement that leads back here.
    if (strut != m_strut) {
        m_hints->setStrut(window, strut);
        m_strut = strut;
    }
}

} // namespace orvelle
