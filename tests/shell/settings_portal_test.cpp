#include "animation/animation_clock.h"
#include "shell/painted/settings_portal.h"
#include "support/environment.h"
#include "support/hanging_bus.h"
#include "support/private_bus.h"
#include "support/waiting.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString animationsKey = QStringLiteral("enable-animations");
const QString fontNameKey = QStringLiteral("font-name");

using Settings = QMap<QString, QVariantMap>;

TEST(PortalValues, SayNothingBeforeASettingTells) {
    EXPECT_FALSE(PortalValues().reducesMotion().has_value());
    EXPECT_EQ(PortalValues().fonts(), DesktopFontNames());
}

TEST(PortalValues, ReduceMotionWhereOneOfTheSettingsAsksForIt) {
    struct Case {
        const char* settings;
        const char* key;
        QVariant value;
        bool reduces;
    };
    const std::vector<Case> cases{
        {"org.gnome.desktop.interface", "enable-animations", false, true},
        {"org.gnome.desktop.interface", "enable-animations", true, false},
        {"org.freedesktop.appearance", "reduced-motion", 1U, true},
        {"org.freedesktop.appearance", "reduced-motion", 0U, false},
        {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", QStringLiteral("0"), true},
        {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", 0.0, true},
        {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", QStringLiteral("0.5"), false},
    };
    for (const Case& one : cases) {
        PortalValues values;
        values.take(QString::fromLatin1(one.settings), QString::fromLatin1(one.key), one.value);
        EXPECT_EQ(values.reducesMotion(), one.reduces) << one.key;
    }
}

TEST(PortalValues, ReduceMotionWhenOnlyOneOfTwoSettingsAsksForIt) {
    PortalValues values;
    values.take(gnome, animationsKey, false);
    values.take(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("reduced-motion"), 0U);
    EXPECT_EQ(values.reducesMotion(), true);
    values.take(gnome, animationsKey, true);
    EXPECT_EQ(values.reducesMotion(), false);
}

TEST(PortalValues, KeepWhatTheyHadAfterAValueOfAnotherType) {
    PortalValues values;
    values.take(gnome, animationsKey, false);
    values.take(gnome, fontNameKey, QStringLiteral("Cantarell 11"));
    for (const QVariant& odd : {QVariant(), QVariant(QStringList{QStringLiteral("x")}), QVariant(2.5)}) {
        values.take(gnome, animationsKey, odd);
        values.take(gnome, fontNameKey, odd);
    }
    values.take(QStringLiteral("org.kde.kdeglobals.KDE"), QStringLiteral("AnimationDurationFactor"),
                QStringLiteral("fast"));
    EXPECT_EQ(values.reducesMotion(), true);
    EXPECT_EQ(values.fonts().proportional, QStringLiteral("Cantarell 11"));
}

/// Answers as the portal of a desktop does, on a connection of its own.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(const QDBusConnection& bus)
        : m_bus(bus) {
        qDBusRegisterMetaType<Settings>();
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this);
    }
    void appear() { EXPECT_TRUE(m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"))); }
    void vanish() { m_bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop")); }
    void change(const QVariant& value, const QString& key = animationsKey) {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                         QStringLiteral("org.freedesktop.portal.Settings"),
                                                         QStringLiteral("SettingChanged"));
        signal.setArguments({gnome, key, QVariant::fromValue(QDBusVariant(value))});
        m_bus.send(signal);
    }
    void sendBareSignal() {
        m_bus.send(QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                              QStringLiteral("org.freedesktop.portal.Settings"),
                                              QStringLiteral("SettingChanged")));
    }

    Settings settings;
    QVariant oddAnswer; ///< in place of the settings
    bool isRefusing = false;
    bool isSilent = false;
    int questionCount = 0;

private:
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QLatin1String("ReadAll"))
            return false;
        ++questionCount;
        if (isRefusing)
            connection.send(message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("no")));
        else if (!isSilent)
            connection.send(
                message.createReply(oddAnswer.isValid() ? oddAnswer : QVariant::fromValue(settings)));
        return true;
    }
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    QDBusConnection m_bus;
};

class SettingsPortalTest : public ::testing::Test {
protected:
    void follow() { follower = followPortalMotion(clock, bus.connect()); }
    [[nodiscard]] bool becomesReduced(bool isReduced) {
        return waitUntil([&] { return clock.isReduced() == isReduced; });
    }

