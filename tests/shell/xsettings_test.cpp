#include "shell/x11/xsettings.h"
#include "support/xsettings_bytes.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

constexpr std::string_view animations = "Gtk/EnableAnimations";

/// What a desktop publishes, with settings of every type before the one that is looked for.
XSettingsBytes desktop(bool mostSignificantFirst, std::int32_t value) {
    return XSettingsBytes(mostSignificantFirst)
        .text("Net/ThemeName", "Adwaita")
        .integer("Xft/DPI", 98304)
        .color("Net/Accent")
        .integer(animations, value)
        .text("Gtk/FontName", "Cantarell 11");
}

TEST(IntegerSetting, IsFoundAmongSettingsOfEveryTypeInBothByteOrders) {
    for (const bool mostSignificantFirst : {false, true}) {
        const std::string bytes = desktop(mostSignificantFirst, 0).bytes();
        EXPECT_EQ(integerSetting(bytes, animations), 0);
        EXPECT_EQ(integerSetting(bytes, "Xft/DPI"), 98304);
        EXPECT_EQ(integerSetting(desktop(mostSignificantFirst, 1).bytes(), animations), 1);
    }
}

TEST(IntegerSetting, CanBeNegative) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    for (const bool mostSignificantFirst : {false, true})
        EXPECT_EQ(integerSetting(desktop(mostSignificantFirst, lowest).bytes(), animations), lowest);
}

TEST(IntegerSetting, IsNothingWhenItIsNotThere) {
    EXPECT_EQ(integerSetting(desktop(false, 0).bytes(), "Gtk/EnableAnimation"), std::nullopt);
    EXPECT_EQ(integerSetting(desktop(false, 0).bytes(), "Gtk/EnableAnimations2"), std::nullopt);
    EXPECT_EQ(integerSetting(desktop(false, 0).bytes(), ""), std::nullopt);
    EXPECT_EQ(integerSetting(XSettingsBytes().bytes(), animations), std::nullopt);
    EXPECT_EQ(integerSetting({}, animations), std::nullopt);
}

TEST(IntegerSetting, IsNothingWhenItIsNoInteger) {
    EXPECT_EQ(integerSetting(XSettingsBytes().text(animations, "0").bytes(), animations), std::nullopt);
    EXPECT_EQ(integerSetting(XSettingsBytes().color(animations).bytes(), animations), std::nullopt);
}

TEST(IntegerSetting, IsNothingInAnUnknownByteOrder) {
    std::string bytes = desktop(false, 0).bytes();
    bytes[0] = 'l';
    EXPECT_EQ(integerSetting(bytes, animations), std::nullopt);
}

TEST(IntegerSetting, IsNothingBehindATypeOfUnknownSize) {
    const std::string bytes = XSettingsBytes().begin(3, "Odd").integer(animations, 0).bytes();
    EXPECT_EQ(integerSetting(bytes, animations), std::nullopt);
}

TEST(IntegerSetting, SurvivesAWrongCount) {
    EXPECT_EQ(integerSetting(desktop(false, 0).bytes(0xFFFFFFFF), animations), 0);
    EXPECT_EQ(integerSetting(desktop(false, 0).bytes(0xFFFFFFFF), "None"), std::nullopt);
    EXPECT_EQ(integerSetting(desktop(false, 0).bytes(3), animations), std::nullopt);
}

TEST(IntegerSetting, IsNothingWhenALengthIsTooLarge) {
    for (const bool mostSignificantFirst : {false, true}) {
        const std::string good = desktop(mostSignificantFirst, 0).bytes();
        constexpr std::size_t nameLength = 12 + 2;
        constexpr std::size_t textLength = 12 + 4 + 16 + 4;
        for (const std::size_t position : {nameLength, nameLength + 1, textLength, textLength + 3}) {
            std::string bytes = good;
            bytes[position] = '\xff';
            EXPECT_EQ(integerSetting(bytes, animations), std::nullopt) << position;
        }
    }
}

TEST(IntegerSetting, IsNothingWhenTheBytesEndBeforeIt) {
    const std::string bytes =
        XSettingsBytes().text("Net/ThemeName", "Adwaita").integer(animations, 0).bytes();
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_EQ(integerSetting(std::string_view(bytes).substr(0, size), animations), std::nullopt) << size;
    EXPECT_EQ(integerSetting(bytes, animations), 0);
}

TEST(IntegerSetting, NeedsNoPaddingAtTheEnd) {
    std::string bytes = XSettingsBytes().integer(animations, 1).text("Last", "five!").bytes();
    bytes.resize(bytes.size() - 3);
    EXPECT_EQ(integerSetting(bytes, animations), 1);
    EXPECT_EQ(integerSetting(bytes, "Last2"), std::nullopt);
}

TEST(TextSetting, IsFoundAmongSettingsOfEveryTypeInBothByteOrders) {
    for (const bool mostSignificantFirst : {false, true}) {
        const std::string bytes = desktop(mostSignificantFirst, 0).bytes();
        EXPECT_EQ(textSetting(bytes, "Net/ThemeName"), "Adwaita");
        EXPECT_EQ(textSetting(bytes, "Gtk/FontName"), "Cantarell 11");
    }
}

TEST(TextSetting, IsNothingWhenItIsNotThereOrNoText) {
    const std::string bytes = desktop(false, 0).bytes();
    for (const char* name : {"Gtk/Font", "", "Gtk/EnableAnimations", "Net/Accent"})
        EXPECT_EQ(textSetting(bytes, name), std::nullopt) << name;
    EXPECT_EQ(textSetting({}, "Gtk/FontName"), std::nullopt);
}

TEST(TextSetting, MayBeEmpty) {
    EXPECT_EQ(textSetting(XSettingsBytes().text("Gtk/FontName", "").bytes(), "Gtk/FontName"), "");
}

TEST(TextSetting, IsNothingWhenTheBytesEndBeforeIt) {
    const std::string bytes = XSettingsBytes().text("Gtk/FontName", "Cantarell 11").bytes();
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_EQ(textSetting(std::string_view(bytes).substr(0, size), "Gtk/FontName"), std::nullopt) << size;
    EXPECT_EQ(textSetting(bytes, "Gtk/FontName"), "Cantarell 11");
}

} // namespace
} // namespace orvelle
