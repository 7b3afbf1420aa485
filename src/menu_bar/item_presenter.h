#pragma once

#include "animation/animation_clock.h"
#include "animation/transition.h"
#include "menu_bar/icon_scene.h"
#include "menu_bar/item_scene.h"
#include "shell/status_item.h"

#include <chrono>
#include <optional>

namespace orvelle {

/// The time between the frames of an animated change of levels; nothing when the change shows at once,
/// because it is too small or the processor is too busy. `processorUsage` is from 0 to 1. Frames on which no
/// bar moves by a whole pixel are hard to see, so a short distance takes few. A busy processor gets fewer
/// still: the bar must not add to the load that it shows.
[[nodiscard]] std::optional<std::chrono::milliseconds>
easeInterval(const QList<Level>& from, const QList<Level>& to, double pixelsPerPoint, double processorUsage);

/// Shows scenes in a status item. Levels ease from their current length and colour to the new ones, and the
/// item is repainted only when it looks different. Main thread only.
class ItemPresenter {
public:
    /// The item must exist while the presenter shows or eases scenes. Nothing may paint it after the
    /// presenter's destruction.
    ItemPresenter(StatusItem& item, AnimationClock& clock);
    ItemPresenter(const ItemPresenter&) = delete;
    ItemPresenter& operator=(const ItemPresenter&) = delete;

    /// Replaces the scene. The first scene appears without motion, as does an item that is off the screen.
    /// `processorUsage` is that of the machine, from 0 to 1: see `easeInterval`.
    void show(const ItemScene& scene, double processorUsage);

    /// Whether the item has an icon, which is shown by `showIcon`.
    [[nodiscard]] bool showsIcon() const { return m_item.showsIcon(); }
    /// Replaces the icon, without motion.
    void showIcon(const IconScene& icon);

    [[nodiscard]] const ItemScene& scene() const { return m_scene; }
    /// The current look of the item, which may still be easing to the newest scene.
    [[nodiscard]] const SceneNode& shown() const { return m_shown; }

private:
    void retarget(bool mayEase, double pixelsPerPoint, double processorUsage);
    void step(double seconds);
    void refresh();
    /// The levels of the newest scene as currently shown.
    [[nodiscard]] QList<Level> shownLevels() const;

    StatusItem& m_item;
    AnimationClock& m_clock;
    ItemScene m_scene; ///< the newest
    SceneNode m_shown; ///< what the item shows
    bool m_hasScene = false;
    std::optional<IconScene> m_icon;    ///< the newest
    Transition<QList<BarLook>> m_looks; ///< of those levels that ease
    Animation m_easing;                 ///< runs while the shown levels ease
};

} // namespace orvelle
