#include "menu_bar/menu_bar_item.h"
#include "theme/fonts.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

template <class Change>
SceneNode changed(const SparklineView& line, Change change) {
    SparklineView other = line;
    change(other);
    return {other};
}

TEST(ItemSceneTest, EveryValueOfAShapeAffectsEquality) {
    const QFont font = systemFont(10);
    const QString cpu = QStringLiteral("cpu");
    const SparklineView line{.data = {1, 2}, .maxValue = 3, .lineColor = Qt::red, .width = 30, .height = 12};
    const std::vector<SceneNode> nodes = {
        symbolNode(cpu, 10, Qt::red),
        symbolNode(QStringLiteral("network"), 10, Qt::red),
        symbolNode(cpu, 11, Qt::red),
        symbolNode(cpu, 10, Qt::blue),
        textNode(QStringLiteral("1%"), font, Qt::red),
        textNode(QStringLiteral("2%"), font, Qt::red),
        textNode(QStringLiteral("1%"), font, Qt::blue),
        textNode(QStringLiteral("1%"), systemFont(11), Qt::red),
        textNode(QStringLiteral("1%"), systemFont(10.5), Qt::red),
        textNode(QStringLiteral("1%"), systemFont(10, QFont::Bold), Qt::red),
        textNode(QStringLiteral("1%"), monospacedSystemFont(10), Qt::red),
        dotsNode({Qt::red}),
        dotsNode({QColor(255, 0, 0, 254)}),
        dotsNode({Qt::red, Qt::red}),
        dotsNode({Qt::blue}),
        dotsNode({Qt::red}, 5),
        levelBarNode({20, 4}, 2, 0.5, Qt::red, true),
        levelBarNode({20, 5}, 2, 0.5, Qt::red, true),
        levelBarNode({20, 4}, 1, 0.5, Qt::red, true),
        levelBarNode({20, 4}, 2, 0.6, Qt::red, true),
        levelBarNode({20, 4}, 2, 0.5, Qt::blue, true),
        levelBarNode({20, 4}, 2, 0.5, Qt::red, false),
        {CoreBarsShape{.levels = {{.look = {0.5, Qt::red}, .fullLength = 14}}}},
        {CoreBarsShape{.levels = {{.look = {0.6, Qt::red}, .fullLength = 14}}}},
        {BatteryShape{.charge = 0.5, .color = Qt::green}},
        {BatteryShape{.charge = 0.51, .color = Qt::green}},
        {BatteryShape{.charge = 0.5, .color = Qt::red}},
        {line},
        changed(line, [](SparklineView& other) { other.data = {1, 3}; }),
        changed(line, [](SparklineView& other) { other.maxValue = 4; }),
        changed(line, [](SparklineView& other) { other.lineColor = Qt::blue; }),
        changed(line, [](SparklineView& other) { other.fillColor = Qt::blue; }),
        changed(line, [](SparklineView& other) { other.lineWidth = 2; }),
        {DualSparklineView{.topData = {1}, .width = 30, .height = 12}},
        {DualSparklineView{.bottomData = {1}, .width = 30, .height = 12}},
        row({dotsNode({Qt::red}), dotsNode({Qt::blue})}, 2),
        row({dotsNode({Qt::blue}), dotsNode({Qt::red})}, 2),
        row({dotsNode({Qt::red}), dotsNode({Qt::blue})}, 3),
        row({row({dotsNode({Qt::red})}, 2), dotsNode({Qt::blue})}, 2),
        column({dotsNode({Qt::red}), dotsNode({Qt::blue})}, 2, ColumnAlignment::center),
        column({dotsNode({Qt::red}), dotsNode({Qt::blue})}, 2, ColumnAlignment::trailing),
    };
    for (std::size_t one = 0; one < nodes.size(); ++one) {
        for (std::size_t other = 0; other < nodes.size(); ++other)
            EXPECT_EQ(nodes[one] == nodes[other], one == other) << one << " and " << other;
    }
}

TEST(ItemSceneTest, TheWordsAffectEquality) {
    const ItemScene scene{.accessibleName = QStringLiteral("CPU"),
                          .accessibleText = QStringLiteral("CPU 1%")};
    ItemScene other = scene;
    EXPECT_EQ(scene, other);
    other.accessibleText = QStringLiteral("CPU 2%");
    EXPECT_NE(scene, other);
}

TEST(ItemSceneTest, LevelsThatLookTheSameAreEqual) {
    const auto bar = [](double fraction) { return levelBarNode({28, 8}, 3, fraction, Qt::red, true); };
    EXPECT_EQ(bar(0.5), bar(0.5005));
    EXPECT_NE(bar(0.5), bar(0.505)) << "an eighth of a point";
}

TEST(ItemSceneTest, ItsLevelsAreFoundAndReplacedInTheirOrder) {
    const auto level = [](double ratio) { return Level{.look = {ratio, Qt::red}, .fullLength = 10}; };
    const auto scene = [&](const QList<double>& ratios) {
        return row({dotsNode({Qt::red}),
                    {CoreBarsShape{.levels = {level(ratios[0]), level(ratios[1])}}},
                    column({{LevelBarShape{.size = {10, 4}, .level = level(ratios[2])}}}, 1,
                           ColumnAlignment::center)},
                   2);
    };
    EXPECT_EQ(levelsOf(scene({0.1, 0.2, 0.3})), QList<Level>({level(0.1), level(0.2), level(0.3)}));
    EXPECT_EQ(withLevels(scene({0.1, 0.2, 0.3}), {level(0.4), level(0.5), level(0.6)}),
              scene({0.4, 0.5, 0.6}));
    EXPECT_TRUE(levelsOf(dotsNode({Qt::red})).isEmpty());
}

} // namespace
} // namespace orvelle
