#include "windows/panels/panel_fixture.h"

#include <QQmlAbstractUrlInterceptor>

namespace orvelle {
namespace {

/// Loads other text in place of every panel's view.
class OtherPanelView : public QQmlAbstractUrlInterceptor {
public:
    explicit OtherPanelView(const QByteArray& text) { m_file.writeInPlace(text); }

    QUrl intercept(const QUrl& path, DataType type) override {
        const bool isPanel = type == QmlFile && path.path().endsWith(QStringLiteral("PanelView.qml"));
        return isPanel ? QUrl::fromLocalFile(m_file.path()) : path;
    }

private:
    TemporarySettings m_file;
};

/// Receives the messages in place of the fixture, which fails on each.
class PanelFactoryTest : public PanelFixture {
protected:
    PanelFactoryTest() {
        messages.clear();
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& message) { messages.append(message); });
    }

    static inline QStringList messages;
};

TEST_F(PanelFactoryTest, MakesNoPanelWithoutAPropertyThatItsViewRequiresAndSaysWhich) {
    OtherPanelView view("import QtQuick\nItem { required property int unknownMonitor }");
    engine->addUrlInterceptor(&view);
    EXPECT_EQ(factory.makePanel(ModuleId::cpu), nullptr);
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.first().contains(QStringLiteral("unknownMonitor")))
        << messages.first().toStdString();
    engine->removeUrlInterceptor(&view);
}

TEST_F(PanelFactoryTest, GivesAViewTheMonitorsThatItRequires) {
    OtherPanelView view("import QtQuick\nItem { required property QtObject cpu }");
    engine->addUrlInterceptor(&view);
    EXPECT_NE(factory.makePanel(ModuleId::cpu), nullptr);
    EXPECT_EQ(messages, QStringList());
    engine->removeUrlInterceptor(&view);
}

} // namespace
} // namespace orvelle
