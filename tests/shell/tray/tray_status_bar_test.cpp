#include "settings/settings_store.h"
#include "shell/tray/plain_popup.h"
#include "shell/tray/tray_status_bar.h"
#include "support/manual_clock.h"
#include "support/temporary_settings.h"
#include "tray_double.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QTest>

#include <algorithm>
#include <map>

namespace orvelle {
namespace {

std::unique_ptr<Popup> takingPopup(QWindow& window) {
    return std::make_unique<PlainPopup>(window, PopupKeyboard::takes);
}

std::unique_ptr<Popup> leavingPopup(QWindow& window) {
    return std::make_unique<PlainPopup>(window, PopupKeyboard::leaves);
}

/// The visible window with this title.
QWindow* shownWindow(const QString& title) {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto found = std::ranges::find_if(
        windows, [&title](const QWindow* window) { return window->isVisible() && window->title() == title; });
    return found == windows.end() ? nullptr : *found;
}

/// A status bar with two items whose clicks open panels, as the program's delegate does it.
class TrayStatusBarTest : public ::testing::Test {
protected:
    TrayStatusBarTest() {
        settings.setCompactMode(true);
        addItem(QStringLiteral("cpu"), QStringLiteral("CPU"), Qt::red);
        addItem(QStringLiteral("memory"), QStringLiteral("Memory"), Qt::green);
        bar.setMenu({{QStringLiteral("Quit"), {}, [this] { ++quitCount; }}});
    }
    ~TrayStatusBarTest() override { panels.clear(); }

