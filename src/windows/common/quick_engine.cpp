#include "windows/common/quick_engine.h"

#include <QQuickWindow>
#include <QtGlobal>

#include <mutex>

void qml_register_types_Orvelle_Common(); // written by the build

// The linker drops the compiled QML files of a static library unless something refers to them. The macro
// works in no namespace.
static void registerCommonTypesAndFiles() {
    Q_INIT_RESOURCE(qmlcache_orvelle_windows_common);
    qml_register_types_Orvelle_Common();
}

namespace orvelle {

std::unique_ptr<QQmlEngine> makeEngine() {
    static std::once_flag once;
    std::call_once(once, [] {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        registerCommonTypesAndFiles();
    });
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/")); // where the modules are embedded
    return engine;
}

} // namespace orvelle
