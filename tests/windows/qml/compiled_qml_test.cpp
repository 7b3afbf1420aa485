#include "windows/charts/chart_types.h"
#include "windows/common/quick_engine.h"
#include "windows/panels/panel_types.h"
#include "windows/settings/settings_window.h"

#include <QDirIterator>
#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// The engine compiles a file that was not compiled ahead of time, and then tries to cache the result. That
/// fails for an embedded file, which the engine reports in the category of its disk cache.
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
    static inline QStringList s_compiled; ///< messages about files that the engine compiled

private:
    static void noteCompilation(QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (qstrcmp(context.category, "qt.qml.diskcache") == 0)
            s_compiled.append(message);
        else
            s_previousHandler(type, context, message);
    }

    static inline QtMessageHandler s_previousHandler = nullptr;
};

TEST_F(CompiledQml, IncludesEveryFileOfEveryModule) {
    int count = 0;
    for (QDirIterator files(QStringLiteral(":/Orvelle"), {QStringLiteral("*.qml")}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QQmlComponent component(engine.get(), QUrl(QStringLiteral("qrc") + files.next()));
        EXPECT_TRUE(component.isReady()) << component.errorString().toStdString();
        ++count;
    }
    EXPECT_GT(count, 20);
    EXPECT_TRUE(s_compiled.isEmpty()) << s_compiled.join(u'\n').toStdString();
}

TEST_F(CompiledQml, DiffersFromAFileThatTheEngineCompiles) {
    QQmlComponent component(engine.get());
    component.setData("import QtQuick\nItem { width: 3 + 4 }", QUrl(QStringLiteral("qrc:/NotCompiled.qml")));
    EXPECT_TRUE(component.isReady()) << component.errorString().toStdString();
    EXPECT_FALSE(s_compiled.filter(QStringLiteral("NotCompiled.qml")).isEmpty());
}

} // namespace
} // namespace orvelle
