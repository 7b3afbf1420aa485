#include "settings/settings_file.h"

#include "settings/abandoned_replacements.h"
#include "settings/plain_ini.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStorageInfo>

#include <chrono>
#include <utility>

namespace orvelle {
namespace {

constexpr std::chrono::milliseconds longestLockWait{500};
constexpr std::chrono::milliseconds namelessLockAge{200};

bool isFolderWritable(const QString& filePath) {
    return QFileInfo(QFileInfo(filePath).path()).isWritable();
}

QString lockPathOf(const QString& filePath) {
    return filePath + QStringLiteral(".lock");
}

/// Whether the lock could be had within the longest wait.
bool canLock(const QString& lockPath) {
    QLockFile lock(lockPath);
    // A program names itself in its lock as soon as it has made it. One that was ended in between would keep
    // everybody out for half a minute.
    if (QFileInfo(lockPath).size() == 0)
        lock.setStaleLockTime(namelessLockAge);
    return lock.tryLock(longestLockWait);
}

/// QSettings waits for its lock without end: for a stopped program, and for what is no file at all.
bool isLockFree(const QString& filePath) {
    const QString lockPath = lockPathOf(filePath);
    const QFileInfo lock(lockPath);
    if (!lock.exists() && !lock.isSymLink())
        return true;
    if (!lock.isFile())
        return false;
    // QLockFile takes an abandoned lock away under another one, which can be abandoned as well.
    const QString removalLockPath = lockPath + QStringLiteral(".rmlock");
    if (QFileInfo(removalLockPath).isFile())
        static_cast<void>(canLock(removalLockPath)); // else the next one is not to be had either
    return canLock(lockPath);
}

/// Whether saving should succeed. Values that QSettings fails to save stay pending in it for good, also when
/// someone edits the file meanwhile, so as much as possible is found out before it is given any.
bool canSave(const QSettings& settings) {
    const QString path = settings.fileName();
    const QFileInfo file(path);
    return settings.isWritable() && isFolderWritable(path) &&
           (!file.isSymLink() || isFolderWritable(file.symLinkTarget())) && isLockFree(path);
}

/// What is wrong with the folder that the file stands in; empty when nothing is.
QString faultOfFolder(const QFileInfo& folder) {
    if (!folder.exists())
        return QStringLiteral("the folder %1 does not exist").arg(folder.filePath());
    if (!folder.isDir())
        return QStringLiteral("%1 is not a folder").arg(folder.filePath());
    if (!folder.isWritable())
        return QStringLiteral("the folder %1 cannot be written to").arg(folder.filePath());
    return {};
}

/// What is wrong with what stands in the file's place; empty when nothing is, or nothing stands there.
QString faultOfFile(const QFileInfo& file) {
    if (file.isSymLink() && !file.exists())
        return QStringLiteral("%1 is a link that leads nowhere").arg(file.filePath());
    if (!file.exists())
        return {};
    if (file.isDir())
        return QStringLiteral("%1 is a folder").arg(file.filePath());
    if (!file.isFile())
        return QStringLiteral("%1 is not a file").arg(file.filePath());
    if (!file.isReadable() || !file.isWritable())
        return QStringLiteral("%1 may not be changed").arg(file.filePath());
    if (file.size() > PlainIni::maximumSize)
        return QStringLiteral("%1 is too large for a settings file").arg(file.filePath());
    return {};
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
    removeAbandonedReplacements(m_filePath, lockPathOf(m_filePath));
    for (auto value = values.begin(); value != values.end(); ++value)
        settings->setValue(value.key(), value->toString());
    settings->sync();
    return settings->status() == QSettings::NoError;
}

QString SettingsFile::failureReason() const {
    const QFileInfo file(m_filePath);
    for (const QString& fault : {faultOfFolder(QFileInfo(file.path())), faultOfFile(file)}) {
        if (!fault.isEmpty())
            return fault;
    }
    if (QStorageInfo(file.path()).bytesAvailable() == 0)
        return QStringLiteral("the disk is full");
    if (!isLockFree(m_filePath))
        return QStringLiteral("another program keeps %1 locked").arg(m_filePath);
    return QStringLiteral("%1 cannot be written").arg(m_filePath);
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
