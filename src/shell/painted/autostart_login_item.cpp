#include "shell/painted/autostart_login_item.h"

#include "shell/desktop.h"
#include "shell/painted/autostart_entry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace orvelle {
namespace {

/// A larger file is no desktop entry.
constexpr qint64 maximumSize = qint64{64} << 10;

QString entryIn(const QString& folder) {
    return folder + QStringLiteral("/orvelle.desktop");
}

/// Whether something stands there, be it a link that leads nowhere.
bool isPresent(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

std::optional<AutostartEntry> readEntry(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > maximumSize) // opening a pipe could wait for ever
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return parseAutostart(file.read(maximumSize));
}

/// A name without a folder is looked for in `$PATH`, as desktops do.
bool canStart(const QString& program) {
    if (QDir::isAbsolutePath(program))
        return QFileInfo(program).isFile() && QFileInfo(program).isExecutable();
    return !QStandardPaths::findExecutable(program).isEmpty();
}

bool isStarted(const AutostartEntry& entry, const QStringList& desktopNames) {
    return isStartedBy(entry, desktopNames) && canStart(entry.program) &&
           (entry.tryProgram.isEmpty() || canStart(entry.tryProgram));
}

QStringList splitVariable(const char* name, const QString& otherwise) {
    const QString value = qEnvironmentVariable(name);
    return (value.isEmpty() ? otherwise : value).split(u':', Qt::SkipEmptyParts);
}

} // namespace

AutostartPlaces AutostartPlaces::present() {
    AutostartPlaces places;
    places.userFolder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                        QStringLiteral("/autostart");
    for (const QString& folder : splitVariable("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg"))) {
        if (QDir::isAbsolutePath(folder))
            places.systemFolders.append(folder + QStringLiteral("/autostart"));
    }
    places.desktopNames = splitVariable("XDG_CURRENT_DESKTOP", {});
    places.programPath = QCoreApplication::applicationFilePath();
    return places;
}

AutostartLoginItem::AutostartLoginItem(AutostartPlaces places)
    : m_places(std::move(places)) {}

bool AutostartLoginItem::isEnabled() const {
    const std::optional<AutostartEntry> entry = readEntry(effectiveFile());
    return entry && isStarted(*entry, m_places.desktopNames);
}

bool AutostartLoginItem::setEnabled(bool enabled) {
    if (enabled)
        return writeUserFile(autostartText(m_places.programPath)) && isEnabled();
    if (isPresent(userFile()) && !QFile::remove(userFile()))
        return false;
    return !isEnabledForAll() || writeUserFile(hiddenAutostartText());
}

void AutostartLoginItem::repair() {
    const std::optional<AutostartEntry> entry = readEntry(userFile());
    const bool isWanted = entry && isStartedBy(*entry, m_places.desktopNames);
    if (isWanted && !isStarted(*entry, m_places.desktopNames) && canStart(m_places.programPath))
        static_cast<void>(
            writeUserFile(autostartText(m_places.programPath))); // it stays off where this fails
}

QString AutostartLoginItem::userFile() const {
    return entryIn(m_places.userFolder);
}

QString AutostartLoginItem::effectiveFile() const {
    for (const QString& folder : QStringList(m_places.userFolder) + m_places.systemFolders) {
        if (isPresent(entryIn(folder)))
            return entryIn(folder);
    }
    return {};
}

bool AutostartLoginItem::isEnabledForAll() const {
    for (const QString& folder : m_places.systemFolders) {
        if (const std::optional<AutostartEntry> entry = readEntry(entryIn(folder)))
            return isStarted(*entry, m_places.desktopNames);
    }
    return false;
}

bool AutostartLoginItem::writeUserFile(const QByteArray& text) const {
    const QFileInfo present(userFile());
    if (present.isSymLink() && !present.exists()) // would be followed to where nothing can be written
        QFile::remove(userFile());
    if (!QDir().mkpath(m_places.userFolder))
        return false;
    QSaveFile file(userFile());
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return std::make_unique<AutostartLoginItem>(AutostartPlaces::present());
}

} // namespace orvelle