    void addItem(const QString& identifier, const QString& name, const QColor& color) {
        StatusItem& item = bar.addItem(identifier, 60);
        item.setWords(name, name + QStringLiteral(" 12% & more"));
        item.setIcon({[color](QPainter& painter, const QRectF& square) { painter.fillRect(square, color); },
                      name.left(2), name});
        item.setClickHandler([this, identifier](ClickButton button) { click(identifier, button); });
        items[identifier] = &item;
        panels[identifier] = bar.makePopover([identifier](double) {
            auto content = std::make_unique<QRasterWindow>();
            content->setTitle(identifier);
            content->resize(320, 500);
            return content;
        });
    }
    void removeItem(const QString& identifier) {
        panels.erase(identifier);
        bar.removeItem(*items[identifier]);
        items.erase(identifier);
    }
    void click(const QString& identifier, ClickButton button) {
        if (button == ClickButton::right) {
            ++menuCount;
            return;
        }
        for (const auto& [key, panel] : panels) {
            if (key != identifier && panel->isShown())
                panel->close();
        }
        if (panels[identifier]->isShown())
            panels[identifier]->close();
        else
            panels[identifier]->show(*items[identifier]);
    }
    /// The tab under which there is a plate.
    [[nodiscard]] static QString selectedTab() {
        const QWindow* window = shownWindow(QStringLiteral("Orvelle tabs"));
        QAccessibleInterface* strip = QAccessible::queryAccessibleInterface(const_cast<QWindow*>(window));
        QStringList selected;
        for (int index = 0; strip != nullptr && index < strip->childCount(); ++index) {
            if (strip->child(index)->state().pressed)
                selected.append(strip->child(index)->text(QAccessible::Name));
        }
        return selected.join(QLatin1Char(' '));
    }
    /// Activates an icon, and handles what follows.
    void activate(qsizetype icon, int x = 10, int y = 10) {
        EXPECT_EQ(tray.callItem(tray.registered.at(icon), QStringLiteral("Activate"), {x, y}).type(),
                  QDBusMessage::ReplyMessage);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QString shownPanels() const {
        QStringList shown;
        for (const auto& [key, panel] : panels) {
            if (panel->isShown() && shownWindow(key) != nullptr)
                shown.append(key);
        }
        return shown.join(QLatin1Char(' '));
    }
    [[nodiscard]] static bool hasTabs() { return shownWindow(QStringLiteral("Orvelle tabs")) != nullptr; }
    [[nodiscard]] QStringList menuTitles(qsizetype icon) {
        const QDBusMessage answer =
            tray.callMenu(tray.registered.at(icon), QStringLiteral("GetLayout"), {0, -1, QStringList()});
        QStringList titles;
        for (const QDBusVariant& child : qdbus_cast<MenuLayoutNode>(answer.arguments().at(1)).children)
            titles.append(qdbus_cast<MenuLayoutNode>(child.variant())
                              .properties.value(QStringLiteral("label"))
                              .toString());
        return titles;
    }
    void choose(qsizetype icon, int entry) {
        static_cast<void>(
            tray.callMenu(tray.registered.at(icon), QStringLiteral("Event"),
                          {entry, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(0)), 0U}));
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    PrivateBus bus;
    ManualClock time;
    TemporarySettings file;
    SettingsStore settings{file.path()};
    TrayDouble tray{bus.address()};
    TrayStatusBar bar{settings, {takingPopup, leavingPopup}, {.address = bus.address()}, time.clock};
    std::map<QString, StatusItem*> items;
    std::map<QString, std::unique_ptr<Popover>> panels;
    int quitCount = 0;
    int menuCount = 0;
};

TEST_F(TrayStatusBarTest, ShowsOneIconForAllItemsInCompactMode) {
    ASSERT_TRUE(tray.waitForIcons(1));
    const QVariantMap properties = tray.properties(tray.registered[0]);
    EXPECT_EQ(properties.value(QStringLiteral("Id")).toString(), QStringLiteral("orvelle"));
    EXPECT_EQ(properties.value(QStringLiteral("Title")).toString(), QStringLiteral("Orvelle"));
    EXPECT_EQ(properties.value(QStringLiteral("XAyatanaLabel")).toString(), QStringLiteral("CP"));
    EXPECT_EQ(properties.value(QStringLiteral("XAyatanaLabelGuide")).toString(), QStringLiteral("CPU"));
    const auto pictures = qdbus_cast<TrayPictures>(properties.value(QStringLiteral("IconPixmap")));
    EXPECT_EQ(pictures.at(0).bytes.first(4), QByteArray::fromHex("ffff0000")) << "the first item's";
    EXPECT_EQ(tray.toolTipText(tray.registered[0]),
              QStringLiteral("CPU 12% &amp; more\nMemory 12% &amp; more"));
    EXPECT_EQ(tray.registered.size(), 1);
}

TEST_F(TrayStatusBarTest, ShowsAnIconForEachItemOtherwise) {
    settings.setCompactMode(false);
    ASSERT_TRUE(tray.waitForIcons(2));
    const QVariantMap properties = tray.properties(tray.registered[1]);
    EXPECT_EQ(properties.value(QStringLiteral("Id")).toString(), QStringLiteral("orvelle-memory"));
    EXPECT_EQ(properties.value(QStringLiteral("Title")).toString(), QStringLiteral("Memory"));
    EXPECT_EQ(tray.toolTipText(tray.registered[1]), QStringLiteral("Memory 12% &amp; more"));
    EXPECT_EQ(menuTitles(1), (QStringList{QStringLiteral("Memory"), {}, QStringLiteral("Quit")}));
}

TEST_F(TrayStatusBarTest, FollowsTheSettingAtOnce) {
    ASSERT_TRUE(tray.waitForIcons(1));
    settings.setCompactMode(false);
    ASSERT_TRUE(tray.waitForIcons(3));
    settings.setCompactMode(true);
    ASSERT_TRUE(tray.waitForIcons(4));
    EXPECT_EQ(tray.callItem(tray.registered[0], QStringLiteral("Activate"), {0, 0}).type(),
              QDBusMessage::ErrorMessage)
        << "the icon of before is gone";
    EXPECT_EQ(menuTitles(3),
              (QStringList{QStringLiteral("CPU"), QStringLiteral("Memory"), {}, QStringLiteral("Quit")}));
}

TEST_F(TrayStatusBarTest, KeepsItsIconWhileTheItemsAreMadeAgain) {
    ASSERT_TRUE(tray.waitForIcons(1));
    removeItem(QStringLiteral("cpu"));
    removeItem(QStringLiteral("memory"));
    addItem(QStringLiteral("memory"), QStringLiteral("Memory"), Qt::green);
    QCoreApplication::processEvents();
    time.pass(2);
    QCoreApplication::processEvents();
    const auto pictures =
        qdbus_cast<TrayPictures>(tray.properties(tray.registered[0]).value(QStringLiteral("IconPixmap")));
    EXPECT_EQ(pictures.at(0).bytes.first(4), QByteArray::fromHex("ff00ff00"))
        << "that of the item that is first now";
    EXPECT_EQ(tray.registered.size(), 1);
}

TEST_F(TrayStatusBarTest, HasNoIconWithoutItems) {
    ASSERT_TRUE(tray.waitForIcons(1));
    removeItem(QStringLiteral("cpu"));
    removeItem(QStringLiteral("memory"));
    EXPECT_TRUE(waitUntil([this] {
        return tray.callItem(tray.registered[0], QStringLiteral("Activate"), {0, 0}).type() ==
               QDBusMessage::ErrorMessage;
    }));
}

TEST_F(TrayStatusBarTest, OpensAndClosesAPanelBelowTabs) {
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int right = screen.left() + screen.width() - 4;
    EXPECT_EQ(shownWindow(QStringLiteral("cpu"))->geometry(),
              QRect(right - 320, screen.top() + 30, 320, 500));
    ASSERT_TRUE(hasTabs());
    EXPECT_EQ(shownWindow(QStringLiteral("Orvelle tabs"))->geometry(),
              QRect(right - 136, screen.top() + 4, 136, 22));
    activate(0);
    EXPECT_EQ(shownPanels(), QString());
    EXPECT_FALSE(hasTabs());
}

TEST_F(TrayStatusBarTest, ChangesThePanelByATab) {
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    QTest::mouseClick(shownWindow(QStringLiteral("Orvelle tabs")), Qt::LeftButton, {}, {100, 11});
    QCoreApplication::processEvents();
    EXPECT_EQ(shownPanels(), QStringLiteral("memory"));
    EXPECT_TRUE(hasTabs());
    EXPECT_EQ(selectedTab(), QStringLiteral("Memory"));
    activate(0);
    EXPECT_EQ(shownPanels(), QString());
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("memory")) << "the one that was open last";
}

TEST_F(TrayStatusBarTest, HasNoTabsWhereThereIsNoChoice) {
    removeItem(QStringLiteral("memory"));
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
    EXPECT_FALSE(hasTabs());
}

TEST_F(TrayStatusBarTest, ChangesThePanelByKeys) {
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(shownWindow(shownPanels()), key, modifiers);
        QCoreApplication::processEvents();
        return shownPanels();
    };
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), QStringLiteral("memory"));
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), QStringLiteral("cpu")) << "round the end";
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), QStringLiteral("memory"));
    EXPECT_EQ(press(Qt::Key_Tab, Qt::NoModifier), QStringLiteral("memory"));
    EXPECT_EQ(press(Qt::Key_Escape, Qt::NoModifier), QString());
    EXPECT_FALSE(hasTabs());
}

