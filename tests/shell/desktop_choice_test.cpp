#include "shell/linux/desktop_choice.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class DesktopChoiceTest : public ::testing::Test {
protected:
    /// The search of a machine that has these desktops; `asked` notes the order.
    DesktopSearch machineWith(bool wayland, bool x11, bool tray) {
        const auto answer = [this](const char* name, bool isThere) {
            return [this, name, isThere]() -> std::optional<QString> {
                asked.append(QLatin1StringView(name));
                return isThere ? std::nullopt
                               : std::optional(QStringLiteral("no %1").arg(QLatin1StringView(name)));
            };
        };
        return {answer("wayland", wayland), answer("x11", x11), answer("tray", tray)};
    }
    std::optional<DesktopKind> kind(const char* wish, const char* platform, const DesktopSearch& search) {
        return findDesktop(QLatin1StringView(wish), platform, search).kind;
    }

    QStringList asked;
};

TEST_F(DesktopChoiceTest, TakesTheBestThatIsThere) {
    EXPECT_EQ(kind("auto", "", machineWith(true, true, true)), DesktopKind::wayland);
    EXPECT_EQ(kind("auto", "", machineWith(false, true, true)), DesktopKind::x11);
    EXPECT_EQ(kind("auto", "", machineWith(false, false, true)), DesktopKind::tray);
}

TEST_F(DesktopChoiceTest, AsksForNoMoreThanItNeeds) {
    static_cast<void>(kind("auto", "", machineWith(false, true, true)));
    EXPECT_EQ(asked, (QStringList{QStringLiteral("wayland"), QStringLiteral("x11")}));
}

TEST_F(DesktopChoiceTest, TakesTheOneThatTheUserNamesAndNoOther) {
    EXPECT_EQ(kind("tray", "", machineWith(true, true, true)), DesktopKind::tray);
    EXPECT_EQ(asked, QStringList{QStringLiteral("tray")});
    EXPECT_EQ(kind("x11", "wayland", machineWith(true, true, true)), DesktopKind::x11);
    EXPECT_EQ(kind("wayland", "xcb", machineWith(false, true, true)), std::nullopt);
    EXPECT_EQ(kind("x11", "offscreen", machineWith(true, true, true)), DesktopKind::x11);
}

TEST_F(DesktopChoiceTest, KeepsAPlatformThatWasChosenOnPurpose) {
    EXPECT_EQ(kind("auto", "offscreen", machineWith(true, true, true)), DesktopKind::foreign);
    EXPECT_EQ(kind("auto", "vnc:size=800x600", machineWith(true, true, true)), DesktopKind::foreign);
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(kind("auto", "xcb", machineWith(true, true, true)), DesktopKind::x11);
}

TEST_F(DesktopChoiceTest, LooksForTheBestWhereASessionAsksAllProgramsForWayland) {
    EXPECT_EQ(kind("auto", "wayland", machineWith(false, true, true)), DesktopKind::x11);
    EXPECT_EQ(kind("auto", "wayland;xcb", machineWith(true, true, true)), DesktopKind::wayland);
}

TEST_F(DesktopChoiceTest, SaysWhatItLookedForInVain) {
    const DesktopFinding found = findDesktop(QStringLiteral("auto"), "", machineWith(false, false, false));
    EXPECT_EQ(found.kind, std::nullopt);
    EXPECT_EQ(found.error, QStringLiteral("Orvelle finds no desktop: no wayland; no x11; no tray."));
    EXPECT_EQ(findDesktop(QStringLiteral("tray"), "", machineWith(true, true, false)).error,
              QStringLiteral("Orvelle finds no desktop: no tray."));
}

} // namespace
} // namespace orvelle
