#pragma once

#include "menu_bar/item_scene.h"

#include <QPainter>

namespace orvelle {

/// Paints a scene centred in the fixed length of its place in the menu bar, in points, at any scale. What is
/// wider than that gets its text condensed; what is still wider has its parts put closer together, and from 2
/// points on it is drawn smaller as a whole, so that nothing is cut off. Shapes start on whole device pixels.
void paintScene(QPainter& painter, const QRectF& bounds, const SceneNode& scene);

} // namespace orvelle
