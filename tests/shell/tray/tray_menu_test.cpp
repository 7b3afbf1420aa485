#include "shell/tray/tray_menu.h"
#include "tray_double.h"

#include <QCoreApplication>

namespace orvelle {
namespace {

class TrayMenuTest : public ::testing::Test {
protected:
    TrayMenuTest() {
        menu.setEntries(entries);
        connection.emplace(itemObject, menuObject, TrayBus{.address = bus.address()});
        EXPECT_TRUE(tray.waitForIcons(1));
    }
    QDBusMessage call(const char* method, const QVariantList& arguments) {
        return tray.callMenu(tray.registered.value(0), QLatin1StringView(method), arguments);
    }
    static QVariant noData() { return QVariant::fromValue(QDBusVariant(0)); }

    int settingsCount = 0;
    int quitCount = 0;
    std::vector<MenuEntry> entries{{QStringLiteral("Settings..."), {}, [this] { ++settingsCount; }},
                                   {},
                                   {QStringLiteral("Quit"), {}, [this] { ++quitCount; }}};
    PrivateBus bus;
    TrayDouble tray{bus.address()};
    QObject itemObject;
    TrayMenuObject menuObject;
    TrayMenu& menu = *new TrayMenu(menuObject);
    std::optional<TrayConnection> connection;
};

TEST_F(TrayMenuTest, TellsItsLayout) {
    const QDBusMessage answer = call("GetLayout", {0, -1, QStringList()});
    ASSERT_EQ(answer.signature(), QStringLiteral("u(ia{sv}av)")) << qPrintable(answer.errorMessage());
    const auto root = qdbus_cast<MenuLayoutNode>(answer.arguments().at(1));
    ASSERT_EQ(root.children.size(), 3);
    const auto last = qdbus_cast<MenuLayoutNode>(root.children.at(2).variant());
    EXPECT_EQ(last.id, 3);
    EXPECT_EQ(last.properties.value(QStringLiteral("label")).toString(), QStringLiteral("Quit"));
}

TEST_F(TrayMenuTest, TellsThePropertiesOfItsEntries) {
    const QDBusMessage answer =
        call("GetGroupProperties", {QVariant::fromValue(QList<int>{3, 99}), QStringList()});
    ASSERT_EQ(answer.signature(), QStringLiteral("a(ia{sv})"));
    const auto items = qdbus_cast<QList<MenuItemProperties>>(answer.arguments().at(0));
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].id, 3);
    const QDBusMessage label = call("GetProperty", {3, QStringLiteral("label")});
    EXPECT_EQ(label.signature(), QStringLiteral("v"));
    EXPECT_EQ(label.arguments().at(0).value<QDBusVariant>().variant(), QVariant(QStringLiteral("Quit")));
}

TEST_F(TrayMenuTest, DoesWhatWasChosen) {
    EXPECT_EQ(call("Event", {3, QStringLiteral("clicked"), noData(), 0U}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(waitUntil([this] { return quitCount == 1; }));
    EXPECT_EQ(settingsCount, 0);
}

TEST_F(TrayMenuTest, DoesNothingWhenAnEntryIsOnlyPassed) {
    static_cast<void>(call("Event", {3, QStringLiteral("hovered"), noData(), 0U}));
    static_cast<void>(call("Event", {2, QStringLiteral("clicked"), noData(), 0U}));
    static_cast<void>(call("Event", {0, QStringLiteral("opened"), noData(), 0U}));
    QCoreApplication::processEvents();
    EXPECT_EQ(quitCount + settingsCount, 0);
}

TEST_F(TrayMenuTest, TakesSeveralEventsAtOnce) {
    const QList<MenuEvent> events{{1, QStringLiteral("clicked"), QDBusVariant(0), 0},
                                  {-5, QStringLiteral("clicked"), QDBusVariant(0), 0},
                                  {3, QStringLiteral("clicked"), QDBusVariant(0), 0}};
    const QDBusMessage answer = call("EventGroup", {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>{-5});
    EXPECT_TRUE(waitUntil([this] { return quitCount == 1 && settingsCount == 1; }));
}

TEST_F(TrayMenuTest, IsAlwaysReadyToBeShown) {
    EXPECT_EQ(call("AboutToShow", {0}).arguments(), QVariantList{false});
    const QDBusMessage answer = call("AboutToShowGroup", {QVariant::fromValue(QList<int>{0, 7})});
    EXPECT_EQ(answer.signature(), QStringLiteral("aiai"));
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(1)), QList<int>{7});
}

TEST_F(TrayMenuTest, AnswersForAnEntryThatItDoesNotHaveWithAnError) {
    for (const int id : {4, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(call("GetLayout", {id, -1, QStringList()}).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(call("GetProperty", {id, QStringLiteral("label")}).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(call("AboutToShow", {id}).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(call("Event", {id, QStringLiteral("clicked"), noData(), 0U}).type(),
                  QDBusMessage::ErrorMessage);
    }
    EXPECT_EQ(call("GetProperty", {1, QStringLiteral("toggle-state")}).type(), QDBusMessage::ErrorMessage);
}

TEST_F(TrayMenuTest, AnnouncesANewLayoutOnce) {
    const auto revision = [this] {
        return call("GetLayout", {0, 0, QStringList()}).arguments().at(0).toUInt();
    };
    const uint before = revision();
    menu.setEntries(entries); // they read the same
    EXPECT_EQ(revision(), before);
    EXPECT_EQ(tray.announced, QStringList());
    entries[0].title = QStringLiteral("Preferences");
    menu.setEntries(entries);
    EXPECT_GT(revision(), before);
    EXPECT_EQ(tray.announced, QStringList{QStringLiteral("LayoutUpdated")});
    EXPECT_EQ(tray.signalled.last().signature(), QStringLiteral("ui"));
}

} // namespace
} // namespace orvelle
