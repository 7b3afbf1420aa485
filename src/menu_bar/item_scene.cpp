#include "menu_bar/item_scene.h"

#include <cmath>
#include <utility>

namespace orvelle {
namespace {

/// The length, rounded to the finest visible step.
double visibleLength(const Level& level) {
    constexpr double stepsPerPoint = 16;
    return std::round(level.look.ratio * level.fullLength * stepsPerPoint);
}

template <class Visitor>
void visitLevels(SceneNode& node, Visitor& visit);

/// Calls `visit` for each level in a shape, from left to right and from top to bottom.
template <class Visitor>
struct LevelFinder {
    Visitor& visit;

    void operator()(RowShape& shape) const { descend(shape.nodes); }
    void operator()(ColumnShape& shape) const { descend(shape.nodes); }
    void operator()(LevelBarShape& shape) const { visit(shape.level); }
    void operator()(CoreBarsShape& shape) const {
        for (Level& level : shape.levels)
            visit(level);
    }
    template <class Other>
    void operator()(Other& /*shape*/) const {}

private:
    void descend(std::vector<SceneNode>& nodes) const {
        for (SceneNode& node : nodes)
            visitLevels(node, visit);
    }
};

template <class Visitor>
void visitLevels(SceneNode& node, Visitor& visit) {
    std::visit(LevelFinder<Visitor>{visit}, node.shape);
}

} // namespace

bool operator==(const Level& one, const Level& other) {
    return one.fullLength == other.fullLength && one.eases == other.eases &&
           one.look.color == other.look.color && visibleLength(one) == visibleLength(other);
}

bool RowShape::operator==(const RowShape& other) const = default;
bool ColumnShape::operator==(const ColumnShape& other) const = default;

SceneNode row(std::vector<SceneNode> nodes, double spacing) {
    return {RowShape{.nodes = std::move(nodes), .spacing = spacing}};
}

SceneNode column(std::vector<SceneNode> nodes, double spacing, ColumnAlignment alignment) {
    return {ColumnShape{.nodes = std::move(nodes), .spacing = spacing, .alignment = alignment}};
}

QList<Level> levelsOf(const SceneNode& node) {
    QList<Level> levels;
    SceneNode copy = node;
    auto append = [&levels](const Level& level) { levels.append(level); };
    visitLevels(copy, append);
    return levels;
}

SceneNode withLevels(const SceneNode& node, const QList<Level>& levels) {
    SceneNode result = node;
    auto next = levels.begin();
    auto replace = [&](Level& level) { level = *next++; };
    visitLevels(result, replace);
    return result;
}

} // namespace orvelle
