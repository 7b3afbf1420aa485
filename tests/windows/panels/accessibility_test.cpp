#include "support/quick_timers.h"
#include "windows/panels/panel_fixture.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QClipboard>
#include <QGuiApplication>

namespace orvelle {
namespace {

class PanelAccessibility : public PanelFixture {
protected:
    PanelAccessibility() {
        QAccessible::setActive(true);
        machine.processor->ticks = std::vector<CoreTicks>(4);
        machine.processor->bootTime = FakeClock::replayStartSeconds - 90061;
        machine.process->totalMemory = 1 << 30;
        machine.process->processes = {{.pid = 1, .name = "first", .residentBytes = 1 << 20}};
        machine.memory->reading =
            MemoryReading{.pageSize = 4096, .physicalMemory = 4096000, .freePages = 700, .wiredPages = 300};
        machine.network->entries = {{.name = "en0",
                                     .isUp = true,
                                     .ipv4Address = "192.168.1.20",
                                     .ipv6Address = "2001:db8::20",
                                     .bytesIn = 1}};
        machine.disk->volumes = {
            {.path = "/", .name = "Root", .isLocal = true, .totalBytes = 1000, .freeBytes = 300}};
        machine.battery->powerSources = {{PowerSourceDescription{.currentCapacity = 64, .timeToEmpty = 125}}};
        machine.battery->smartBattery = SmartBatteryProperties{.cycleCount = 312, .designCapacity = 5000};
        machine.sensor->cpuTemperature = 58;
        machine.sensor->sensors = {{.key = "a", .name = "Board", .value = 50}};
        machine.sensor->fanSpeeds = {0};
        sample(2);
    }

    /// An item as assistive programs see it.
    struct AccessibleItem {
        QAccessible::Role role;
        QString name;
        QString value;
    };

    [[nodiscard]] QList<AccessibleItem> accessibleItems() const {
        QList<AccessibleItem> items;
        collect(QAccessible::queryAccessibleInterface(panel.get()), items);
        return items;
    }
    [[nodiscard]] QStringList namesOf(QAccessible::Role role) const {
        QStringList names;
        for (const AccessibleItem& each : accessibleItems()) {
            if (each.role == role)
                names.append(each.name);
        }
        return names;
    }
    [[nodiscard]] bool hasItem(QAccessible::Role role, const char16_t* name) const {
        return namesOf(role).contains(QString::fromUtf16(name));
    }
    [[nodiscard]] static QAccessibleInterface* find(QAccessibleInterface* root, QAccessible::Role role) {
        if (root == nullptr || root->role() == role)
            return root;
        for (int index = 0; index < root->childCount(); ++index) {
            if (QAccessibleInterface* found = find(root->child(index), role))
                return found;
        }
        return nullptr;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(panel.get(), key, modifiers);
    }
    [[nodiscard]] QString focusedText() const {
        const QQuickItem* focused = panel->activeFocusItem();
        return focused != nullptr ? focused->property("text").toString() : QString();
    }

private:
    static void collect(QAccessibleInterface* item, QList<AccessibleItem>& items) {
        if (item == nullptr || item->state().invisible)
            return;
        items.append({item->role(), item->text(QAccessible::Name), item->text(QAccessible::Value)});
        for (int index = 0; index < item->childCount(); ++index)
            collect(item->child(index), items);
    }
};

TEST_F(PanelAccessibility, NamesEverythingThatIsShown) {
    for (const char16_t* key : {u"cpu", u"memory", u"network", u"disk", u"battery", u"sensor"}) {
        ASSERT_NE(show(key), nullptr);
        const QList<AccessibleItem> items = accessibleItems();
        EXPECT_GT(items.size(), 10);
        QStringList names;
        for (const AccessibleItem& each : items.mid(1)) { // the first is the window
            EXPECT_NE(each.role, QAccessible::NoRole);
            EXPECT_FALSE(each.name.isEmpty())
                << QString::fromUtf16(key).toStdString() << ", role " << each.role;
            names << each.name << each.value;
        }
        for (const QString& text : shownTexts())
            EXPECT_FALSE(names.filter(text, Qt::CaseInsensitive).isEmpty())
                << "without a name: " << text.toStdString();
    }
}

TEST_F(PanelAccessibility, NamesEachValueByItsLabel) {
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_TRUE(hasItem(QAccessible::StaticText, u"Uptime 1d 1h 1m"));
    EXPECT_TRUE(hasItem(QAccessible::StaticText, u"Total usage 0.0%"));
    ASSERT_NE(show(u"battery"), nullptr);
    EXPECT_TRUE(hasItem(QAccessible::StaticText, u"Cycle Count 312"));
    EXPECT_TRUE(hasItem(QAccessible::StaticText, u"Charge 64%"));
    EXPECT_FALSE(namesOf(QAccessible::StaticText).filter(QStringLiteral("Battery health ")).isEmpty());
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_TRUE(hasItem(QAccessible::StaticText, u"Total Downloaded 1 B"));
    ASSERT_NE(show(u"disk"), nullptr);
    EXPECT_TRUE(hasItem(QAccessible::ListItem, u"Root 70%"));
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_TRUE(hasItem(QAccessible::ListItem, u"Board 50°C"));
    EXPECT_TRUE(hasItem(QAccessible::ListItem, u"Fan 0 0 RPM"));
    EXPECT_TRUE(hasItem(QAccessible::Chart, u"CPU 58°C"));
    EXPECT_TRUE(hasItem(QAccessible::Chart, u"GPU: no temperature")) << "its dial shows none";
}

TEST_F(PanelAccessibility, MarksSectionTitlesAsHeadings) {
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_EQ(namesOf(QAccessible::Heading),
              (QStringList{QStringLiteral("Sensors"), QStringLiteral("TEMPERATURE HISTORY"),
                           QStringLiteral("ALL SENSORS"), QStringLiteral("FAN SPEEDS")}));
}

TEST_F(PanelAccessibility, PressesTheSettingsButton) {
    ASSERT_NE(show(u"cpu"), nullptr);
    QAccessibleInterface* button =
        find(QAccessible::queryAccessibleInterface(panel.get()), QAccessible::Button);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Open Orvelle Settings"));
    EXPECT_TRUE(button->state().focusable);
    ASSERT_NE(button->actionInterface(), nullptr);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(settingsOpened, 1);
}

TEST_F(PanelAccessibility, MovesTheFocusThroughTheAddressesToTheButtonByTab) {
    ASSERT_NE(show(u"network"), nullptr);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedText(), QStringLiteral("192.168.1.20"));
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedText(), QStringLiteral("2001:db8::20"));
    press(Qt::Key_Tab);
    EXPECT_EQ(panel->activeFocusItem(), item("settingsButton"));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedText(), QStringLiteral("2001:db8::20"));
}

