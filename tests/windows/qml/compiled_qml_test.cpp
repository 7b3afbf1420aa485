#include "windows/charts/chart_types.h"
#include "windows/common/quick_engine.h"
#include "windows/panels/panel_types.h"
#include "windows/settings/settings_types.h"

#include <QDirIterator>
#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// Whether a file has been compiled ahead of time can be told from what happens to one that has not: after it
/// has been compiled the engine tries to keep the result, which fails for what is embedded in the program,
/// and says so in a category of its own.
class CompiledQml : public ::testing::Test {
protected:
    CompiledQml() {
        registerChartTypes();
        registerPanelTypes();
        registerSettingsTypes();
        QLoggingCategory::setFilterRules(QStringLiteral("qt.qml.diskcache.debug=true"));
        s_compiled.clear();
        s_previousHandler = qInstallMessageHandler(&CompiledQml::noteCompilation);
    }
    ~CompiledQml() override {
        qInstallMessageHandler(s_previousHandler);
        QLoggingCategory::setFilterRules({});
    }

    std::unique_ptr<QQmlEngine> engine = makeEngine();
    static inline QStringList s_compiled; ///< messages about files that were compiled now

private:
    static void noteCompilation(QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (qstrcmp(context.category, "qt.qml.diskcache") == 0)
            s_compiled.append(message);
        else
            s_previousHandler(type, context, message);
    }

    static inline QtMessageHandler s_previousHandler = nullptr;
};

TEST_F(CompiledQml, IsEveryFileOfEveryModule) {
    int count = 0;
    for (QDirIterator files(QStringLiteral(":/Orvelle"), {QStringLiteral("*.qml")}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QQmlComponent component(engine.get(), QUrl(QStringLiteral("qrc") + files.next()));
        // A singleton is no component of its own: it is made through its module.
        EXPECT_FALSE(component.isLoading());
        ++count;
    }
    EXPECT_GT(count, 30);
    EXPECT_TRUE(s_compiled.isEmpty()) << s_compiled.join(u'\n').toStdString();
}

TEST_F(CompiledQml, CanBeToldFromQmlThatIsNot) {
    QQmlComponent component(engine.get());
    component.setData("import QtQuick\nItem { width: 3 + 4 }", QUrl(QStringLiteral("qrc:/NotCompiled.qml")));
    EXPECT_TRUE(component.isReady()) << component.errorString().toStdString();
    EXPECT_FALSE(s_compiled.filter(QStringLiteral("NotCompiled.qml")).isEmpty());
}

} // namespace
} // namespace orvelle
