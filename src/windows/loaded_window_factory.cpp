#include "settings/shared_file.h"
#include "windows/window_factory.h"
#include "windows/window_module_identity.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <span>
#include <sys/stat.h>
#include <unistd.h>

namespace orvelle {
namespace {

/// The module that holds the windows: the file that had its name when the program started.
class WindowModule {
public:
    WindowModule()
        : m_path(QFile::encodeName(QCoreApplication::applicationDirPath() +
                                   QStringLiteral("/" ORVELLE_LIBRARIES_FROM_PROGRAM "/liborvelle_views.so")))
        , m_file(::open(m_path.constData(), O_RDONLY | O_CLOEXEC)) {
        if (!m_file.isOpen())
            m_absence = std::strerror(errno);
    }

    [[nodiscard]] std::unique_ptr<WindowFactory> makeFactory(const WindowContext& context) const {
        if (!m_file.isOpen())
            return complain(m_path + ": " + m_absence);
        if (!isOfThisProgram())
            return complain(m_path + " is of another version; start Orvelle again");
        // It stays loaded: what it registers with Qt cannot be taken back.
        void* const module = ::dlopen(presentPath().constData(), RTLD_LAZY);
        void* const symbol = module == nullptr ? nullptr : ::dlsym(module, makeWindowFactorySymbol);
        if (symbol == nullptr)
            return complain(::dlerror());
        return std::unique_ptr<WindowFactory>(
            reinterpret_cast<decltype(&orvelleMakeWindowFactory)>(symbol)(context));
    }

private:
    static std::nullptr_t complain(const QByteArray& reason) {
        std::fprintf(stderr, "Orvelle cannot open its windows: %s\n", reason.constData());
        return nullptr;
    }

    /// Whether it was built with this program. A module with other ideas of the classes that both use would
    /// crash it. Linkers write the identity near the beginning.
    [[nodiscard]] bool isOfThisProgram() const {
        std::array<unsigned char, 4096> beginning{};
        const ssize_t count = ::pread(m_file.get(), beginning.data(), beginning.size(), 0);
        const auto read = std::span(beginning).first(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        return !std::ranges::search(read, windowModuleIdentity).empty();
    }

    /// A path of the open file. Debuggers know it by its own while it has that.
    [[nodiscard]] QByteArray presentPath() const {
        struct stat opened{};
        struct stat named{};
        const bool isNamed = ::fstat(m_file.get(), &opened) == 0 && ::stat(m_path.constData(), &named) == 0 &&
                             opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
        return isNamed ? m_path : "/proc/self/fd/" + QByteArray::number(m_file.get());
    }

    QByteArray m_path;
    FileDescriptor m_file;
    QByteArray m_absence; ///< why there is no such file
};

} // namespace

WindowFactoryLoader findWindowFactory() {
    return [module = std::make_shared<WindowModule>()](const WindowContext& context) {
        // Left alone, the heap takes in the pictures of windows once one of them has been freed, and keeps
        // them.
        mallopt(M_MMAP_THRESHOLD, 128 * 1024);
        return module->makeFactory(context);
    };
}

} // namespace orvelle
