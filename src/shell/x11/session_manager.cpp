#include "shell/x11/session_manager.h"

#include <QLibrary>

#include <cstdio>
#include <fcntl.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace orvelle {
namespace {

// As in X11/ICE/ICElib.h. The program does not link libICE, because it needs it only where Qt loads it too.
using ConnectionNumber = int (*)(void* connection);
using ErrorHandler = void (*)(void* connection);
using SetErrorHandler = ErrorHandler (*)(ErrorHandler handler);

ConnectionNumber connectionNumber = nullptr;

/// Qt watches the descriptor until the program ends, and a closed socket is readable for ever. Something that
/// is never readable takes its place. libICE itself sends nothing more.
void silence(int descriptor) {
    const int silent = ::eventfd(0, EFD_CLOEXEC);
    if (silent < 0)
        return;
    ::dup3(silent, descriptor, O_CLOEXEC);
    ::close(silent);
}

void handleBrokenConnection(void* connection) {
    std::fprintf(stderr, "orvelle: the session manager has broken off, so it is not used\n");
    silence(connectionNumber(connection));
}

} // namespace

void outliveSessionManager() {
    if (qEnvironmentVariableIsEmpty("SESSION_MANAGER"))
        return;
    QLibrary library(QStringLiteral("ICE"), 6);
    connectionNumber = reinterpret_cast<ConnectionNumber>(library.resolve("IceConnectionNumber"));
    const auto setHandler = reinterpret_cast<SetErrorHandler>(library.resolve("IceSetIOErrorHandler"));
    if (connectionNumber != nullptr && setHandler != nullptr)
        setHandler(&handleBrokenConnection);
}

} // namespace orvelle