    PrivateBus bus;
    FakePortal portal{bus.connect()};
    AnimationClock clock;
    std::unique_ptr<QObject> follower;
};

TEST_F(SettingsPortalTest, FollowsReducedMotionNowAndAfterEveryChange) {
    portal.settings = {{gnome, {{animationsKey, false}}}};
    portal.appear();
    follow();
    EXPECT_TRUE(becomesReduced(true));
    portal.change(true);
    EXPECT_TRUE(becomesReduced(false));
    portal.change(false);
    EXPECT_TRUE(becomesReduced(true));
}

TEST_F(SettingsPortalTest, AsksAPortalThatStartsLater) {
    follow();
    QTest::qWait(50);
    EXPECT_FALSE(clock.isReduced());
    portal.settings = {{gnome, {{animationsKey, false}}}};
    portal.appear();
    EXPECT_TRUE(becomesReduced(true));
    portal.vanish();
    QTest::qWait(50);
    EXPECT_TRUE(clock.isReduced());
    portal.settings = {{gnome, {{animationsKey, true}}}};
    portal.appear();
    EXPECT_TRUE(becomesReduced(false));
}

TEST_F(SettingsPortalTest, KeepsItsValueAfterAnErrorAndAfterOddMessages) {
    portal.settings = {{gnome, {{animationsKey, false}}}};
    portal.appear();
    follow();
    EXPECT_TRUE(becomesReduced(true));
    const auto askAgain = [this] {
        const int before = portal.questionCount;
        portal.vanish();
        portal.appear();
        EXPECT_TRUE(waitUntil([&] { return portal.questionCount > before; }));
        QTest::qWait(50);
    };
    portal.isRefusing = true;
    askAgain();
    portal.isRefusing = false;
    for (const QVariant& odd :
         {QVariant(QStringLiteral("text")), QVariant(QVariantMap{{animationsKey, true}})}) {
        portal.oddAnswer = odd;
        askAgain();
    }
    portal.sendBareSignal();
    portal.change(QStringLiteral("yes"));
    QTest::qWait(50);
    EXPECT_TRUE(clock.isReduced());
}

TEST_F(SettingsPortalTest, StartsWithoutWaitingForTheAnswer) {
    portal.isSilent = true;
    portal.appear();
    follow();
    EXPECT_TRUE(waitUntil([this] { return portal.questionCount == 1; }));
    portal.change(false);
    EXPECT_TRUE(becomesReduced(true));
}

TEST(SettingsPortalStart, DoesNotWaitForABusThatDoesNotAnswer) {
    AnimationClock clock;
    const HangingBus bus;
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", bus.address());
    QElapsedTimer time;
    time.start();
    const auto follower = followPortalMotion(clock);
    QTest::qWait(50);
    EXPECT_LT(time.elapsed(), 5000);
}

TEST_F(SettingsPortalTest, SurvivesTheEndOfTheBus) {
    portal.settings = {{gnome, {{animationsKey, false}}}};
    portal.appear();
    follow();
    EXPECT_TRUE(becomesReduced(true));
    bus.end();
    QTest::qWait(50);
    EXPECT_TRUE(clock.isReduced());
}

TEST_F(SettingsPortalTest, SurvivesWithoutABus) {
    follower = followPortalMotion(clock, QDBusConnection(QStringLiteral("there is none")));
    QTest::qWait(20);
    EXPECT_FALSE(clock.isReduced());
}

TEST_F(SettingsPortalTest, TellsTheFonts) {
    portal.settings = {{gnome, {{fontNameKey, QStringLiteral("Cantarell 11")}}}};
    portal.appear();
    const SettingsPortal settings(bus.connect());
    EXPECT_TRUE(
        waitUntil([&] { return settings.values().fonts().proportional == QLatin1String("Cantarell 11"); }));
    portal.change(QStringLiteral("Hack 10"), QStringLiteral("monospace-font-name"));
    EXPECT_TRUE(waitUntil([&] { return settings.values().fonts().monospaced == QLatin1String("Hack 10"); }));
}

TEST_F(SettingsPortalTest, GivesTheFontsToTheProgram) {
    portal.settings = {{gnome, {{fontNameKey, QStringLiteral("DejaVu Serif 11")}}}};
    portal.appear();
    follower = followPortalFonts(bus.connect());
    EXPECT_TRUE(waitUntil([] { return systemFont(11).family() == QLatin1String("DejaVu Serif"); }));
    setDesktopFontNames({});
}

} // namespace
} // namespace orvelle
