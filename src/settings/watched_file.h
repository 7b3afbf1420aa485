#pragma once

#include <QFileSystemWatcher>
#include <QString>

#include <functional>

namespace orvelle {

/// Tells when a file may have changed: when it is written, replaced, created or removed, and when anything
/// else happens in its folder, which is created if it is missing.
class WatchedFile {
public:
    WatchedFile(QString filePath, std::function<void()> changed);

    /// Watches the file that has the path now. To be called before each reading and after each write, because
    /// the watch stays with a file that is replaced.
    void renew();

private:
    const QString m_filePath;
    QFileSystemWatcher m_watcher;
};

} // namespace orvelle
