#pragma once

#include "menu_bar/item_scene.h"

#include <QPainter>

/// A status item as a square of 22 points, for desktops that have no room for a wider picture. Lengths are in
/// points.
namespace orvelle {

/// The square as a value; equal scenes look the same.
struct IconScene {
    SceneNode body = {};
    QString label = {};       ///< the value in a few characters, for a desktop that writes beside the picture
    QString widestLabel = {}; ///< the widest that the label can get

    bool operator==(const IconScene&) const = default;
};

/// Paints the scene on the dark plate that its colours are made for, because the desktop's panel may have any
/// colour.
void paintIcon(QPainter& painter, const QRectF& square, const SceneNode& body);

/// A symbol that fills the square.
[[nodiscard]] SceneNode iconSymbol(const QString& symbol, const QColor& color);

/// A symbol above a bar that is filled up to `fraction`.
[[nodiscard]] SceneNode iconSymbolAndLevel(const QString& symbol, double fraction, const QColor& color);

/// The whole percents of a fraction, without their sign, above a bar that is filled up to it.
[[nodiscard]] SceneNode iconDigitsAndLevel(double fraction, const QColor& color);

/// A vertical bar for each load from 0 to 1, in `color` or that of a high load. Where they are too many, a
/// bar stands for neighbours and shows their mean.
[[nodiscard]] SceneNode iconBars(const QList<double>& loads, const QColor& color);

/// At most `mostGroups` numbers: the means of neighbours, in groups whose sizes differ by one at most.
[[nodiscard]] QList<double> groupMeans(const QList<double>& numbers, qsizetype mostGroups);

} // namespace orvelle
