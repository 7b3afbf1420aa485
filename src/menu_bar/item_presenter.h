#pragma once

#include "animation/animation_clock.h"
#include "animation/transition.h"
#include "menu_bar/item_scene.h"
#include "shell/status_item.h"

#include <chrono>
#include <optional>

namespace orvelle {

/// How often levels are painted on their way; nothing when the change is not worth moving for. Nobody sees
/// less than half a pixel, so a level that has a short way takes few steps.
[[nodiscard]] std::optional<std::chrono::milliseconds>
easeInterval(const QList<Level>& from, const QList<Level>& to, double pixelsPerPoint);

/// Shows scenes in a status item: levels ease from the length and the colour that they have to the new ones,
/// and the item is painted again only when it looks different. Main thread only.
class ItemPresenter {
public:
    /// The item must outlive the presenter, unless it is not painted any more.
    ItemPresenter(StatusItem& item, AnimationClock& clock);
    ItemPresenter(const ItemPresenter&) = delete;
    ItemPresenter& operator=(const ItemPresenter&) = delete;

    /// Replaces the scene. What is not on the screen does not move, and neither does the first scene.
    void show(const ItemScene& scene);

    [[nodiscard]] const ItemScene& scene() const { return m_scene; }
    /// What the item shows now, which may be on its way to the scene.
    [[nodiscard]] const SceneNode& shown() const { return m_shown; }
    /// Whether levels are on their way.
    [[nodiscard]] bool isMoving() const { return m_part.isRunning(); }

private:
    void retarget(bool mayMove, double pixelsPerPoint);
    void step(double seconds);
    void refresh();
    /// The levels of the present scene as they are shown now.
    [[nodiscard]] QList<Level> shownLevels() const;

    StatusItem& m_item;
    AnimationClock& m_clock;
    ItemScene m_scene; ///< the newest
    SceneNode m_shown;
    bool m_hasScene = false;
    Transition<QList<BarLook>> m_looks; ///< of those levels that ease
    Animation m_part;
};

} // namespace orvelle
