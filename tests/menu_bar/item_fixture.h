#pragma once

#include "menu_bar/menu_bar_item.h"
#include "menu_bar/scene_painter.h"
#include "settings/settings_store.h"
#include "support/pixels.h"
#include "theme/theme_manager.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <array>

namespace orvelle {

inline constexpr std::array allDisplayStyles = {
    MenuBarDisplayStyle::miniBars, MenuBarDisplayStyle::textOnly, MenuBarDisplayStyle::iconAndText,
    MenuBarDisplayStyle::sparkline, MenuBarDisplayStyle::dotIndicator};

/// Settings and themes of a new user, and pictures of items at two pixels per point.
class ItemFixture : public ::testing::Test {
protected:
    static constexpr double barHeight = 22;
    static constexpr double pixelsPerPoint = 2;

    /// The item as painted in a place of `length` points in the menu bar.
    [[nodiscard]] static QImage picture(const SceneNode& scene, double length,
                                        double ratio = pixelsPerPoint) {
        return paintedImage({length, barHeight}, ratio, [&](QPainter& painter) {
            paintScene(painter, {0, 0, length, barHeight}, scene, BarAppearance::dark);
        });
    }
    template <class Item>
    [[nodiscard]] static QImage picture(const Item& item, double length, double ratio = pixelsPerPoint) {
        return picture(item.body().body, length, ratio);
    }

    /// Expects that no style paints outside the item's place at any screen scale.
    template <class Item>
    void expectItStaysInItsPlace(const Item& item, double length) {
        constexpr double margin = 30;
        for (const MenuBarDisplayStyle style : allDisplayStyles) {
            settings.setMenuBarDisplayStyle(style);
            for (const double ratio : {1.0, 1.5, 2.0}) {
                const QRectF place(margin, margin, length, barHeight);
                const QImage image = paintedImage(
                    {length + 2 * margin, barHeight + 2 * margin}, ratio, [&](QPainter& painter) {
                        paintScene(painter, place, item.body().body, BarAppearance::dark);
                    });
                const QRect allowed = QRectF(place.topLeft() * ratio, place.size() * ratio).toAlignedRect();
                EXPECT_FALSE(paintedRect(image).isEmpty());
                EXPECT_TRUE(allowed.contains(paintedRect(image)))
                    << "style " << static_cast<int>(style) << " at scale " << ratio;
            }
        }
    }

    QTemporaryDir folder;
    SettingsStore settings{folder.filePath(QStringLiteral("settings.ini"))};
    ThemeManager themes{settings};
};

/// The number of separate painted stretches in a row of pixels within [left, right).
inline int countRuns(const QImage& image, int y, int left, int right) {
    int runs = 0;
    bool isInside = false;
    for (int x = left; x < right; ++x) {
        const bool isPainted = qAlpha(image.pixel(x, y)) > 0;
        runs += isPainted && !isInside ? 1 : 0;
        isInside = isPainted;
    }
    return runs;
}

} // namespace orvelle
