#include "app/context_menu_entries.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(ContextMenuEntries, AreSettingsASeparatorAndQuit) {
    QStringList calls;
    const std::vector<MenuEntry> entries =
        contextMenuEntries([&calls] { calls.append(QStringLiteral("settings")); },
                           [&calls] { calls.append(QStringLiteral("quit")); });
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].title, QStringLiteral("Settings..."));
    EXPECT_EQ(entries[0].keyEquivalent, QStringLiteral(","));
    EXPECT_TRUE(entries[1].title.isEmpty());
    EXPECT_EQ(entries[2].title, QStringLiteral("Quit Orvelle"));
    EXPECT_EQ(entries[2].keyEquivalent, QStringLiteral("q"));
    entries[0].action();
    entries[2].action();
    EXPECT_EQ(calls, (QStringList{QStringLiteral("settings"), QStringLiteral("quit")}));
}

} // namespace
} // namespace orvelle
