#include "app/views/views_module.h"

#include <QCoreApplication>
#include <QLibrary>

#include <cstdio>

namespace orvelle {

// The module stays loaded: what it registers with Qt cannot be taken back.
std::unique_ptr<Views> loadViews(const ViewContext& context) {
    QLibrary module(QCoreApplication::applicationDirPath() +
                    QStringLiteral("/../lib/orvelle/liborvelle_views"));
    const auto makeViews = reinterpret_cast<decltype(&orvelleMakeViews)>(module.resolve(makeViewsSymbol));
    if (makeViews == nullptr) {
        std::fprintf(stderr, "Orvelle cannot open its windows: %s\n", qPrintable(module.errorString()));
        return nullptr;
    }
    return std::unique_ptr<Views>(makeViews(context));
}

} // namespace orvelle
