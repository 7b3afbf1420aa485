#include "theme/app_theme.h"
#include "theme/colors.h"

#include <QMetaProperty>
#include <gtest/gtest.h>

#include <array>

namespace orvelle {
namespace {

struct Components {
    double red;
    double green;
    double blue;
    double opacity = 1;
};

struct ThemeRow {
    const char* id;
    const char* name;
    std::array<Components, 16> colors; ///< in the order of the theme's properties
};

// clang-format off
const ThemeRow themeTable[] = {
    {"midnight", "Midnight",
     {{{0.2, 0.5, 1.0}, {0.0, 0.85, 0.55}, {0.6, 0.4, 1.0}, {1.0, 0.6, 0.1},
       {0.2, 0.9, 0.4}, {1.0, 0.3, 0.3}, {0.06, 0.07, 0.15}, {1, 1, 1},
       {0.3, 0.6, 1.0}, {0.3, 0.6, 1.0}, {0.2, 0.4, 0.8}, {1, 1, 1, 0.06},
       {90 / 255.0, 200 / 255.0, 245 / 255.0}, {255 / 255.0, 159 / 255.0, 10 / 255.0},
       {1.0, 0.6, 0.1}, {191 / 255.0, 90 / 255.0, 242 / 255.0}}}},
    {"cyberpunk", "Cyberpunk",
     {{{1.0, 0.0, 0.6}, {0.0, 1.0, 0.9}, {0.9, 0.0, 1.0}, {1.0, 0.9, 0.0},
       {0.0, 1.0, 0.4}, {1.0, 0.2, 0.0}, {0.08, 0.02, 0.15}, {0.9, 0.9, 1.0},
       {1.0, 0.0, 0.6}, {0.0, 1.0, 0.9}, {1.0, 0.0, 0.6}, {0.5, 0.0, 0.8, 0.15},
       {0.0, 1.0, 0.9}, {1.0, 0.0, 0.6}, {1.0, 0.9, 0.0}, {0.9, 0.0, 1.0}}}},
    {"nord", "Nord",
     {{{0.506, 0.631, 0.757}, {0.639, 0.745, 0.549}, {0.702, 0.557, 0.678}, {0.922, 0.796, 0.545},
       {0.639, 0.745, 0.549}, {0.749, 0.38, 0.416}, {0.18, 0.204, 0.251}, {0.925, 0.937, 0.957},
       {0.533, 0.753, 0.816}, {0.533, 0.753, 0.816}, {0.369, 0.506, 0.675}, {0.925, 0.937, 0.957, 0.06},
       {0.533, 0.753, 0.816}, {0.922, 0.796, 0.545}, {0.922, 0.796, 0.545}, {0.702, 0.557, 0.678}}}},
    {"dracula", "Dracula",
     {{{0.741, 0.576, 0.976}, {0.314, 0.98, 0.482}, {1.0, 0.475, 0.776}, {0.945, 0.98, 0.549},
       {0.314, 0.98, 0.482}, {1.0, 0.333, 0.333}, {0.157, 0.165, 0.212}, {0.973, 0.973, 0.949},
       {0.741, 0.576, 0.976}, {0.51, 0.831, 0.98}, {0.741, 0.576, 0.976}, {0.973, 0.973, 0.949, 0.06},
       {0.51, 0.831, 0.98}, {1.0, 0.722, 0.424}, {0.945, 0.98, 0.549}, {1.0, 0.475, 0.776}}}},
    {"solarizedDark", "Solarized Dark",
     {{{0.149, 0.545, 0.824}, {0.522, 0.6, 0.0}, {0.827, 0.212, 0.51}, {0.71, 0.537, 0.0},
       {0.522, 0.6, 0.0}, {0.863, 0.196, 0.184}, {0.0, 0.169, 0.212}, {0.514, 0.58, 0.588},
       {0.149, 0.545, 0.824}, {0.149, 0.545, 0.824}, {0.149, 0.545, 0.824, 0.3}, {0.514, 0.58, 0.588, 0.08},
       {0.165, 0.631, 0.596}, {0.71, 0.537, 0.0}, {0.71, 0.537, 0.0}, {0.827, 0.212, 0.51}}}},
    {"minimal", "Minimal",
     {{{1, 1, 1, 0.9}, {1, 1, 1, 0.8}, {1, 1, 1, 0.7}, {1, 1, 1, 0.75},
       {1, 1, 1, 0.8}, {1, 1, 1, 0.85}, {0.05, 0.05, 0.05}, {1, 1, 1, 0.9},
       {1, 1, 1, 0.6}, {1, 1, 1, 0.8}, {1, 1, 1, 0.08}, {1, 1, 1, 0.04},
       {1, 1, 1, 0.7}, {1, 1, 1, 0.45}, {1, 1, 1, 0.75}, {1, 1, 1, 0.45}}}},
    {"synthwave", "Synthwave",
     {{{1.0, 0.0, 0.8}, {0.4, 0.0, 1.0}, {1.0, 0.4, 0.0}, {1.0, 0.85, 0.0},
       {0.0, 1.0, 0.6}, {1.0, 0.1, 0.3}, {0.1, 0.0, 0.18}, {1.0, 0.9, 1.0},
       {1.0, 0.0, 0.8}, {1.0, 0.0, 0.8}, {0.5, 0.0, 1.0}, {1.0, 0.0, 0.5, 0.08},
       {0.4, 0.0, 1.0}, {1.0, 0.4, 0.0}, {1.0, 0.85, 0.0}, {1.0, 0.0, 0.8}}}},
    {"forest", "Forest",
     {{{0.3, 0.7, 0.3}, {0.4, 0.8, 0.4}, {0.55, 0.65, 0.4}, {0.7, 0.55, 0.3},
       {0.5, 0.8, 0.3}, {0.85, 0.45, 0.2}, {0.06, 0.1, 0.06}, {0.85, 0.9, 0.8},
       {0.4, 0.75, 0.35}, {0.4, 0.75, 0.35}, {0.2, 0.5, 0.2}, {0.4, 0.6, 0.3, 0.08},
       {0.4, 0.8, 0.4}, {0.7, 0.55, 0.3}, {0.7, 0.55, 0.3}, {0.55, 0.65, 0.4}}}},
    {"ocean", "Ocean",
     {{{0.0, 0.6, 0.9}, {0.0, 0.8, 0.7}, {0.3, 0.5, 0.9}, {0.4, 0.75, 0.65},
       {0.0, 0.85, 0.65}, {0.9, 0.4, 0.35}, {0.02, 0.06, 0.12}, {0.8, 0.92, 0.98},
       {0.0, 0.7, 0.85}, {0.0, 0.7, 0.85}, {0.0, 0.4, 0.7}, {0.0, 0.5, 0.7, 0.08},
       {0.0, 0.8, 0.7}, {0.4, 0.75, 0.65}, {0.4, 0.75, 0.65}, {0.3, 0.5, 0.9}}}},
    {"sunset", "Sunset",
     {{{1.0, 0.45, 0.15}, {1.0, 0.7, 0.2}, {0.9, 0.25, 0.35}, {0.95, 0.6, 0.1},
       {1.0, 0.8, 0.2}, {0.85, 0.15, 0.2}, {0.12, 0.04, 0.06}, {1.0, 0.92, 0.85},
       {1.0, 0.5, 0.2}, {1.0, 0.5, 0.2}, {0.8, 0.2, 0.1}, {1.0, 0.5, 0.2, 0.08},
       {1.0, 0.7, 0.2}, {0.9, 0.25, 0.35}, {0.95, 0.6, 0.1}, {0.9, 0.25, 0.35}}}},
    {"monochromeGreen", "Monochrome Green",
     {{{0.0, 1.0, 0.3}, {0.0, 0.9, 0.25}, {0.0, 0.85, 0.2}, {0.0, 0.8, 0.3},
       {0.0, 0.95, 0.25}, {0.0, 0.75, 0.2}, {0.0, 0.02, 0.0}, {0.0, 0.9, 0.3},
       {0.0, 1.0, 0.35}, {0.0, 1.0, 0.3}, {0.0, 0.5, 0.15}, {0.0, 0.6, 0.2, 0.1},
       {0.0, 1.0, 0.3}, {0.0, 0.6, 0.15}, {0.0, 0.8, 0.3}, {0.0, 0.5, 0.15}}}},
    {"pastel", "Pastel",
     {{{0.6, 0.7, 1.0}, {0.6, 0.9, 0.7}, {0.85, 0.65, 0.9}, {1.0, 0.82, 0.6},
       {0.65, 0.9, 0.65}, {1.0, 0.65, 0.65}, {0.12, 0.12, 0.16}, {0.9, 0.9, 0.95},
       {0.7, 0.75, 1.0}, {0.7, 0.75, 1.0}, {0.6, 0.65, 0.9}, {0.7, 0.7, 0.8, 0.06},
       {0.6, 0.85, 0.9}, {1.0, 0.75, 0.6}, {1.0, 0.82, 0.6}, {0.85, 0.65, 0.9}}}},
};
// clang-format on

TEST(BuiltInThemesTest, HaveTheColorsOfTheTableInItsOrder) {
    const QMetaObject& meta = AppTheme::staticMetaObject;
    ASSERT_EQ(builtInThemes().size(), static_cast<qsizetype>(std::size(themeTable)));
    ASSERT_EQ(meta.propertyCount(), 18);
    for (qsizetype index = 0; index < builtInThemes().size(); ++index) {
        const AppTheme& theme = builtInThemes().at(index);
        const ThemeRow& row = themeTable[index];
        EXPECT_EQ(theme.id, QLatin1StringView(row.id));
        EXPECT_EQ(theme.name, QLatin1StringView(row.name));
        for (int field = 2; field < meta.propertyCount(); ++field) {
            const QMetaProperty property = meta.property(field);
            const auto color = property.readOnGadget(&theme).value<QColor>();
            const Components& expected = row.colors[static_cast<std::size_t>(field) - 2];
            SCOPED_TRACE(::testing::Message() << row.id << '.' << property.name());
            EXPECT_EQ(color.spec(), QColor::Rgb);
            EXPECT_NEAR(color.redF(), expected.red, 1e-5);
            EXPECT_NEAR(color.greenF(), expected.green, 1e-5);
            EXPECT_NEAR(color.blueF(), expected.blue, 1e-5);
            EXPECT_NEAR(color.alphaF(), expected.opacity, 1e-5);
        }
    }
}

TEST(BuiltInThemesTest, NameTheirFieldsInOrder) {
    const std::array names{"id",
                           "name",
                           "cpuColor",
                           "memoryColor",
                           "networkColor",
                           "diskColor",
                           "batteryColor",
                           "sensorColor",
                           "backgroundColor",
                           "textColor",
                           "accentColor",
                           "graphLine",
                           "graphFill",
                           "graphGrid",
                           "networkDownloadColor",
                           "networkUploadColor",
                           "diskReadColor",
                           "diskWriteColor"};
    for (std::size_t index = 0; index < names.size(); ++index)
        EXPECT_STREQ(AppTheme::staticMetaObject.property(static_cast<int>(index)).name(), names[index]);
}

TEST(BuiltInThemesTest, AreBuiltOnce) {
    EXPECT_EQ(&builtInThemes(), &builtInThemes());
}

TEST(BuiltInThemesTest, HaveTranslucentGridLines) {
    for (const AppTheme& theme : builtInThemes()) {
        EXPECT_GT(theme.graphGrid.alphaF(), 0.0F) << theme.id.toStdString();
        EXPECT_LT(theme.graphGrid.alphaF(), 0.2F) << theme.id.toStdString();
    }
}

TEST(BuiltInThemesTest, UseSystemColorsInMidnight) {
    const AppTheme& midnight = builtInThemes().front();
    EXPECT_EQ(midnight.networkDownloadColor, SystemColors::cyan);
    EXPECT_EQ(midnight.networkUploadColor, SystemColors::orange);
    EXPECT_EQ(midnight.diskWriteColor, SystemColors::purple);
}

} // namespace
} // namespace orvelle
