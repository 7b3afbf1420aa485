#include "shell/tray/tray_icon.h"
#include "shell/tray/tray_presence.h"
#include "support/hanging_bus.h"
#include "support/manual_clock.h"
#include "tray_double.h"

#include <QElapsedTimer>

namespace orvelle {
namespace {

class TrayBusFaultsTest : public ::testing::Test {
protected:
    void makeIcon(const QString& address) {
        TrayBus found{.address = address, .retryInterval = std::chrono::milliseconds(20)};
        found.trayMissing = [this](const QString& reason) { missing.append(reason); };
        icon.emplace(
            QStringLiteral("orvelle"), [] { return TrayContent(); },
            TrayActions{[this](const QPoint&) { ++opened; }, [](const QPoint&) {}}, found, time.clock);
    }

    PrivateBus bus;
    ManualClock time;
    QStringList missing;
    int opened = 0;
    std::optional<TrayIcon> icon;
};

TEST_F(TrayBusFaultsTest, WaitsForATrayThatComesLater) {
    makeIcon(bus.address());
    EXPECT_TRUE(waitUntil([this] { return missing.size() == 1; }));
    TrayDouble tray(bus.address());
    EXPECT_TRUE(tray.waitForIcons(1));
    EXPECT_EQ(tray.registered[0], icon->serviceName());
}

TEST_F(TrayBusFaultsTest, RegistersAgainWhenTheTrayComesBack) {
    auto tray = std::make_unique<TrayDouble>(bus.address());
    makeIcon(bus.address());
    ASSERT_TRUE(tray->waitForIcons(1));
    tray.reset();
    tray = std::make_unique<TrayDouble>(bus.address());
    EXPECT_TRUE(tray->waitForIcons(1));
    EXPECT_EQ(tray->registered, QStringList{icon->serviceName()});
}

TEST_F(TrayBusFaultsTest, TellsWhyItWasNotTaken) {
    TrayDouble tray(bus.address());
    tray.answersWithError = true;
    makeIcon(bus.address());
    ASSERT_TRUE(waitUntil([this] { return !missing.isEmpty(); }));
    EXPECT_TRUE(missing[0].contains(QStringLiteral("no room"))) << qPrintable(missing[0]);
    EXPECT_EQ(tray.registered.size(), 1) << "it does not ask again and again";
}

TEST_F(TrayBusFaultsTest, LooksForABusThatIsNotThereNowAndThen) {
    bus.end();
    makeIcon(bus.address());
    EXPECT_TRUE(waitUntil([this] { return missing.size() >= 3; }));
    bus.start();
    TrayDouble tray(bus.address());
    EXPECT_TRUE(tray.waitForIcons(1));
}

TEST_F(TrayBusFaultsTest, MovesToTheBusThatReplacesADeadOne) {
    {
        TrayDouble tray(bus.address());
        makeIcon(bus.address());
        ASSERT_TRUE(tray.waitForIcons(1));
        bus.end();
        ASSERT_TRUE(waitUntil([this] { return !missing.isEmpty(); }));
    }
    icon->update(); // without a bus
    time.pass(3);
    bus.start();
    TrayDouble tray(bus.address());
    ASSERT_TRUE(tray.waitForIcons(1));
    EXPECT_EQ(tray.callItem(tray.registered[0], QStringLiteral("Activate"), {1, 1}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(opened, 1);
}

TEST_F(TrayBusFaultsTest, SurvivesAnAddressThatMeansNothing) {
    for (const char* address : {"nonsense", "unix:path=/nowhere/at/all", "tcp:host=,port=0", ";;;"}) {
        missing.clear();
        makeIcon(QString::fromLatin1(address));
        EXPECT_TRUE(waitUntil([this] { return !missing.isEmpty(); })) << address;
    }
}

TEST_F(TrayBusFaultsTest, DoesNotWaitForABusThatDoesNotAnswer) {
    const HangingBus hanging;
    QElapsedTimer sinceStart;
    sinceStart.start();
    const QString address = QString::fromUtf8(hanging.address());
    makeIcon(address);
    QTest::qWait(50);
    icon->update();
    makeIcon(address); // in place of the first one
    icon.reset();
    EXPECT_TRUE(trayAbsence(address, std::chrono::milliseconds(50)));
    EXPECT_LT(sinceStart.elapsed(), 5000);
}

TEST_F(TrayBusFaultsTest, LeavesTheBusWithItsIcon) {
    TrayDouble tray(bus.address());
    makeIcon(bus.address());
    ASSERT_TRUE(tray.waitForIcons(1));
    icon.reset();
    EXPECT_TRUE(waitUntil([&tray] {
        return tray.callItem(tray.registered[0], QStringLiteral("Activate"), {1, 1}).type() ==
               QDBusMessage::ErrorMessage;
    }));
}

TEST_F(TrayBusFaultsTest, FindsATrayBeforeThereIsAnIcon) {
    EXPECT_TRUE(trayAbsence(bus.address(), patience));
    TrayDouble tray(bus.address());
    EXPECT_FALSE(trayAbsence(bus.address(), patience));
    bus.end();
    EXPECT_TRUE(trayAbsence(bus.address(), patience));
}

} // namespace
} // namespace orvelle
