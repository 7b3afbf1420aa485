#include "settings/watched_file.h"

#include "settings/shared_file.h"

#include <QFileInfo>

#include <utility>

namespace orvelle {

WatchedFile::WatchedFile(QString filePath, std::function<void()> changed)
    : m_filePath(std::move(filePath)) {
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, changed);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, changed);
    // A folder that is missing cannot be watched.
    static_cast<void>(makePrivateFolders(QFileInfo(m_filePath).path()));
    renew();
}

/// Watches the file for writes in place, and its folder because editors and this program replace the file.
/// The watch on the file is renewed, because the old file may live on elsewhere, still watched.
void WatchedFile::renew() {
    const QString folder = QFileInfo(m_filePath).path();
    if (!m_watcher.directories().contains(folder) && QFileInfo(folder).isDir())
        m_watcher.addPath(folder);
    if (m_watcher.files().contains(m_filePath))
        m_watcher.removePath(m_filePath);
    if (QFileInfo(m_filePath).isFile())
        m_watcher.addPath(m_filePath);
}

} // namespace orvelle
