#include "menu_bar/item_presenter.h"

#include "animation/animation_timing.h"
#include "core/severity.h"
#include "menu_bar/scene_painter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {
namespace {

constexpr double smallestMovePixels = 0.5; ///< a shorter way shows at once
constexpr double pixelsPerFrame = 1;
constexpr double framesWhenIdle = 6;
constexpr double framesWhenWorking = 3;
constexpr double workingUsage = 0.25;

QList<Level> easingLevelsOf(const SceneNode& scene) {
    QList<Level> levels = levelsOf(scene);
    levels.removeIf([](const Level& level) { return !level.eases; });
    return levels;
}

QList<BarLook> looksOf(const QList<Level>& levels) {
    QList<BarLook> looks;
    for (const Level& level : levels)
        looks.append(level.look);
    return looks;
}

} // namespace

std::optional<std::chrono::milliseconds> easeInterval(const QList<Level>& from, const QList<Level>& to,
                                                      double pixelsPerPoint, double processorUsage) {
    if (from.size() != to.size())
        return std::nullopt; // the number of bars has changed
    if (processorSeverity(processorUsage) == Severity::critical)
        return std::nullopt;
    double pixels = 0;
    bool isRecolored = false;
    for (qsizetype index = 0; index < to.size(); ++index) {
        const BarLook& look = to[index].look;
        const double change = std::abs(look.ratio - from[index].look.ratio);
        pixels = std::max(pixels, change * to[index].fullLength * pixelsPerPoint);
        isRecolored = isRecolored || (change > 0 && look.color != from[index].look.color);
    }
    if (pixels < smallestMovePixels && !isRecolored)
        return std::nullopt;
    const double most = processorUsage < workingUsage ? framesWhenIdle : framesWhenWorking;
    const double frames = isRecolored ? most : std::clamp(pixels / pixelsPerFrame, 1.0, most);
    return std::chrono::milliseconds(std::lround(miniBarSeconds / frames * 1000));
}

ItemPresenter::ItemPresenter(StatusItem& item, AnimationClock& clock)
    : m_item(item)
    , m_clock(clock)
    , m_easing(clock, [this](double seconds) { step(seconds); }) {
    m_item.setPaint([this](QPainter& painter, const QRectF& bounds, BarAppearance appearance) {
        paintScene(painter, bounds, m_shown, appearance);
    });
}

void ItemPresenter::show(const ItemScene& scene, double processorUsage) {
    const bool isFirst = !std::exchange(m_hasScene, true);
    if (!isFirst && scene == m_scene)
        return;
    const bool isReworded =
        scene.accessibleName != m_scene.accessibleName || scene.accessibleText != m_scene.accessibleText;
    const double pixelsPerPoint = m_item.visiblePixelsPerPoint();
    m_scene = scene;
    retarget(!isFirst && pixelsPerPoint > 0 && !m_clock.isReduced(), pixelsPerPoint, processorUsage);
    if (isReworded)
        m_item.setWords(m_scene.accessibleName, m_scene.accessibleText);
    refresh();
}

void ItemPresenter::showIcon(const IconScene& icon) {
    if (m_icon == icon)
        return;
    m_icon = icon;
    m_item.setIcon(
        {[body = icon.body](QPainter& painter, const QRectF& square) { paintIcon(painter, square, body); },
         icon.label, icon.widestLabel});
}

void ItemPresenter::retarget(bool mayEase, double pixelsPerPoint, double processorUsage) {
    const QList<Level> target = easingLevelsOf(m_scene.body);
    const QList<BarLook> looks = looksOf(target);
    if (mayEase && looks == m_looks.target())
        return; // the levels are there or already move there
    const auto interval = easeInterval(easingLevelsOf(m_shown), target, pixelsPerPoint, processorUsage);
    if (mayEase && interval) {
        m_looks.retarget(looks, miniBarSeconds, easeInOut());
        m_easing.start(*interval);
    } else {
        m_looks.jump(looks);
        m_easing.stop();
    }
}

void ItemPresenter::step(double seconds) {
    m_looks.advance(seconds);
    if (m_looks.isSettled())
        m_easing.stop();
    refresh();
}

QList<Level> ItemPresenter::shownLevels() const {
    QList<Level> levels = levelsOf(m_scene.body);
    const QList<BarLook> looks = m_looks.shown();
    qsizetype next = 0;
    for (Level& level : levels) {
        if (level.eases)
            level.look = looks.at(next++);
    }
    return levels;
}

void ItemPresenter::refresh() {
    SceneNode shown = withLevels(m_scene.body, shownLevels());
    if (shown == m_shown)
        return;
    m_shown = std::move(shown);
    m_item.repaint();
}

} // namespace orvelle
