#include "settings/settings_store.h"
#include "support/temporary_settings.h"
#include "theme/app_theme.h"
#include "theme/colors.h"

#include <QMetaProperty>

#include <algorithm>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

/// A row of the table of settings in docs/settings.md.
struct SettingsRow {
    QString key;
    QString values;
    QString defaultValue;
};

/// The texts between back quotes, which are keys and values.
QStringList codeSpans(const QString& cell) {
    const QStringList parts = cell.split(u'`');
    QStringList spans;
    for (qsizetype index = 1; index < parts.size(); index += 2)
        spans.append(parts.at(index));
    return spans;
}

QList<SettingsRow> settingsRows() {
    QFile page(QStringLiteral(ORVELLE_SETTINGS_PAGE));
    if (!page.open(QIODevice::ReadOnly))
        return {};
    QList<SettingsRow> rows;
    bool isInTable = false;
    for (const QString& line : QString::fromUtf8(page.readAll()).split(u'\n')) {
        if (line == "| Key | Values | Default | What it does |"_L1)
            isInTable = true;
        else if (!line.startsWith(u'|'))
            isInTable = false;
        else if (const QStringList cells = line.split(u'|'); isInTable && !cells.at(1).contains("---"_L1))
            rows.append({codeSpans(cells.at(1)).join(u' '), cells.value(2), cells.value(3)});
    }
    return rows;
}

QList<QMetaProperty> storedProperties() {
    const QMetaObject& meta = SettingsStore::staticMetaObject;
    QList<QMetaProperty> properties;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        if (meta.property(index).isWritable())
            properties.append(meta.property(index));
    }
    return properties;
}

QString keyOf(const QMetaProperty& property) {
    return QString::fromLatin1(property.name());
}

/// The row of a property, empty if it is missing.
SettingsRow rowOf(const QMetaProperty& property) {
    static const QList<SettingsRow> rows = settingsRows();
    const auto row = std::ranges::find(rows, keyOf(property), &SettingsRow::key);
    return row == rows.end() ? SettingsRow() : *row;
}

/// All values of a property that has only a few, else an empty list.
QStringList allValues(const QMetaProperty& property) {
    if (property.metaType() == QMetaType::fromType<bool>())
        return {u"true"_s, u"false"_s};
    QStringList names;
    for (int index = 0; property.isEnumType() && index < property.enumerator().keyCount(); ++index)
        names.append(QString::fromLatin1(property.enumerator().key(index)));
    if (keyOf(property) == "selectedThemeId"_L1) {
        for (const AppTheme& theme : builtInThemes())
            names.append(theme.id);
    }
    return names;
}

TEST(SettingsPageTest, HasARowForEachSettingInTheStoresOrder) {
    QStringList keys;
    for (const QMetaProperty& property : storedProperties())
        keys.append(keyOf(property));
    QStringList listed;
    for (const SettingsRow& row : settingsRows())
        listed.append(row.key);
    EXPECT_EQ(listed, keys) << listed.join(u' ').toStdString();
}

TEST(SettingsPageTest, StatesTheDefaultOfEverySetting) {
    const TemporarySettings settings;
    const SettingsStore store(settings.path());
    for (const QMetaProperty& property : storedProperties()) {
        const QString value = property.read(&store).toString();
        const QString expected = value.isEmpty() ? u"empty"_s : u'`' + value + u'`';
        EXPECT_EQ(rowOf(property).defaultValue.trimmed(), expected) << property.name();
    }
}

TEST(SettingsPageTest, ListsEveryValueOfASwitchAChoiceAndTheTheme) {
    qsizetype choices = 0;
    for (const QMetaProperty& property : storedProperties()) {
        const QStringList values = allValues(property);
        if (values.isEmpty())
            continue;
        EXPECT_EQ(codeSpans(rowOf(property).values), values) << property.name();
        ++choices;
    }
    EXPECT_EQ(choices, 25);
}

TEST(SettingsPageTest, StatesTheLimitsOfTheInterval) {
    const QMetaObject& meta = SettingsStore::staticMetaObject;
    const QStringList limits = codeSpans(rowOf(meta.property(meta.indexOfProperty("updateInterval"))).values);
    EXPECT_EQ(limits, (QStringList{u"0"_s, QString::number(maximumIntervalSeconds)}));
    EXPECT_FALSE(isLegalSetting(0.0)) << "the lower limit itself does not belong to it";
    EXPECT_TRUE(isLegalSetting(maximumIntervalSeconds));
}

TEST(SettingsPageTest, GivesAValidExampleForEachColor) {
    qsizetype colors = 0;
    for (const QMetaProperty& property : storedProperties()) {
        if (!keyOf(property).endsWith("ColorHex"_L1))
            continue;
        const QString example = codeSpans(rowOf(property).values).value(0);
        const std::optional<QColor> color = hexToColor(example);
        EXPECT_TRUE(color && colorToHex(*color) == example) << property.name();
        ++colors;
    }
    EXPECT_EQ(colors, 6);
}

} // namespace
} // namespace orvelle
