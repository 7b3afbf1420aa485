#include "windows/window_factory.h"

#include <QCoreApplication>
#include <QLibrary>

#include <cstdio>
#include <malloc.h>

namespace orvelle {

// The module stays loaded: what it registers with Qt cannot be taken back.
std::unique_ptr<WindowFactory> loadWindowFactory(const WindowContext& context) {
    // Left alone, the heap takes in the pictures of windows once one of them has been freed, and keeps them.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    QLibrary module(QCoreApplication::applicationDirPath() +
                    QStringLiteral("/" ORVELLE_LIBRARIES_FROM_PROGRAM "/liborvelle_views"));
    const auto makeFactory =
        reinterpret_cast<decltype(&orvelleMakeWindowFactory)>(module.resolve(makeWindowFactorySymbol));
    if (makeFactory == nullptr) {
        std::fprintf(stderr, "Orvelle cannot open its windows: %s\n", qPrintable(module.errorString()));
        return nullptr;
    }
    return std::unique_ptr<WindowFactory>(makeFactory(context));
}

} // namespace orvelle
