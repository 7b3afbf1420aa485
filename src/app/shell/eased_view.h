#pragma once

#include "app/shell/status_item_view.h"
#include "charts/eased.h"
#include "charts/motion.h"

#include <functional>
#include <memory>
#include <optional>

namespace orvelle {

/// How often bars are repainted on their way; nothing when the change is not worth moving for. `fullLength`
/// is the length of a full bar in device pixels. Nobody sees less than half a pixel, so a bar that has a
/// short way takes few steps.
[[nodiscard]] std::optional<std::chrono::milliseconds>
easeInterval(const QList<BarLook>& from, const QList<BarLook>& to, double fullLength);

/// The view of a status item as the screen shows it: when the view is replaced, its bars ease from the length
/// and the colour that they have to the new ones.
class EasedView {
public:
    /// `repaint` is called when the item looks different from before.
    EasedView(Motion& motion, std::function<void()> repaint);

    /// Replaces the view. What is not on the screen does not move, and neither does the first view.
    void replace(std::shared_ptr<const StatusItemView> view, double pixelsPerPoint, bool isOnScreen);

    /// The newest view; null before the first one.
    [[nodiscard]] const StatusItemView* view() const { return m_view.get(); }
    /// Whether its bars are on their way.
    [[nodiscard]] bool isMoving() const { return m_part.isMoving(); }

    /// Paints the picture that `repaint` was last called for; nothing before the first view.
    void paint(QPainter& painter, const QRectF& bounds) const;

private:
    void retarget(double pixelsPerPoint, bool mayMove);
    void step(double seconds);
    void refreshPicture();

    Motion& m_motion;
    std::function<void()> m_repaint;
    std::shared_ptr<const StatusItemView> m_view;
    std::optional<ItemPicture> m_picture; ///< as it was last shown
    Eased<QList<BarLook>> m_bars;
    MovingPart m_part;
};

} // namespace orvelle
