#include "settings/settings_storage.h"

#include "settings/ini_text.h"
#include "settings/shared_file.h"
#include "settings/watched_file.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>
#include <sys/stat.h>
#include <utility>

namespace orvelle {
namespace {

std::optional<FileLock> takeLock(const QString& filePath) {
    return FileLock::take(filePath + QStringLiteral(".lock"));
}

/// Why no file can be written in the folder; empty if one can.
QString folderFault(const QFileInfo& folder) {
    if (!folder.exists())
        return QStringLiteral("the folder %1 does not exist").arg(folder.filePath());
    if (!folder.isDir())
        return QStringLiteral("%1 is not a folder").arg(folder.filePath());
    if (!folder.isWritable())
        return QStringLiteral("the folder %1 cannot be written to").arg(folder.filePath());
    return {};
}

/// Why the file cannot be replaced; empty if it can, or if it is missing.
QString fileFault(const QFileInfo& file) {
    if (file.isSymLink() && !file.exists() && !QFileInfo(QFileInfo(file.symLinkTarget()).path()).isWritable())
        return QStringLiteral("%1 is a link that leads nowhere").arg(file.filePath());
    if (!file.exists())
        return {};
    if (file.isDir())
        return QStringLiteral("%1 is a folder").arg(file.filePath());
    if (!file.isFile())
        return QStringLiteral("%1 is not a file").arg(file.filePath());
    if (!file.isReadable() || !file.isWritable())
        return QStringLiteral("%1 may not be changed").arg(file.filePath());
    if (file.size() > IniText::maximumSize)
        return QStringLiteral("%1 is too large for a settings file").arg(file.filePath());
    return {};
}

/// Why the path cannot be written, locks aside; empty if it can.
QString pathFault(const QString& filePath) {
    const QFileInfo file(filePath);
    const QString fault = folderFault(QFileInfo(file.path()));
    return fault.isEmpty() ? fileFault(file) : fault;
}

/// The path of the file that a link leads to, which may be missing; the path itself if it is no link.
QString resolveLinks(const QString& filePath) {
    const QFileInfo file(filePath);
    if (!file.isSymLink())
        return filePath;
    return file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
}

/// The file's text, empty when it is missing. Nothing when it cannot be read, or when nobody may ask whether
/// it exists.
std::optional<QByteArray> textOf(const QString& filePath) {
    struct stat status{};
    if (::stat(QFile::encodeName(filePath).constData(), &status) != 0)
        return errno == ENOENT || errno == ELOOP ? std::optional(QByteArray()) : std::nullopt;
    QFile file(filePath);
    // Opening a pipe or a device could block forever.
    if (!S_ISREG(status.st_mode) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray text = file.read(IniText::maximumSize + 1);
    if (file.error() != QFileDevice::NoError || text.size() > IniText::maximumSize)
        return std::nullopt;
    return text;
}

} // namespace

SettingsFile::SettingsFile(QString filePath)
    : m_filePath(std::move(filePath)) {
    if (AtomicFile& file = target(); file.isInterrupted()) {
        if (const std::optional<FileLock> lock = takeLock(m_filePath))
            file.recover();
    }
}

SettingsFile::~SettingsFile() = default;

void SettingsFile::watch(const QStringList& /*keys*/, std::function<void()> changed) {
    m_watch = std::make_unique<WatchedFile>(m_filePath, std::move(changed));
}

std::optional<StoredValues> readSettingsFile(const QString& filePath, const QStringList& keys) {
    const std::optional<QByteArray> stored = textOf(filePath);
    if (!stored)
        return std::nullopt;
    StoredValues values;
    const QHash<QString, QString> texts = IniText::values(*stored, keys);
    for (auto value = texts.cbegin(); value != texts.cend(); ++value)
        values.insert(value.key(), value.value());
    return values;
}

std::optional<StoredValues> SettingsFile::read(const QStringList& keys) {
    if (m_watch)
        m_watch->renew();
    return readSettingsFile(m_filePath, keys);
}

SaveResult SettingsFile::write(const StoredValues& values) {
    const SaveResult result = merge(values);
    if (m_watch)
        m_watch->renew();
    return result;
}

SaveResult SettingsFile::merge(const StoredValues& values) {
    // If it fails, the path has a fault.
    static_cast<void>(makePrivateFolders(QFileInfo(m_filePath).path()));
    if (!pathFault(m_filePath).isEmpty())
        return SaveResult::failed;
    const std::optional<FileLock> lock = takeLock(m_filePath);
    if (!lock)
        return SaveResult::locked;
    const std::optional<QByteArray> before = textOf(m_filePath);
    if (!before)
        return SaveResult::failed;
    QHash<QString, QString> texts;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        texts.insert(value.key(), value->toString());
    const QByteArray after = IniText::withValues(*before, texts);
    const bool isStored =
        after == *before || (after.size() <= IniText::maximumSize && target().replace(after));
    return isStored ? SaveResult::saved : SaveResult::failed;
}

QString SettingsFile::failureReason() const {
    if (const QString fault = pathFault(m_filePath); !fault.isEmpty())
        return fault;
    if (QStorageInfo(QFileInfo(m_filePath).path()).bytesAvailable() == 0)
        return QStringLiteral("the disk is full");
    if (!takeLock(m_filePath))
        return QStringLiteral("another program keeps %1 locked").arg(m_filePath);
    return QStringLiteral("%1 cannot be written").arg(m_filePath);
}

AtomicFile& SettingsFile::target() {
    // The link may have changed.
    if (const QString path = resolveLinks(m_filePath); !m_target || path != m_targetPath) {
        m_target = std::make_unique<AtomicFile>(path);
        m_targetPath = path;
    }
    return *m_target;
}

} // namespace orvelle
