#pragma once

#include <QFileSystemWatcher>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace orvelle {

/// Tells when a file may have changed: when it is written, replaced, created or removed, and when anything
/// else happens in its folder, which is created if it is missing. The folder may go and come back, as itself
/// or as another one.
class WatchedFile {
public:
    WatchedFile(QString filePath, std::function<void()> changed);

    /// Watches the file and the folder that have the paths now. To be called before each reading and after
    /// each write, because the watch stays with a file that is replaced.
    void renew();

private:
    /// The numbers of its device and of its inode.
    using Identity = std::pair<quint64, quint64>;

    [[nodiscard]] static std::optional<Identity> folderIdentity(const QString& path);
    void handleFolderChange(const QString& path);
    void watchFolder();
    void watchAbove();
    void watchFile();

    const QString m_filePath;
    const QString m_folder;
    const std::function<void()> m_changed;
    QString m_above;                    ///< the nearest folder above it that exists
    std::optional<Identity> m_identity; ///< of the folder that is watched
    QFileSystemWatcher m_watcher;
};

} // namespace orvelle
