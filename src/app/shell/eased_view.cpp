#include "app/shell/eased_view.h"

#include "charts/animation_rules.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {
namespace {

constexpr double smallestVisiblePixels = 0.5;
constexpr double shortestIntervalSeconds = 1.0 / 30;

} // namespace

std::optional<std::chrono::milliseconds> easeInterval(const QList<BarLook>& from, const QList<BarLook>& to,
                                                      double fullLength) {
    if (from.size() != to.size())
        return std::nullopt; // other bars
    double pixels = 0;
    bool isRecolored = false;
    for (qsizetype index = 0; index < to.size(); ++index) {
        const double change = std::abs(to[index].ratio - from[index].ratio);
        pixels = std::max(pixels, change * fullLength);
        isRecolored = isRecolored || (change > 0 && to[index].color != from[index].color);
    }
    if (pixels < smallestVisiblePixels && !isRecolored)
        return std::nullopt;
    const double steps =
        isRecolored ? miniBarSeconds / shortestIntervalSeconds : pixels / smallestVisiblePixels;
    const double seconds = std::clamp(miniBarSeconds / steps, shortestIntervalSeconds, miniBarSeconds);
    return std::chrono::milliseconds(std::lround(seconds * 1000));
}

EasedView::EasedView(Motion& motion, std::function<void()> repaint)
    : m_motion(motion)
    , m_repaint(std::move(repaint))
    , m_part(motion, [this](double seconds) { step(seconds); }) {}

void EasedView::replace(std::shared_ptr<const StatusItemView> view, double pixelsPerPoint, bool isOnScreen) {
    const bool mayMove = m_view != nullptr && isOnScreen && !m_motion.isReduced();
    m_view = std::move(view);
    retarget(pixelsPerPoint, mayMove);
    refreshPicture();
}

void EasedView::retarget(double pixelsPerPoint, bool mayMove) {
    const EasedBars bars = m_view->bars();
    if (mayMove && bars.looks == m_bars.target())
        return; // they stand there, or are on their way there
    const auto interval = easeInterval(m_bars.shown(), bars.looks, bars.fullLength * pixelsPerPoint);
    if (mayMove && interval) {
        m_bars.retarget(bars.looks, miniBarSeconds, easeInOut());
        m_part.start(*interval);
    } else {
        m_bars.jump(bars.looks);
        m_part.stop();
    }
}

void EasedView::paint(QPainter& painter, const QRectF& bounds) const {
    if (m_picture)
        m_picture->paint(painter, bounds);
}

void EasedView::step(double seconds) {
    m_bars.advance(seconds);
    if (m_bars.isSettled())
        m_part.stop();
    refreshPicture();
}

void EasedView::refreshPicture() {
    ItemPicture picture = m_view->picture(m_bars.shown());
    if (m_picture && picture.key == m_picture->key)
        return;
    m_picture = std::move(picture);
    m_repaint();
}

} // namespace orvelle
