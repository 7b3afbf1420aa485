#include "menu_bar/scene_layout.h"

#include "menu_bar/battery_glyph.h"
#include "theme/symbols.h"

#include <QFontMetricsF>
#include <QHash>

#include <algorithm>

namespace orvelle {
namespace {

Extent rigid(const QSizeF& size) {
    return {size, size.width()};
}

double gapsIn(const std::vector<SceneNode>& nodes, double spacing) {
    return nodes.empty() ? 0 : spacing * static_cast<double>(nodes.size() - 1);
}

struct Measurer {
    Extent operator()(const SymbolShape& symbol) const {
        return rigid(symbolSize(symbol.name, symbol.fontSize));
    }
    Extent operator()(const TextShape& text) const { return {textExtent(text).size, 0}; }
    Extent operator()(const CoreBarsShape& bars) const { return rigid(coreBarsFrame(bars)); }
    Extent operator()(const LevelBarShape& bar) const { return rigid(bar.size); }
    Extent operator()(const DotsShape& dots) const {
        const auto count = static_cast<double>(dots.colors.size());
        return rigid({std::max(0.0, count * (dots.diameter + dotSpacing) - dotSpacing), dots.diameter});
    }
    Extent operator()(const BatteryShape& /*battery*/) const { return rigid(batteryGlyphSize()); }
    Extent operator()(const SparklineView& line) const { return rigid({line.width, line.height}); }
    Extent operator()(const DualSparklineView& lines) const { return rigid({lines.width, lines.height}); }
    Extent operator()(const RowShape& row) const {
        const double gaps = gapsIn(row.nodes, row.spacing);
        Extent whole{{gaps, 0}, gaps};
        for (const SceneNode& node : row.nodes) {
            const Extent extent = extentOf(node);
            whole.size.rwidth() += extent.size.width();
            whole.size.rheight() = std::max(whole.size.height(), extent.size.height());
            whole.rigidWidth += extent.rigidWidth;
        }
        return whole;
    }
    Extent operator()(const ColumnShape& column) const {
        Extent whole{{0, gapsIn(column.nodes, column.spacing)}, 0};
        for (const SceneNode& node : column.nodes) {
            const Extent extent = extentOf(node);
            whole.size.rwidth() = std::max(whole.size.width(), extent.size.width());
            whole.size.rheight() += extent.size.height();
            whole.rigidWidth = std::max(whole.rigidWidth, extent.rigidWidth);
        }
        return whole;
    }
};

} // namespace

Extent extentOf(const SceneNode& node) {
    return std::visit(Measurer{}, node.shape);
}

Extent extentOf(const RowShape& row) {
    return Measurer{}(row);
}

double condensedWidth(const Extent& extent, double share) {
    return extent.rigidWidth + share * (extent.size.width() - extent.rigidWidth);
}

double condensedShare(const Extent& extent, double width) {
    const double text = extent.size.width() - extent.rigidWidth;
    return text > 0 ? std::clamp((width - extent.rigidWidth) / text, narrowestText, 1.0) : 1;
}

double gapWithin(const RowShape& row, const Extent& extent, double width) {
    const double excess = condensedWidth(extent, narrowestText) - width;
    if (row.nodes.size() < 2 || excess <= 0)
        return row.spacing;
    return std::max(0.0, row.spacing - excess / static_cast<double>(row.nodes.size() - 1));
}

double coreBarsWidth(qsizetype coreCount) {
    constexpr double widthPerCore = 3.5;
    constexpr qsizetype widestCoreCount = 12;
    return static_cast<double>(std::min(coreCount, widestCoreCount)) * widthPerCore;
}

QSizeF coreBarsFrame(const CoreBarsShape& bars) {
    return bars.frame.isEmpty() ? QSizeF(coreBarsWidth(bars.levels.size()), coreBarsHeight) : bars.frame;
}

QList<QRectF> coreBarSlots(qsizetype coreCount, const QSizeF& frame) {
    const auto count = static_cast<double>(coreCount);
    const double spacing = std::min(1.0, frame.width() / (2 * count - 1));
    const double barWidth = (frame.width() - spacing * (count - 1)) / count;
    QList<QRectF> bars;
    for (qsizetype core = 0; core < coreCount; ++core)
        bars.append(QRectF(static_cast<double>(core) * (barWidth + spacing), 0, barWidth, frame.height()));
    return bars;
}

const TextExtent& textExtent(const TextShape& text) {
    constexpr qsizetype mostRemembered = 256; // all percentages, and some rates
    static QHash<std::pair<QString, QFont>, TextExtent> remembered;
    const std::pair key(text.text, text.font);
    auto found = remembered.find(key);
    if (found == remembered.end()) {
        if (remembered.size() >= mostRemembered)
            remembered.clear();
        const QFontMetricsF metrics(text.font);
        found = remembered.insert(
            key, {{metrics.horizontalAdvance(text.text), metrics.height()}, metrics.capHeight()});
    }
    return *found;
}

} // namespace orvelle