TEST_F(PanelAccessibility, ShowsWhichAddressHasTheFocus) {
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_FALSE(item("focusRingIPv4")->isVisible());
    press(Qt::Key_Tab);
    EXPECT_TRUE(item("focusRingIPv4")->isVisible());
    press(Qt::Key_Tab);
    EXPECT_FALSE(item("focusRingIPv4")->isVisible());
    EXPECT_TRUE(item("focusRingIPv6")->isVisible());
}

TEST_F(PanelAccessibility, CopiesAnAddressThatIsSelectedByTheKeyboardOrTheMouse) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    ASSERT_NE(show(u"network"), nullptr);
    press(Qt::Key_Tab);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard->text(), QStringLiteral("192.168.1.20"));
    press(Qt::Key_X);
    EXPECT_EQ(focusedText(), QStringLiteral("192.168.1.20")) << "it can be read, not written";

    press(Qt::Key_Tab);
    const QQuickItem* address = panel->activeFocusItem();
    const QRectF place = address->mapRectToScene(address->boundingRect());
    QTest::mousePress(panel.get(), Qt::LeftButton, {}, (place.topLeft() + QPointF(1, 5)).toPoint());
    QTest::mouseMove(panel.get(), place.center().toPoint());
    QTest::mouseMove(panel.get(), (place.bottomRight() - QPointF(1, 5)).toPoint());
    QTest::mouseRelease(panel.get(), Qt::LeftButton, {}, (place.bottomRight() - QPointF(1, 5)).toPoint());
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard->text(), QStringLiteral("2001:db8::20"));
}

TEST_F(PanelAccessibility, ScrollsByTheKeyboardWhateverHasTheFocus) {
    for (int index = 1; index < 40; ++index)
        machine.network->entries->push_back(
            {.name = "en" + std::to_string(index), .isUp = true, .bytesIn = 1});
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    const QQuickItem* scroller = item("scroller");
    const auto position = [scroller] { return scroller->property("contentY").toDouble(); };
    press(Qt::Key_PageDown);
    const double page = position();
    EXPECT_GT(page, 100);
    press(Qt::Key_Up);
    EXPECT_LT(position(), page);
    press(Qt::Key_Home);
    EXPECT_EQ(position(), 0);
    item("settingsButton")->forceActiveFocus();
    press(Qt::Key_End);
    EXPECT_GT(position(), page);
    press(Qt::Key_Tab);
    EXPECT_LT(position(), page) << "what has the focus is brought into view";
}

