#pragma once

#include "charts/bar_look.h"
#include "charts/sparkline_view.h"
#include "menu_bar/label_color.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QSizeF>
#include <QString>

#include <variant>
#include <vector>

/// The content of a status item as a value: a tree of shapes in rows and columns, and the words for assistive
/// technology. Equal scenes look the same. Lengths are in points.
namespace orvelle {

struct SymbolShape {
    QString name;
    double fontSize = 0;
    QColor color = {};

    bool operator==(const SymbolShape&) const = default;
};

/// One line of text, its capitals centred vertically. It is condensed when its space is too narrow.
struct TextShape {
    QString text;
    QFont font = {};
    TextColor color = {};

    bool operator==(const TextShape&) const = default;
};

/// The length of a bar. Levels that are visually indistinguishable compare equal.
struct Level {
    BarLook look = {};
    double fullLength = 0; ///< of a bar at ratio 1
    bool eases = true;     ///< whether it eases to its next value instead of jumping

    friend bool operator==(const Level& one, const Level& other);
};

/// Bars side by side that grow from the bottom, one for each processor core.
struct CoreBarsShape {
    QList<Level> levels;
    QSizeF frame = {}; ///< of all bars; an empty one gives each bar the width that it has in the menu bar

    bool operator==(const CoreBarsShape&) const = default;
};

/// A bar filled from the left; a ratio above 1 is drawn as full.
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

/// The alignment of the shapes in a column.
enum class ColumnAlignment { center, trailing };

struct SceneNode;

/// Shapes side by side, each centred vertically.
struct RowShape {
    std::vector<SceneNode> nodes;
    double spacing = 0;

    bool operator==(const RowShape& other) const;
};

/// Shapes from top to bottom.
struct ColumnShape {
    std::vector<SceneNode> nodes;
    double spacing = 0;
    ColumnAlignment alignment = ColumnAlignment::center;

    bool operator==(const ColumnShape& other) const;
};

/// One shape, or several in a row or a column. An empty row draws nothing.
// NOLINTNEXTLINE(bugprone-exception-escape): no alternative throws when it moves
struct SceneNode {
    std::variant<RowShape, ColumnShape, SymbolShape, TextShape, CoreBarsShape, LevelBarShape, DotsShape,
                 BatteryShape, SparklineView, DualSparklineView>
        shape;

    bool operator==(const SceneNode&) const = default;
};

struct ItemScene {
    SceneNode body = {};
    QString accessibleName = {}; ///< the subject of the item, for example "CPU"; constant
    QString accessibleText = {}; ///< the values in words, for example "CPU 12%"

    bool operator==(const ItemScene&) const = default;
};

[[nodiscard]] SceneNode row(std::vector<SceneNode> nodes, double spacing);
[[nodiscard]] SceneNode column(std::vector<SceneNode> nodes, double spacing, ColumnAlignment alignment);

/// The levels of a scene in painting order.
[[nodiscard]] QList<Level> levelsOf(const SceneNode& node);
/// Copies the scene with new levels; their number must match.
[[nodiscard]] SceneNode withLevels(const SceneNode& node, const QList<Level>& levels);

} // namespace orvelle
