#include "shell/tray/menu_layout.h"

#include <QDBusMetaType>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

const std::vector<MenuEntry> entries{
    {QStringLiteral("Settings..."), {}, {}}, {}, {QStringLiteral("Quit"), {}, {}}};

MenuLayoutNode child(const MenuLayoutNode& node, qsizetype index) {
    return node.children.at(index).variant().value<MenuLayoutNode>();
}

TEST(MenuLayoutTest, HasTheEntriesBelowItsRoot) {
    const MenuLayoutNode root = menuLayout(entries, 0, -1, {});
    EXPECT_EQ(root.id, 0);
    EXPECT_EQ(root.properties,
              (QVariantMap{{QStringLiteral("children-display"), QStringLiteral("submenu")}}));
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(child(root, 0).id, 1);
    EXPECT_EQ(child(root, 0).properties,
              (QVariantMap{{QStringLiteral("label"), QStringLiteral("Settings...")}}));
    EXPECT_EQ(child(root, 1).properties,
              (QVariantMap{{QStringLiteral("type"), QStringLiteral("separator")}}));
    EXPECT_EQ(child(root, 2).id, 3);
}

TEST(MenuLayoutTest, EndsAtTheDepthThatIsAskedFor) {
    EXPECT_TRUE(menuLayout(entries, 0, 0, {}).children.isEmpty());
    EXPECT_EQ(menuLayout(entries, 0, 1, {}).children.size(), 3);
}

TEST(MenuLayoutTest, IsOneEntryBelowTheRoot) {
    const MenuLayoutNode node = menuLayout(entries, 3, -1, {});
    EXPECT_EQ(node.id, 3);
    EXPECT_TRUE(node.children.isEmpty());
}

TEST(MenuLayoutTest, HasOnlyThePropertiesThatAreAskedFor) {
    const MenuLayoutNode root = menuLayout(entries, 0, -1, {QStringLiteral("label"), QStringLiteral("icon")});
    EXPECT_TRUE(root.properties.isEmpty());
    EXPECT_EQ(child(root, 0).properties.size(), 1);
    EXPECT_TRUE(child(root, 1).properties.isEmpty());
}

TEST(MenuLayoutTest, KeepsAnUnderscoreFromMarkingAKey) {
    const std::vector<MenuEntry> named{{QStringLiteral("a_b"), {}, {}}};
    EXPECT_EQ(menuProperties(named, 1, {}).value(QStringLiteral("label")).toString(), QStringLiteral("a__b"));
}

TEST(MenuLayoutTest, KnowsItsNodes) {
    EXPECT_TRUE(isMenuNode(0, 3));
    EXPECT_TRUE(isMenuNode(3, 3));
    EXPECT_FALSE(isMenuNode(4, 3));
    EXPECT_FALSE(isMenuNode(-1, 3));
    EXPECT_TRUE(isMenuNode(0, 0));
}

TEST(MenuLayoutTest, HasTheSignaturesOfTheInterface) {
    registerMenuTypes();
    EXPECT_STREQ(QDBusMetaType::typeToSignature(QMetaType::fromType<MenuLayoutNode>()), "(ia{sv}av)");
    EXPECT_STREQ(QDBusMetaType::typeToSignature(QMetaType::fromType<QList<MenuItemProperties>>()),
                 "a(ia{sv})");
    EXPECT_STREQ(QDBusMetaType::typeToSignature(QMetaType::fromType<QList<MenuEvent>>()), "a(isvu)");
}

} // namespace
} // namespace orvelle
