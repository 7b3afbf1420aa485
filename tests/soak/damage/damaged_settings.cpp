#include "damaged_settings.h"

#include "damaged_tree.h"
#include "finding.h"
#include "settings/ini_text.h"
#include "settings/settings_store.h"
#include "support/kept_lines.h"

#include <QFile>
#include <QMetaProperty>
#include <QStringEncoder>

#include <array>
#include <fstream>

namespace orvelle::soak {
namespace {

namespace fs = std::filesystem;

constexpr std::array values{"true",       "no",         "2.5",         "86400",       "1e-300",
                            "nan",        "barChart",   "neon",        "midnight",    "#12ab34",
                            "",           "\"a;b\"",    "\"a\\x20b\"", "a,b",         "@@x",
                            "@Size(1 2)", "\"open",     "\\",          "\xC3\xA9",    "\xFF",
                            "true ; why", "smooth = x", "[General]",   "\"\\\"\\n\"", "%00"};
constexpr std::array sections{"[General]", "[general] x", "[Other]", "[%General]", "[", "[]", "; [General]"};

std::vector<QMetaProperty> settingsProperties() {
    std::vector<QMetaProperty> properties;
    const QMetaObject& type = SettingsStore::staticMetaObject;
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
        if (type.property(index).isWritable())
            properties.push_back(type.property(index));
    }
    return properties;
}

std::string someText(Dice& dice) {
    const std::vector<QMetaProperty> properties = settingsProperties();
    const std::string lineEnd = dice.oneIn(3) ? "\r\n" : "\n";
    std::string text = dice.oneIn(4) ? "" : "[General]" + lineEnd;
    for (std::size_t left = dice.below(60); left > 0; --left) {
        if (dice.oneIn(10))
            text += dice.pick(sections);
        else if (dice.oneIn(6))
            text += "unknown" + std::to_string(dice.below(9)) + " = " + dice.pick(values);
        else
            text += std::string(dice.pick(properties).name()) + "=" + dice.pick(values);
        text += lineEnd;
    }
    if (dice.oneIn(20))
        text += std::string(dice.below(std::size_t{1100} << 10), dice.oneIn(2) ? ';' : '\n');
    return dice.oneIn(2) ? damagedText(std::move(text), dice) : text;
}

std::string encoded(const std::string& text, Dice& dice) {
    if (dice.oneIn(10))
        return "\xEF\xBB\xBF" + text;
    if (!dice.oneIn(20))
        return text;
    const QByteArray wide = QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    return wide.toStdString();
}

/// Puts the file at `path`, or what stands there instead.
void place(const fs::path& path, const std::string& text, Dice& dice) {
    const fs::path other = path.parent_path() / "other.conf";
    switch (dice.below(24)) {
    case 0:
        fs::create_directory(path);
        return;
    case 1:
        fs::create_symlink(path.filename(), path);
        return;
    case 2:
        fs::create_symlink("nowhere/at/all", path);
        return;
    case 3:
        return; // no file
    case 4:
        std::ofstream(other, std::ios::binary) << text;
        fs::create_symlink(other.filename(), path);
        return;
    default:
        std::ofstream(path, std::ios::binary) << text;
    }
}

QByteArray textAt(const fs::path& path) {
    std::error_code ignored; // of a link to itself
    QFile file(QString::fromStdString(path.string()));
    return fs::is_regular_file(path, ignored) && file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                                : QByteArray();
}

QVariantMap allValues(const SettingsStore& store) {
    QVariantMap all;
    for (const QMetaProperty& property : settingsProperties())
        all.insert(QString::fromLatin1(property.name()), property.read(&store));
    return all;
}

/// Another legal value than `value`.
QVariant anotherValue(const QMetaProperty& property, const QVariant& value, Dice& dice) {
    if (property.isEnumType()) {
        const QMetaEnum cases = property.enumerator();
        return cases.value(static_cast<int>(dice.below(static_cast<std::size_t>(cases.keyCount()))));
    }
    switch (property.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Double:
        return 0.1 + static_cast<double>(dice.below(1'000'000)) / 17;
    default:
        std::string text = dice.pick(values);
        return QString::fromStdString(damagedText(std::move(text), dice)).left(64);
    }
}

/// Changes a setting. Whether it could be stored, the file has all that it had.
void changeOne(SettingsStore& store, const fs::path& path, Dice& dice) {
    const std::vector<QMetaProperty> properties = settingsProperties();
    const QMetaProperty& property = dice.pick(properties);
    const QString key = QString::fromLatin1(property.name());
    const QByteArray before = textAt(path);
    QVariantMap expected = allValues(store);
    property.write(&store, anotherValue(property, expected.value(key), dice));
    expected.insert(key, property.read(&store));
    require(allValues(store) == expected, "a change leaves the other settings alone", key.toStdString());
    const QByteArray after = textAt(path);
    require(keepsOtherLines(before, after, {key}), "a change keeps every other line", key.toStdString());
    require(store.saveError().isEmpty() || after == before, "what could not be stored changes nothing");
    if (!store.saveError().isEmpty())
        return;
    const SettingsStore again(QString::fromStdString(path.string()));
    require(allValues(again) == expected, "what was stored is read again", key.toStdString());
}

} // namespace

void tryDamagedSettings(const fs::path& folder, Dice& dice) {
    const fs::path path = folder / "orvelle.conf";
    place(path, encoded(someText(dice), dice), dice);
    SettingsStore store(QString::fromStdString(path.string()));
    require(isLegalSetting(store.updateInterval()), "an interval is legal");
    for (std::size_t left = 1 + dice.below(4); left > 0; --left)
        changeOne(store, path, dice);
}

} // namespace orvelle::soak
