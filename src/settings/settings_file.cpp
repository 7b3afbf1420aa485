#include "settings/settings_file.h"

#include "settings/plain_ini.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <chrono>
#include <utility>

namespace orvelle {
namespace {

constexpr std::chrono::milliseconds longestLockWait{500};

bool isFolderWritable(const QString& filePath) {
    return QFileInfo(QFileInfo(filePath).path()).isWritable();
}

/// QSettings waits for its lock without end: for a stopped program, and for what is no file at all.
bool isLockFree(const QString& filePath) {
    const QString lockPath = filePath + QStringLiteral(".lock");
    const QFileInfo lock(lockPath);
    if (!lock.exists() && !lock.isSymLink())
        return true;
    return lock.isFile() && QLockFile(lockPath).tryLock(longestLockWait);
}

/// Whether saving should succeed. Values that QSettings fails to save stay pending in it for good, also when
/// someone edits the file meanwhile, so as much as possible is found out before it is given any.
bool canSave(const QSettings& settings) {
    const QString path = settings.fileName();
    const QFileInfo file(path);
    return settings.isWritable() && isFolderWritable(path) &&
           (!file.isSymLink() || isFolderWritable(file.symLinkTarget())) && isLockFree(path);
}

} // namespace

SettingsFile::SettingsFile(QString filePath)
    : m_filePath(std::move(filePath)) {}

std::optional<StoredValues> SettingsFile::read(const QStringList& keys) {
    if (!isFileOrMissing())
        return std::nullopt;
    // Read past QSettings, which keeps what it read before while the file's size and time are the same: a
    // file system's clock is coarse enough for a quick edit of equal size to go unnoticed.
    QFile file(m_filePath);
    QSettings::SettingsMap stored;
    if (QFileInfo::exists(m_filePath) && !(file.open(QIODevice::ReadOnly) && PlainIni::read(file, stored)))
        return std::nullopt;
    StoredValues values;
    for (const QString& key : keys) {
        if (const auto value = stored.constFind(key); value != stored.constEnd())
            values.insert(key, *value);
    }
    return values;
}

bool SettingsFile::write(const StoredValues& values) {
    const std::unique_ptr<QSettings> settings = open();
    if (!settings || !canSave(*settings))
        return false;
    for (auto value = values.begin(); value != values.end(); ++value)
        settings->setValue(value.key(), value->toString());
    settings->sync();
    return settings->status() == QSettings::NoError;
}

bool SettingsFile::isFileOrMissing() const {
    const QFileInfo file(m_filePath);
    // Opening a pipe or a device could wait for ever.
    return !file.exists() || (file.isFile() && file.isReadable());
}

std::unique_ptr<QSettings> SettingsFile::open() const {
    if (!isFileOrMissing())
        return nullptr;
    // A new one each time: its status never returns from an error.
    auto settings = std::make_unique<QSettings>(m_filePath, PlainIni::format());
    // QSettings would go on with a file that it could not read as with an empty one, and replace it.
    const bool isRead = QFileInfo(m_filePath).size() == 0 || !settings->allKeys().isEmpty();
    return settings->status() == QSettings::NoError && isRead ? std::move(settings) : nullptr;
}

} // namespace orvelle
