#include "probe/report/surroundings.h"

#include "settings/settings_store.h"

#include <QFile>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QRegularExpression>

#include <sys/utsname.h>

namespace orvelle {
namespace {

const QString anotherText = QStringLiteral("another text");

/// The values of these keys in a file of lines `KEY=value`, with quotes or without.
QJsonObject valuesIn(const QString& path, const QStringList& keys) {
    constexpr qint64 longestFile = 16384;
    QJsonObject values;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return values;
    for (const QString& line : QString::fromUtf8(file.read(longestFile)).split(QLatin1Char('\n'))) {
        const QString key = line.section(QLatin1Char('='), 0, 0);
        if (keys.contains(key))
            values.insert(key, harmlessWord(line.section(QLatin1Char('='), 1).remove(QLatin1Char('"'))));
    }
    return values;
}

QJsonValue settingValue(const QMetaProperty& property, const QVariant& value) {
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    if (value.typeId() != QMetaType::QString)
        return QJsonValue::fromVariant(value);
    static const QRegularExpression harmless(
        QRegularExpression::anchoredPattern(QStringLiteral("#[0-9A-Fa-f]{6}|[A-Za-z]{0,24}")));
    return harmless.match(value.toString()).hasMatch() ? value.toString() : anotherText;
}

} // namespace

QString harmlessWord(const QString& text) {
    // A dollar sign would also match before a line feed at the end.
    static const QRegularExpression harmless(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9.:;_+~-]{0,64}")));
    return harmless.match(text).hasMatch() ? text : anotherText;
}

QJsonObject systemSection() {
    QJsonObject section;
    utsname names = {};
    if (::uname(&names) == 0) // of which the name of the machine is private
        section = {{QStringLiteral("kernel"), harmlessWord(QString::fromLocal8Bit(names.sysname))},
                   {QStringLiteral("release"), harmlessWord(QString::fromLocal8Bit(names.release))},
                   {QStringLiteral("processor"), harmlessWord(QString::fromLocal8Bit(names.machine))}};
    section.insert(QStringLiteral("distribution"),
                   valuesIn(QStringLiteral("/etc/os-release"),
                            {QStringLiteral("ID"), QStringLiteral("VERSION_ID"), QStringLiteral("ID_LIKE")}));
    return section;
}

QJsonObject desktopSection() {
    QJsonObject section;
    for (const char* name : {"XDG_CURRENT_DESKTOP", "XDG_SESSION_DESKTOP", "XDG_SESSION_TYPE",
                             "DESKTOP_SESSION", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"}) {
        if (qEnvironmentVariableIsSet(name))
            section.insert(QLatin1StringView(name), harmlessWord(qEnvironmentVariable(name)));
    }
    // Their values may hold names of users and machines.
    for (const char* name :
         {"DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK", "I3SOCK", "HYPRLAND_INSTANCE_SIGNATURE", "WAYFIRE_SOCKET",
          "KDE_FULL_SESSION", "GNOME_SHELL_SESSION_MODE"}) {
        if (qEnvironmentVariableIsSet(name))
            section.insert(QLatin1StringView(name), QStringLiteral("is set"));
    }
    return section;
}

QJsonObject settingsSection(const SettingsStore& settings) {
    QJsonObject section;
    const QMetaObject& type = *settings.metaObject();
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        if (property.isWritable()) // the others are no settings
            section.insert(QString::fromLatin1(property.name()),
                           settingValue(property, property.read(&settings)));
    }
    return section;
}

} // namespace orvelle
