#include "app/menu_bar_items/item_part.h"
#include "support/pixels.h"

#include <gtest/gtest.h>

#include <memory>

namespace orvelle {
namespace {

using Frames = QList<QRectF>;

/// Remembers where it was painted, in device pixels.
ItemPart recorder(const QSizeF& size, double rigidWidth, const std::shared_ptr<Frames>& frames) {
    return {.key = {},
            .size = size,
            .rigidWidth = rigidWidth,
            .paint = [frames](QPainter& painter, const QRectF& frame) {
                frames->append(painter.deviceTransform().mapRect(frame));
            }};
}

void paintInto(const QSizeF& place, double ratio, const ItemPart& item) {
    (void)paintedImage(place, ratio,
                       [&](QPainter& painter) { paintCentred(painter, {{0, 0}, place}, item); });
}

class ItemPartTest : public ::testing::Test {
protected:
    std::shared_ptr<Frames> frames = std::make_shared<Frames>();

    [[nodiscard]] ItemPart rigid(double width, double height) const {
        return recorder({width, height}, width, frames);
    }
    [[nodiscard]] ItemPart text(double width, double height) const {
        return recorder({width, height}, 0, frames);
    }
};

TEST_F(ItemPartTest, ARowIsAsWideAsItsPartsAndGapsAndAsHighAsTheHighest) {
    const ItemPart item = row({rigid(12, 12), text(20, 10)}, 3);
    EXPECT_EQ(item.size, QSizeF(35, 12));
    EXPECT_EQ(item.rigidWidth, 15);
}

TEST_F(ItemPartTest, ARowIsCentredInItsPlaceAndItsPartsInItsHeight) {
    paintInto({60, 22}, 1, row({rigid(12, 12), rigid(20, 10)}, 2));
    EXPECT_EQ(*frames, Frames({QRectF(13, 5, 12, 12), QRectF(27, 6, 20, 10)}));
}

TEST_F(ItemPartTest, PartsStartOnWholeDevicePixels) {
    paintInto({61, 22}, 1.5, row({rigid(12.3, 11), rigid(20, 10)}, 2));
    for (const QRectF& frame : std::as_const(*frames)) {
        EXPECT_NEAR(frame.left(), std::round(frame.left()), 1e-9);
        EXPECT_NEAR(frame.top(), std::round(frame.top()), 1e-9);
    }
}

TEST_F(ItemPartTest, AColumnStacksItsPartsCentredOrAtTheTrailingEdge) {
    const ItemPart centred = column({rigid(20, 7), rigid(10, 4)}, 1, ColumnAlignment::center);
    EXPECT_EQ(centred.size, QSizeF(20, 12));
    paintInto({20, 12}, 1, centred);
    EXPECT_EQ(*frames, Frames({QRectF(0, 0, 20, 7), QRectF(5, 8, 10, 4)}));
    frames->clear();
    paintInto({20, 12}, 1, column({rigid(20, 7), rigid(10, 4)}, 1, ColumnAlignment::trailing));
    EXPECT_EQ(frames->last(), QRectF(10, 8, 10, 4));
}

TEST_F(ItemPartTest, TextIsCondensedWhereARowDoesNotFit) {
    paintInto({70, 22}, 1, row({rigid(40, 12), text(32, 10)}, 2));
    EXPECT_EQ(*frames, Frames({QRectF(0, 5, 40, 12), QRectF(42, 6, 28, 10)}));
}

TEST_F(ItemPartTest, TextWithinColumnsIsCondensedToo) {
    const ItemPart rates = column({row({rigid(7, 7), text(40, 9)}, 1), row({rigid(7, 7), text(20, 9)}, 1)}, 0,
                                  ColumnAlignment::trailing);
    EXPECT_EQ(rates.rigidWidth, 8);
    paintInto({70, 22}, 1, row({rates, rigid(30, 14)}, 2));
    EXPECT_EQ(frames->at(1).width(), 30) << "the long line gives way";
    EXPECT_EQ(frames->at(3).width(), 20) << "the short line has room";
    EXPECT_EQ(frames->at(4).right(), 70);
}

TEST_F(ItemPartTest, WhatIsFarTooWideIsDrawnSmallerAsAWhole) {
    paintInto({40, 22}, 1, row({rigid(60, 12), text(24, 10)}, 2));
    EXPECT_NEAR(frames->first().width(), 60 * 0.5, 1e-9);
    EXPECT_NEAR(frames->last().right(), 40, 1);
}

TEST_F(ItemPartTest, WhatIsHardlyTooWideStandsCloserTogether) {
    paintInto({60, 22}, 1, row({rigid(12, 12), rigid(46, 4)}, 3));
    EXPECT_EQ(*frames, Frames({QRectF(0, 5, 12, 12), QRectF(14, 9, 46, 4)}));
    frames->clear();
    paintInto({60, 22}, 2, row({rigid(12, 12), rigid(24, 4), rigid(21, 4)}, 2));
    EXPECT_EQ(*frames, Frames({QRectF(0, 10, 24, 24), QRectF(27, 18, 48, 8), QRectF(78, 18, 42, 8)}));
}

TEST_F(ItemPartTest, WhatIsTwoPointsTooWideIsDrawnSmaller) {
    paintInto({60, 22}, 1, row({rigid(12, 12), rigid(47, 4)}, 3));
    EXPECT_NEAR(frames->first().width(), 12 * 60.0 / 62, 1e-9);
}

TEST_F(ItemPartTest, WhatIsHardlyTooHighReachesOverItsPlaceOnBothSides) {
    paintInto({40, 22}, 1, rigid(20, 23));
    EXPECT_EQ(frames->first().size(), QSizeF(20, 23));
    EXPECT_LE(std::abs(frames->first().center().y() - 11), 0.5);
}

TEST_F(ItemPartTest, WhatIsTooHighIsDrawnSmallerAsAWhole) {
    paintInto({40, 22}, 1, rigid(20, 44));
    EXPECT_EQ(frames->first(), QRectF(15, 0, 10, 22));
}

TEST_F(ItemPartTest, NothingIsPaintedWithoutRoomOrContent) {
    paintInto({40, 22}, 1, ItemPart{});
    paintInto({40, 22}, 1, row({}, 2));
    (void)paintedImage({4, 4}, 1, [&](QPainter& painter) { paintCentred(painter, {}, rigid(20, 10)); });
    EXPECT_TRUE(frames->isEmpty());
}

} // namespace
} // namespace orvelle