TEST_F(TrayStatusBarTest, OpensThePanelOfAnIconAloneWithoutCompactMode) {
    settings.setCompactMode(false);
    ASSERT_TRUE(tray.waitForIcons(2));
    activate(1);
    EXPECT_EQ(shownPanels(), QStringLiteral("memory"));
    EXPECT_FALSE(hasTabs());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(shownWindow(QStringLiteral("memory"))->y(), screen.top() + 4);
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
    activate(0);
    EXPECT_EQ(shownPanels(), QString());
}

TEST_F(TrayStatusBarTest, DoesNotReopenAPanelThatThePressOnTheIconHasClosed) {
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    shownWindow(QStringLiteral("cpu"))->hide(); // as by a press elsewhere
    time.pass(0.3);
    activate(0);
    EXPECT_EQ(shownPanels(), QString());
    time.pass(0.3);
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu")) << "that was another click";
}

TEST_F(TrayStatusBarTest, OpensAnotherIconsPanelAtOnceAfterAPressHasClosedOne) {
    settings.setCompactMode(false);
    ASSERT_TRUE(tray.waitForIcons(2));
    activate(0);
    shownWindow(QStringLiteral("cpu"))->hide();
    activate(1);
    EXPECT_EQ(shownPanels(), QStringLiteral("memory"));
}

