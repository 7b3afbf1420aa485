#include "windows/common/quick_engine.h"

#include "windows/common/look_types.h"

#include <QQmlEngine>
#include <QQuickWindow>

#include <mutex>

namespace orvelle {

std::unique_ptr<QQmlEngine> makeEngine() {
    static std::once_flag once;
    std::call_once(once, QQuickWindow::setGraphicsApi, QSGRendererInterface::Software);
    registerLookTypes();
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/")); // where the modules are embedded
    return engine;
}

} // namespace orvelle
