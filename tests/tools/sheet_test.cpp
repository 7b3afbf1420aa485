#include "snapshot/sheet.h"
#include "snapshot/sheets.h"
#include "support/pixels.h"

#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// A cell that is filled with one colour, by which its place on the sheet can be found.
SheetCell filledCell(const QSizeF& size, const QColor& color, const QString& caption = {}) {
    return {.caption = caption, .size = size, .paint = [color](QPainter& painter, const QRectF& frame) {
                painter.fillRect(frame, color);
            }};
}

Sheet sheetOf(const QList<SheetRow>& rows) {
    return {.name = QStringLiteral("sheet"), .rows = rows, .backgrounds = {SheetBackground::dark}};
}

/// The smallest rectangle that holds the pixels of this colour.
QRect placeOf(const QImage& image, const QColor& color) {
    QRect place;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color.rgba())
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

class SheetAtScale : public ::testing::TestWithParam<double> {
protected:
    [[nodiscard]] static QSize pixels(int width, int height) {
        return (QSizeF(width, height) * GetParam()).toSize();
    }
    [[nodiscard]] static QImage picture(const Sheet& sheet) {
        return unscaled(sheetImage(sheet, GetParam()));
    }
};

INSTANTIATE_TEST_SUITE_P(, SheetAtScale, ::testing::Values(1.0, 1.5, 2.0));

TEST_P(SheetAtScale, PutsTheCellsOfARowSideBySideAndRowsBelowOneAnother) {
    const QImage image =
        picture(sheetOf({{.title = QStringLiteral("a"),
                          .cells = {filledCell({20, 10}, Qt::red), filledCell({30, 16}, Qt::green)}},
                         {.title = QStringLiteral("b"), .cells = {filledCell({20, 10}, Qt::blue)}}}));
    const QRect first = placeOf(image, Qt::red);
    const QRect second = placeOf(image, Qt::green);
    const QRect below = placeOf(image, Qt::blue);
    EXPECT_EQ(second.size(), pixels(30, 16));
    EXPECT_GT(second.left(), first.right());
    EXPECT_NEAR(second.center().y(), first.center().y(), 1);
    EXPECT_GT(below.top(), second.bottom());
    EXPECT_EQ(below.left(), first.left());
}

TEST_P(SheetAtScale, GivesALongCaptionItsRoom) {
    const QString caption = QStringLiteral("a caption that is wider than its view");
    const QImage image = picture(sheetOf(
        {{.title = {}, .cells = {filledCell({20, 10}, Qt::red, caption), filledCell({20, 10}, Qt::green)}}}));
    EXPECT_GT(placeOf(image, Qt::green).left() - placeOf(image, Qt::red).left(), 80 * GetParam());
}

TEST_P(SheetAtScale, ShowsEveryRowOnEveryBackground) {
    Sheet sheet = sheetOf({{.title = {}, .cells = {filledCell({20, 10}, Qt::red)}}});
    const int oneBackground = picture(sheet).height();
    sheet.backgrounds = {SheetBackground::dark, SheetBackground::light};
    const QImage image = picture(sheet);
    EXPECT_NEAR(image.height(), 2 * oneBackground, 1); // a caption may end within a pixel
    EXPECT_EQ(countPixels(image, Qt::red), 2 * pixels(20, 10).width() * pixels(20, 10).height());
    EXPECT_LT(image.pixelColor(0, 0).lightness(), 50);
    EXPECT_GT(image.pixelColor(0, image.height() - 1).lightness(), 200);
}

TEST(Sheet, AViewHasItsRoomAround) {
    QRectF given;
    const SheetCell cell =
        cellWithRoom({}, {20, 10}, 4, [&](QPainter&, const QRectF& frame) { given = frame; });
    EXPECT_EQ(cell.size, QSizeF(28, 18));
    QImage image(1, 1, QImage::Format_RGB32);
    QPainter painter(&image);
    cell.paint(painter, {100, 50, 28, 18});
    EXPECT_EQ(given, QRectF(104, 54, 20, 10));
}

TEST(SheetFile, IsNamedByItsScale) {
    EXPECT_EQ(sheetFileName(QStringLiteral("bars"), 1), QStringLiteral("bars@1.png"));
    EXPECT_EQ(sheetFileName(QStringLiteral("bars"), 1.5), QStringLiteral("bars@1.5.png"));
}

TEST(SheetFile, HoldsThePictureInADirectoryThatIsMade) {
    const QTemporaryDir folder;
    const QString directory = folder.filePath(QStringLiteral("new/pictures"));
    const Sheet sheet = sheetOf({{.title = {}, .cells = {filledCell({20, 10}, Qt::red)}}});
    EXPECT_FALSE(writeSheets({sheet}, directory, 2));
    const QImage written(directory + QStringLiteral("/sheet@2.png"));
    EXPECT_EQ(written.size(), 2 * sheetSize(sheet));
    EXPECT_EQ(written.convertToFormat(QImage::Format_RGB32), unscaled(sheetImage(sheet, 2)));
}

TEST(SheetFile, ThatCannotBeWrittenIsSaid) {
    const Sheet sheet = sheetOf({{.title = {}, .cells = {filledCell({20, 10}, Qt::red)}}});
    EXPECT_TRUE(writeSheets({sheet}, QStringLiteral("/dev/null/pictures"), 1));
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("sheet@1.png"))); // a directory in the file's place
    EXPECT_TRUE(writeSheets({sheet}, folder.path(), 1));
}

TEST(Sheets, OfChartsHaveNamesOfTheirOwn) {
    QSet<QString> names;
    for (const Sheet& sheet : chartSheets())
        names.insert(sheet.name);
    EXPECT_EQ(names.size(), chartSheets().size());
}

} // namespace
} // namespace orvelle
