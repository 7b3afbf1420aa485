#include "shell/tray/tray_icon.h"
#include "support/manual_clock.h"
#include "tray_double.h"

#include <QCoreApplication>

namespace orvelle {
namespace {

TrayPictures plain(const QColor& color) {
    return trayPictures(
        [&color](QPainter& painter, const QRectF& square) { painter.fillRect(square, color); });
}

class TrayIconTest : public ::testing::Test {
protected:
    TrayIconTest() { icon.setMenu({{QStringLiteral("Quit"), {}, {}}}); }
    void SetUp() override {
        ASSERT_TRUE(tray.waitForIcons(1));
        service = tray.registered[0];
        tray.catchUp(service);
        tray.announced.clear();
    }
    /// Changes what the icon shows, and handles what follows in this turn of the event loop.
    void update() {
        icon.update();
        QCoreApplication::processEvents();
        tray.catchUp(service);
    }

    PrivateBus bus;
    ManualClock time;
    TrayContent content{QStringLiteral("CPU"),
                        plain(Qt::red),
                        {QStringLiteral("CPU"), QStringLiteral("CPU 12%")},
                        QStringLiteral("12%"),
                        QStringLiteral("100%")};
    bool isThere = true;
    int asked = 0;
    QList<QPoint> opened;
    QList<QPoint> menus;
    TrayDouble tray{bus.address()};
    TrayIcon icon{QStringLiteral("orvelle-cpu"),
                  [this]() -> std::optional<TrayContent> {
                      ++asked;
                      return isThere ? std::optional(content) : std::nullopt;
                  },
                  {[this](const QPoint& point) { opened.append(point); },
                   [this](const QPoint& point) { menus.append(point); }},
                  {.address = bus.address()},
                  time.clock};
    QString service;
};

TEST_F(TrayIconTest, RegistersByANameOfItsOwn) {
    EXPECT_EQ(service, icon.serviceName());
    const QString start =
        QStringLiteral("org.kde.StatusNotifierItem-%1-").arg(QCoreApplication::applicationPid());
    EXPECT_TRUE(service.startsWith(start)) << qPrintable(service);
}

TEST_F(TrayIconTest, HasThePropertiesThatTraysAskFor) {
    const QVariantMap properties = tray.properties(service);
    const auto text = [&properties](const char* name) {
        return properties.value(QLatin1StringView(name)).toString();
    };
    EXPECT_EQ(text("Category"), QStringLiteral("SystemServices"));
    EXPECT_EQ(text("Id"), QStringLiteral("orvelle-cpu"));
    EXPECT_EQ(text("Title"), QStringLiteral("CPU"));
    EXPECT_EQ(text("Status"), QStringLiteral("Active"));
    EXPECT_EQ(text("IconName"), QString());
    EXPECT_EQ(text("XAyatanaLabel"), QStringLiteral("12%"));
    EXPECT_EQ(text("XAyatanaLabelGuide"), QStringLiteral("100%"));
    EXPECT_EQ(properties.value(QStringLiteral("WindowId")), QVariant(0));
    EXPECT_EQ(properties.value(QStringLiteral("ItemIsMenu")), QVariant(false));
    EXPECT_EQ(properties.value(QStringLiteral("Menu")).value<QDBusObjectPath>().path(),
              QStringLiteral("/MenuBar"));
    const auto picture = properties.value(QStringLiteral("IconPixmap")).value<QDBusArgument>();
    EXPECT_EQ(picture.currentSignature(), QStringLiteral("a(iiay)"));
    EXPECT_EQ(qdbus_cast<TrayPictures>(picture), plain(Qt::red));
    const auto toolTip = properties.value(QStringLiteral("ToolTip")).value<QDBusArgument>();
    EXPECT_EQ(toolTip.currentSignature(), QStringLiteral("(sa(iiay)ss)"));
    EXPECT_EQ(qdbus_cast<TrayToolTip>(toolTip), content.toolTip);
}

TEST_F(TrayIconTest, AnnouncesNothingWhenNothingChanged) {
    time.pass(2);
    update();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(tray.announced, QStringList());
}

TEST_F(TrayIconTest, AnnouncesOnlyWhatChanged) {
    time.pass(2);
    content.pictures = plain(Qt::green);
    update();
    EXPECT_EQ(tray.announced, QStringList{QStringLiteral("NewIcon")});
    tray.announced.clear();
    time.pass(2);
    content.toolTip.text = QStringLiteral("CPU 13%");
    update();
    EXPECT_EQ(tray.announced, QStringList{QStringLiteral("NewToolTip")});
    tray.announced.clear();
    time.pass(2);
    content.label = QStringLiteral("13%");
    content.title = QStringLiteral("Processor");
    update();
    EXPECT_EQ(tray.announced, (QStringList{QStringLiteral("NewTitle"), QStringLiteral("XAyatanaNewLabel")}));
    EXPECT_EQ(tray.signalled.last().arguments(),
              (QVariantList{QStringLiteral("13%"), QStringLiteral("100%")}));
    tray.announced.clear();
    time.pass(2);
    content.widestLabel = QStringLiteral("100.0%");
    update();
    EXPECT_EQ(tray.announced, QStringList{QStringLiteral("XAyatanaNewLabel")});
}

TEST_F(TrayIconTest, IsUpdatedAtMostEveryTwoSeconds) {
    time.pass(2);
    content.pictures = plain(Qt::green);
    update();
    EXPECT_EQ(asked, 2) << "long after the last update it is at once";
    time.pass(1);
    content.pictures = plain(Qt::blue);
    update();
    time.pass(0.98);
    EXPECT_EQ(asked, 2);
    time.pass(0.03);
    EXPECT_EQ(asked, 3) << "the newest look is not forgotten";
    tray.catchUp(service);
    EXPECT_EQ(tray.announced, (QStringList{QStringLiteral("NewIcon"), QStringLiteral("NewIcon")}));
    time.pass(10);
    EXPECT_EQ(asked, 3) << "nothing happens without a change";
}

TEST_F(TrayIconTest, TakesSeveralChangesInOneTurnAsOne) {
    time.pass(2);
    for (int count = 0; count < 6; ++count)
        icon.update();
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 2);
}

TEST_F(TrayIconTest, StaysAsItIsWhileThereIsNothingToShow) {
    isThere = false;
    time.pass(2);
    update();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(tray.properties(service).value(QStringLiteral("Title")).toString(), QStringLiteral("CPU"));
}

TEST_F(TrayIconTest, PassesClicksOn) {
    EXPECT_EQ(tray.callItem(service, QStringLiteral("Activate"), {7, 8}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(tray.callItem(service, QStringLiteral("SecondaryActivate"), {-9, 10}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(opened, (QList<QPoint>{{7, 8}, {-9, 10}}));
    EXPECT_EQ(tray.callItem(service, QStringLiteral("ContextMenu"), {1, 2}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(menus, (QList<QPoint>{{1, 2}}));
    const QDBusMessage scrolled =
        tray.callItem(service, QStringLiteral("Scroll"), {120, QStringLiteral("vertical")});
    EXPECT_EQ(scrolled.type(), QDBusMessage::ReplyMessage);
}

TEST_F(TrayIconTest, TakesATokenForTheNextWindow) {
    const auto provide = [this](const QString& token) {
        return tray.callItem(service, QStringLiteral("ProvideXdgActivationToken"), {token}).type();
    };
    EXPECT_EQ(provide(QStringLiteral("token-1")), QDBusMessage::ReplyMessage);
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "token-1");
    EXPECT_EQ(provide(QString(100'000, QLatin1Char('x'))), QDBusMessage::ReplyMessage);
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "token-1");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(TrayIconTest, AnswersAWrongCallWithAnError) {
    EXPECT_EQ(tray.callItem(service, QStringLiteral("Activate"), {QStringLiteral("here")}).type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(tray.callItem(service, QStringLiteral("Explode")).type(), QDBusMessage::ErrorMessage);
    EXPECT_TRUE(opened.isEmpty());
}

} // namespace
} // namespace orvelle
