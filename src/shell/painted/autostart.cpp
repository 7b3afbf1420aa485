#include "shell/painted/autostart.h"

#include "settings/shared_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStringDecoder>

#include <algorithm>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

/// Inside the quotes of an argument these need a backslash.
bool needsBackslash(QChar character) {
    return character == u'"' || character == u'`' || character == u'$' || character == u'\\';
}

/// A value of the type string: a backslash starts an escape.
QString textValue(const QString& raw) {
    QString value;
    for (qsizetype index = 0; index < raw.size(); ++index) {
        if (raw[index] != u'\\' || index + 1 == raw.size()) {
            value += raw[index];
            continue;
        }
        const QChar escaped = raw[++index];
        if (escaped == u's')
            value += u' ';
        else if (escaped == u'n')
            value += u'\n';
        else if (escaped == u't')
            value += u'\t';
        else if (escaped == u'r')
            value += u'\r';
        else
            value += escaped;
    }
    return value;
}

/// The raw value of the type string for a text. Blanks at its end would not be read as part of it.
QString escapedText(QString text) {
    text.replace(u"\\"_s, u"\\\\"_s)
        .replace(u"\n"_s, u"\\n"_s)
        .replace(u"\t"_s, u"\\t"_s)
        .replace(u"\r"_s, u"\\r"_s);
    return text.endsWith(u' ') ? text.chopped(1) + u"\\s"_s : text;
}

/// Without the blanks at both ends. Other white space of Unicode belongs to a value.
QStringView withoutBlanks(QStringView text) {
    const auto isBlank = [](QChar character) { return QStringView(u" \t\r").contains(character); };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

bool isTrue(const QString& raw) {
    return raw == u"true"_s || raw == u"1"_s; // the second is the older spelling
}

QStringList listValue(const QString& raw) {
    return raw.split(u';', Qt::SkipEmptyParts);
}

/// The keys and raw values of the group `[Desktop Entry]`; nothing without the group.
std::optional<QHash<QString, QString>> desktopEntryGroup(const QString& text) {
    std::optional<QHash<QString, QString>> values;
    for (const QStringView rawLine : QStringView(text).split(u'\n')) {
        const QStringView line = withoutBlanks(rawLine);
        if (line.startsWith(u'[')) {
            if (values)
                return values;
            if (line == u"[Desktop Entry]")
                values.emplace();
        } else if (const qsizetype equals = line.indexOf(u'='); values && equals > 0 && line[0] != u'#') {
            const QString key = withoutBlanks(line.first(equals)).toString();
            if (!values->contains(key))
                values->insert(key, withoutBlanks(line.sliced(equals + 1)).toString());
        }
    }
    return values;
}

} // namespace

QString execArgument(const QString& programPath) {
    QString argument = u"\""_s;
    for (const QChar character : programPath) {
        if (needsBackslash(character))
            argument += u'\\';
        argument += character;
        if (character == u'%') // else the start of a field code
            argument += u'%';
    }
    argument += u'"';
    return escapedText(argument);
}

QString execProgram(const QString& exec) {
    const QString text = exec.trimmed();
    QString program;
    bool isQuoted = false;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar character = text[index];
        const bool isLast = index + 1 == text.size();
        const bool escapesNext =
            !isLast && ((isQuoted && character == u'\\') || (character == u'%' && text[index + 1] == u'%'));
        if (character == u'"')
            isQuoted = !isQuoted;
        else if (escapesNext)
            program += text[++index];
        else if (!isQuoted && character.isSpace())
            return program;
        else
            program += character;
    }
    return isQuoted ? QString() : program;
}

QByteArray autostartText(const QString& programPath) {
    return u"[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Orvelle\n"
           "Comment=A system monitor in the menu bar\n"
           "Exec=%1\n"
           "TryExec=%2\n"
           "Icon=orvelle\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n"_s.arg(execArgument(programPath), escapedText(programPath))
               .toUtf8();
}

QByteArray hiddenAutostartText() {
    return "[Desktop Entry]\nType=Application\nName=Orvelle\nHidden=true\n";
}

std::optional<AutostartEntry> parseAutostart(const QByteArray& text) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const auto values = desktopEntryGroup(decoder(text));
    if (!values || values->value(u"Type"_s) != u"Application"_s)
        return std::nullopt;
    return AutostartEntry{.program = execProgram(textValue(values->value(u"Exec"_s))),
                          .tryProgram = textValue(values->value(u"TryExec"_s)),
                          .isHidden = isTrue(values->value(u"Hidden"_s)),
                          .isSwitchedOff = values->contains(u"X-GNOME-Autostart-enabled"_s) &&
                                           !isTrue(values->value(u"X-GNOME-Autostart-enabled"_s)),
                          .onlyShowIn = listValue(values->value(u"OnlyShowIn"_s)),
                          .notShowIn = listValue(values->value(u"NotShowIn"_s))};
}

bool isStartedBy(const AutostartEntry& entry, const QStringList& desktopNames) {
    if (entry.isHidden || entry.isSwitchedOff || entry.program.isEmpty())
        return false;
    const auto names = [&](const QStringList& list) {
        return std::ranges::any_of(desktopNames, [&](const QString& name) { return list.contains(name); });
    };
    return (entry.onlyShowIn.isEmpty() || names(entry.onlyShowIn)) && !names(entry.notShowIn);
}

namespace {

/// A larger file is no desktop entry.
constexpr qint64 maximumSize = qint64{64} << 10;

QString entryIn(const QString& folder) {
    return folder + QStringLiteral("/orvelle.desktop");
}

/// Whether the path exists, even as a broken link.
bool isPresent(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

std::optional<AutostartEntry> readEntry(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > maximumSize) // opening a pipe could block
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

LoginItemState AutostartLoginItem::state() const {
    const std::optional<AutostartEntry> entry = readEntry(effectiveFile());
    return entry && isStarted(*entry, m_places.desktopNames) ? LoginItemState::on : LoginItemState::off;
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
    if (present.isSymLink() && !present.exists()) // writing would follow the broken link
        QFile::remove(userFile());
    if (!makePrivateFolders(m_places.userFolder))
        return false;
    const bool isNew = !QFileInfo::exists(userFile());
    QSaveFile file(userFile());
    // Who may write to it may start programs at the user's login.
    return file.open(QIODevice::WriteOnly) &&
           (!isNew || file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) &&
           file.write(text) == text.size() && file.commit();
}

} // namespace orvelle