TEST_F(PanelAccessibility, ShowsTheTooltipOfAButtonUnderThePointerOrWithTheFocus) {
    ASSERT_NE(show(u"cpu"), nullptr);
    QQuickItem* button = item("settingsButton");
    QQuickItem* tooltip = item("tooltip");
    tooltip->setProperty("restingMilliseconds", 1);
    EXPECT_FALSE(tooltip->isVisible());
    QTest::mouseMove(panel.get(), button->mapToScene({13, 13}).toPoint());
    EXPECT_TRUE(waitUntil([&] { return tooltip->isVisible(); }));
    const QRectF place = tooltip->mapRectToScene(tooltip->boundingRect());
    EXPECT_TRUE(QRectF(0, 0, 320, 500).contains(place));
    QTest::mouseMove(panel.get(), {5, 5});
    EXPECT_FALSE(tooltip->isVisible());
    button->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(waitUntil([&] { return tooltip->isVisible(); }));
}

TEST_F(PanelAccessibility, GivesTheSystemNameOfAnInterfaceInADescriptionAndATooltip) {
    machine.network->entries = {
        {.name = "wlp3s0", .isUp = true, .ipv4Address = "192.0.2.2", .kind = InterfaceKind::wifi}};
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    const QQuickItem* loader = item("nameTooltip");
    ASSERT_NE(loader, nullptr);
    QQuickItem* row = loader->parentItem()->parentItem();
    const auto description = [row] {
        return QAccessible::queryAccessibleInterface(row)->text(QAccessible::Description);
    };
    const auto tooltip = [loader] { return loader->property("item").value<QQuickItem*>(); };
    EXPECT_TRUE(shows(u"Wi-Fi"));
    EXPECT_EQ(description(), QStringLiteral("wlp3s0"));
    EXPECT_EQ(tooltip(), nullptr);

    QTest::mouseMove(panel.get(), row->mapToScene({40, row->height() / 2}).toPoint());
    EXPECT_TRUE(waitUntil([&] { return tooltip() != nullptr && tooltip()->isVisible(); }));
    EXPECT_TRUE(shows(u"wlp3s0"));
    EXPECT_TRUE(QRectF(0, 0, 320, 500).contains(tooltip()->mapRectToScene(tooltip()->boundingRect())));

    machine.network->entries->front().kind = InterfaceKind::unknown;
    sample();
    settle();
    EXPECT_EQ(shownTexts().count(QStringLiteral("wlp3s0")), 1);
    EXPECT_EQ(description(), QString()) << "the row says that name already";
    EXPECT_EQ(tooltip(), nullptr);
}

TEST_F(PanelAccessibility, HidesATooltipAfterTheTimeToReadIt) {
    ASSERT_NE(show(u"cpu"), nullptr);
    QQuickItem* tooltip = item("tooltip");
    int appearances = 0;
    QObject::connect(tooltip, &QQuickItem::visibleChanged, tooltip,
                     [&] { appearances += tooltip->isVisible() ? 1 : 0; });
    tooltip->setProperty("restingMilliseconds", 1);
    tooltip->setProperty("readingMilliseconds", 1);
    item("settingsButton")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(waitUntil([&] { return appearances == 1 && !tooltip->isVisible(); }));
    EXPECT_FALSE(hasRunningTimer(*tooltip)) << "it does not come back by itself";
}

TEST_F(PanelAccessibility, OpensAgainAtTheTopWithNothingFocused) {
    for (int index = 1; index < 40; ++index)
        machine.network->entries->push_back(
            {.name = "en" + std::to_string(index), .isUp = true, .bytesIn = 1});
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    const QQuickItem* scroller = item("scroller");
    QQuickItem* tooltip = item("tooltip");
    tooltip->setProperty("restingMilliseconds", 1);
    const auto openAgain = [this] {
        panel->hide();
        panel->show();
        panel->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(panel.get()));
    };
    item("settingsButton")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_GT(scroller->property("contentY").toDouble(), 100);
    EXPECT_TRUE(waitUntil([&] { return tooltip->isVisible(); }));
    openAgain();
    EXPECT_EQ(scroller->property("contentY").toDouble(), 0);
    EXPECT_FALSE(tooltip->isVisible());
    EXPECT_EQ(panel->activeFocusItem(), scroller);
    EXPECT_FALSE(hasRunningTimer(*tooltip)) << "nor will it be";

    press(Qt::Key_Tab);
    press(Qt::Key_A, Qt::ControlModifier);
    const QQuickItem* address = panel->activeFocusItem();
    EXPECT_EQ(focusedText(), QStringLiteral("192.168.1.20"));
    openAgain();
    EXPECT_EQ(address->property("selectedText").toString(), QString());
    EXPECT_FALSE(item("focusRingIPv4")->isVisible());
}

} // namespace
} // namespace orvelle
