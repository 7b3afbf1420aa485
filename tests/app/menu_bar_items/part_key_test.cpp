#include "app/menu_bar_items/battery_glyph.h"
#include "app/menu_bar_items/item_drawings.h"
#include "app/menu_bar_items/part_key.h"
#include "charts/sparkline_view.h"
#include "look/fonts.h"

#include <gtest/gtest.h>

#include <set>

namespace orvelle {
namespace {

TEST(PartKey, TellsValuesApartThatWouldReadTheSameInARow) {
    EXPECT_NE(partKey("text", QStringView(u"ab"), QStringView(u"c")),
              partKey("text", QStringView(u"a"), QStringView(u"bc")));
    EXPECT_NE(partKey("list", QList<double>{1}, QList<double>{}),
              partKey("list", QList<double>{}, QList<double>{1}));
    EXPECT_NE(partKey("maybe", std::optional<double>()), partKey("maybe", std::optional<double>(0)));
    EXPECT_NE(partKey("a"), partKey("b"));
}

TEST(PartKey, TellsColorsApartThatDifferInOpacityOnly) {
    EXPECT_NE(partKey("dot", QColor(255, 0, 0, 255)), partKey("dot", QColor(255, 0, 0, 254)));
    EXPECT_EQ(partKey("dot", QColor(255, 0, 0)), partKey("dot", QColor(Qt::red)));
}

TEST(PartKey, EveryValueOfAPartCounts) {
    const QFont font = systemFont(10);
    const SparklineView line{.data = {1, 2}, .maxValue = 3, .lineColor = Qt::red, .width = 30, .height = 12};
    const auto changedLine = [&line](auto change) {
        SparklineView changed = line;
        change(changed);
        return sparklinePart(changed);
    };
    const std::vector<ItemPart> parts = {
        symbolPart(u"cpu", 10, Qt::red),
        symbolPart(u"network", 10, Qt::red),
        symbolPart(u"cpu", 11, Qt::red),
        symbolPart(u"cpu", 10, Qt::blue),
        textPart(QStringLiteral("1%"), font, Qt::red),
        textPart(QStringLiteral("2%"), font, Qt::red),
        textPart(QStringLiteral("1%"), font, Qt::blue),
        textPart(QStringLiteral("1%"), systemFont(11), Qt::red),
        textPart(QStringLiteral("1%"), systemFont(10.5), Qt::red),
        textPart(QStringLiteral("1%"), systemFont(10, QFont::Bold), Qt::red),
        textPart(QStringLiteral("1%"), monospacedSystemFont(10), Qt::red),
        dotsPart({Qt::red}),
        dotsPart({Qt::red, Qt::red}),
        dotsPart({Qt::blue}),
        dotsPart({Qt::red}, 5),
        levelBarPart({20, 4}, 2, 0.5, Qt::red),
        levelBarPart({20, 5}, 2, 0.5, Qt::red),
        levelBarPart({20, 4}, 1, 0.5, Qt::red),
        levelBarPart({20, 4}, 2, 0.6, Qt::red),
        levelBarPart({20, 4}, 2, 0.5, Qt::blue),
        batteryGlyphPart(50, Qt::green),
        batteryGlyphPart(51, Qt::green),
        batteryGlyphPart(50, Qt::red),
        sparklinePart(line),
        changedLine([](SparklineView& changed) { changed.data = {1, 3}; }),
        changedLine([](SparklineView& changed) { changed.maxValue = 4; }),
        changedLine([](SparklineView& changed) { changed.lineColor = Qt::blue; }),
        changedLine([](SparklineView& changed) { changed.fillColor = Qt::blue; }),
        changedLine([](SparklineView& changed) { changed.lineWidth = 2; }),
        sparklinePart(DualSparklineView{.topData = {1}, .width = 30, .height = 12}),
        sparklinePart(DualSparklineView{.bottomData = {1}, .width = 30, .height = 12}),
        row({dotsPart({Qt::red}), dotsPart({Qt::blue})}, 2),
        row({dotsPart({Qt::blue}), dotsPart({Qt::red})}, 2),
        row({dotsPart({Qt::red}), dotsPart({Qt::blue})}, 3),
        row({row({dotsPart({Qt::red})}, 2), dotsPart({Qt::blue})}, 2),
        column({dotsPart({Qt::red}), dotsPart({Qt::blue})}, 2, ColumnAlignment::center),
        column({dotsPart({Qt::red}), dotsPart({Qt::blue})}, 2, ColumnAlignment::trailing),
    };
    std::set<std::string> keys;
    for (const ItemPart& part : parts)
        keys.insert(part.key);
    EXPECT_EQ(keys.size(), parts.size());
}

TEST(PartKey, IsTheSameForALevelThatNobodySeesMove) {
    EXPECT_EQ(levelBarPart({28, 8}, 3, 0.5, Qt::red).key, levelBarPart({28, 8}, 3, 0.5005, Qt::red).key);
    EXPECT_EQ(levelBarPart({28, 8}, 3, 1, Qt::red).key, levelBarPart({28, 8}, 3, 7, Qt::red).key)
        << "more than full is drawn as full";
}

TEST(VisibleLength, StepsByASixteenthOfAPoint) {
    EXPECT_EQ(visibleLength(0), 0);
    EXPECT_EQ(visibleLength(1.03), 1);
    EXPECT_EQ(visibleLength(1.04), 1.0625);
}

} // namespace
} // namespace orvelle
