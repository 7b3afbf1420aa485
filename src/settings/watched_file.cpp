#include "settings/watched_file.h"

#include "settings/shared_file.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace orvelle {
namespace {

QString nearestFolderAbove(const QString& path) {
    QString folder = QFileInfo(path).path();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).path())
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

WatchedFile::WatchedFile(QString filePath, std::function<void()> changed)
    : m_filePath(std::move(filePath))
    , m_folder(QFileInfo(m_filePath).path())
    , m_changed(std::move(changed)) {
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, m_changed);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher,
                     [this](const QString& path) { handleFolderChange(path); });
    // A folder that is missing cannot be watched.
    static_cast<void>(makePrivateFolders(m_folder));
    renew();
}

void WatchedFile::renew() {
    watchAbove();
    watchFolder();
    watchFile();
}

/// Other programs keep their settings beside the folder, and their changes mean nothing.
void WatchedFile::handleFolderChange(const QString& path) {
    const bool isOnlyAbove = path == m_above && m_identity && folderIdentity(m_folder) == m_identity;
    if (!isOnlyAbove)
        m_changed();
}

/// A folder is not told when it gets another name, but the one above it is.
void WatchedFile::watchAbove() {
    QString above;
    do {
        above = nearestFolderAbove(m_folder);
        if (above != m_above && !m_above.isEmpty())
            m_watcher.removePath(m_above);
        if (!m_watcher.directories().contains(above))
            m_watcher.addPath(above);
        m_above = above;
    } while (above != nearestFolderAbove(m_folder)); // one was made meanwhile
}

/// The file may be replaced by editors and by this program, which its folder is told of.
void WatchedFile::watchFolder() {
    const std::optional<Identity> identity = folderIdentity(m_folder);
    const bool isWatched = m_watcher.directories().contains(m_folder);
    if (isWatched && identity == m_identity)
        return;
    if (isWatched)
        m_watcher.removePath(m_folder);
    m_identity = identity && m_watcher.addPath(m_folder) ? identity : std::nullopt;
}

/// For writes in place. The watch is renewed, because the old file may live on elsewhere, still watched.
void WatchedFile::watchFile() {
    if (m_watcher.files().contains(m_filePath))
        m_watcher.removePath(m_filePath);
    if (QFileInfo(m_filePath).isFile())
        m_watcher.addPath(m_filePath);
}

/// Nothing unless a folder has this path.
std::optional<WatchedFile::Identity> WatchedFile::folderIdentity(const QString& path) {
    struct stat status{};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    return Identity(static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino));
}

} // namespace orvelle
