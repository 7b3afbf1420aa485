#pragma once

#include "menu_bar/item_scene.h"

#include <QPainter>

namespace orvelle {

/// Paints a scene centred in its place in the menu bar, whose fixed length is in points, at any scale. A
/// scene that is too wide condenses its text first, then moves its parts closer together. If it still exceeds
/// the place by 2 points or more, it is scaled down as a whole, so nothing is cut off. Shapes start on whole
/// device pixels. Labels, tracks and outlines stand out from a bar of this appearance.
void paintScene(QPainter& painter, const QRectF& bounds, const SceneNode& scene, BarAppearance appearance);

} // namespace orvelle
