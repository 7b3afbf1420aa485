#include "settings/abandoned_replacements.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>

#include <chrono>
#include <unistd.h>

namespace orvelle {
namespace {

/// Far longer than a file is being written.
constexpr std::chrono::seconds abandonedAge{60};

/// Whether the name ends in the six letters that QSaveFile chooses at random. A name that a person gave to a
/// copy, such as "orvelle.conf.backup", is all capitals or has none but the first; so is one in twenty of the
/// random ones, which stays.
bool hasRandomSuffix(const QString& fileName) {
    static const QRegularExpression suffix(
        QStringLiteral("\\.(?=[A-Za-z]*[a-z])[A-Za-z](?=[A-Za-z]*[A-Z])[A-Za-z]{5}$"));
    return suffix.match(fileName).hasMatch();
}

/// What this user's programs have not touched for a while, of the files that replace this one when they are
/// written.
QFileInfoList abandonedReplacements(const QString& filePath) {
    const QFileInfo file(filePath);
    const QDateTime youngest = QDateTime::currentDateTimeUtc().addSecs(-abandonedAge.count());
    QFileInfoList found =
        file.dir().entryInfoList({file.fileName() + QStringLiteral(".??????")},
                                 QDir::Files | QDir::NoSymLinks | QDir::Hidden | QDir::CaseSensitive);
    found.removeIf([&](const QFileInfo& other) {
        return !hasRandomSuffix(other.fileName()) || other.lastModified() > youngest ||
               other.ownerId() != ::geteuid();
    });
    return found;
}

} // namespace

void removeAbandonedReplacements(const QString& filePath, const QString& lockPath) {
    if (abandonedReplacements(filePath).isEmpty())
        return;
    QLockFile lock(lockPath);
    if (!lock.tryLock())
        return; // the next write will do
    for (const QFileInfo& abandoned : abandonedReplacements(filePath))
        QFile::remove(abandoned.filePath());
}

} // namespace orvelle