TEST_F(TrayStatusBarTest, OpensAgainAtOnceAfterEscape) {
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    QTest::keyClick(shownWindow(QStringLiteral("cpu")), Qt::Key_Escape);
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
}

TEST_F(TrayStatusBarTest, OpensPanelsFromItsMenu) {
    ASSERT_TRUE(tray.waitForIcons(1));
    choose(0, 2);
    EXPECT_EQ(shownPanels(), QStringLiteral("memory"));
    choose(0, 2);
    EXPECT_EQ(shownPanels(), QStringLiteral("memory")) << "it is open already";
    choose(0, 4);
    EXPECT_EQ(quitCount, 1);
}

TEST_F(TrayStatusBarTest, OpensThePanelThatWasOpenLastWithTheKeyboard) {
    ASSERT_TRUE(tray.waitForIcons(1));
    bar.takeKeyboard();
    QCoreApplication::processEvents();
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
    bar.takeKeyboard();
    QCoreApplication::processEvents();
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
}

TEST_F(TrayStatusBarTest, AsksForTheMenuOfTheItem) {
    ASSERT_TRUE(tray.waitForIcons(1));
    static_cast<void>(tray.callItem(tray.registered[0], QStringLiteral("ContextMenu"), {1, 1}));
    EXPECT_EQ(menuCount, 1);
}

TEST_F(TrayStatusBarTest, SurvivesPlacesThatDoNotExist) {
    ASSERT_TRUE(tray.waitForIcons(1));
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const QPoint& point : {QPoint(largest, smallest), QPoint(smallest, largest), QPoint(-1, -1)}) {
        activate(0, point.x(), point.y());
        ASSERT_EQ(shownPanels(), QStringLiteral("cpu"));
        EXPECT_TRUE(screen.contains(shownWindow(QStringLiteral("cpu"))->geometry()));
        activate(0, point.x(), point.y());
    }
}

TEST_F(TrayStatusBarTest, SurvivesManyClicksAtOnce) {
    ASSERT_TRUE(tray.waitForIcons(1));
    for (int count = 0; count < 401; ++count) {
        QDBusMessage click =
            QDBusMessage::createMethodCall(tray.registered[0], TrayConnection::itemPath,
                                           TrayDouble::itemInterface(), QStringLiteral("Activate"));
        click << count << -count;
        (*tray.connection()).send(click);
    }
    tray.catchUp(tray.registered[0]);
    QCoreApplication::processEvents();
    EXPECT_EQ(shownPanels(), QStringLiteral("cpu"));
    activate(0);
    EXPECT_EQ(shownPanels(), QString());
}

TEST_F(TrayStatusBarTest, SurvivesAnItemThatGoesWhileItsPanelIsOpen) {
    ASSERT_TRUE(tray.waitForIcons(1));
    activate(0);
    removeItem(QStringLiteral("cpu"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(hasTabs());
    activate(0);
    EXPECT_EQ(shownPanels(), QStringLiteral("memory"));
}

} // namespace
} // namespace orvelle
