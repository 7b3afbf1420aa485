#pragma once

#include "charts/bar_look.h"
#include "charts/sparkline_view.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QSizeF>
#include <QString>

#include <variant>
#include <vector>

/// What a status item shows, as a value: a tree of shapes in rows and columns, and the words for assistive
/// technology. Scenes that are equal look the same. Lengths are in points.
namespace orvelle {

struct SymbolShape {
    QString name;
    double fontSize = 0;
    QColor color = {};

    bool operator==(const SymbolShape&) const = default;
};

/// One line of text, its capitals centred vertically. In a narrower place it is condensed.
struct TextShape {
    QString text;
    QFont font = {};
    QColor color = {};

    bool operator==(const TextShape&) const = default;
};

/// How far a bar reaches. Two levels that nobody can tell apart are equal.
struct Level {
    BarLook look = {};
    double fullLength = 0; ///< of a bar at ratio 1
    bool eases = true;     ///< moves to its next value; else it jumps there

    friend bool operator==(const Level& one, const Level& other);
};

/// Bars side by side that grow from the bottom, one for each processor core.
struct CoreBarsShape {
    QList<Level> levels;

    bool operator==(const CoreBarsShape&) const = default;
};

/// A bar that is filled from the left; more than 1 is drawn as full.
struct LevelBarShape {
    QSizeF size;
    double cornerRadius = 0;
    Level level = {};

    bool operator==(const LevelBarShape&) const = default;
};

/// Circles from left to right, one for each colour.
struct DotsShape {
    QList<QColor> colors;
    double diameter = 4;

    bool operator==(const DotsShape&) const = default;
};

/// A battery that is filled in proportion to its charge.
struct BatteryShape {
    double charge = 0; ///< 0 to 1
    QColor color = {}; ///< of the fill

    bool operator==(const BatteryShape&) const = default;
};

/// Which edges of the shapes in a column lie on one line.
enum class ColumnAlignment { center, trailing };

struct SceneNode;

/// Side by side, each centred vertically.
struct RowShape {
    std::vector<SceneNode> nodes;
    double spacing = 0;

    bool operator==(const RowShape& other) const;
};

/// One above the other.
struct ColumnShape {
    std::vector<SceneNode> nodes;
    double spacing = 0;
    ColumnAlignment alignment = ColumnAlignment::center;

    bool operator==(const ColumnShape& other) const;
};

/// A shape, or several in a row or a column. An empty row is nothing.
struct SceneNode {
    std::variant<RowShape, ColumnShape, SymbolShape, TextShape, CoreBarsShape, LevelBarShape, DotsShape,
                 BatteryShape, SparklineView, DualSparklineView>
        shape;

    bool operator==(const SceneNode&) const = default;
};

struct ItemScene {
    SceneNode body = {};
    QString accessibleName = {}; ///< what the item is about, for example "CPU"; it does not change
    QString accessibleText = {}; ///< the values in words, for example "CPU 12%"

    bool operator==(const ItemScene&) const = default;
};

[[nodiscard]] SceneNode row(std::vector<SceneNode> nodes, double spacing);
[[nodiscard]] SceneNode column(std::vector<SceneNode> nodes, double spacing, ColumnAlignment alignment);

/// The levels in a scene, in the order in which they are painted.
[[nodiscard]] QList<Level> levelsOf(const SceneNode& node);
/// The scene with other levels, as many as it has.
[[nodiscard]] SceneNode withLevels(const SceneNode& node, const QList<Level>& levels);

} // namespace orvelle
