#pragma once

#include "menu_bar/item_scene.h"

#include <QPainter>

/// Paints the single shapes of an item within a frame that has their height, and their width or less. Lengths
/// are in points.
namespace orvelle {

inline constexpr double dotSpacing = 2;

void paintShape(QPainter& painter, const QRectF& frame, const SymbolShape& symbol);
void paintShape(QPainter& painter, const QRectF& frame, const TextShape& text);
void paintShape(QPainter& painter, const QRectF& frame, const CoreBarsShape& bars);
void paintShape(QPainter& painter, const QRectF& frame, const LevelBarShape& bar);
void paintShape(QPainter& painter, const QRectF& frame, const DotsShape& dots);

} // namespace orvelle
