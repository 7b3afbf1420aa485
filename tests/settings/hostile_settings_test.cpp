#include "settings/ini_text.h"
#include "settings/settings_store.h"
#include "support/temporary_settings.h"

#include <QMetaEnum>
#include <QMetaProperty>

#include <cmath>
#include <random>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

QList<QByteArray> keys() {
    QList<QByteArray> names;
    const QMetaObject& meta = SettingsStore::staticMetaObject;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        if (meta.property(index).isWritable())
            names.append(meta.property(index).name());
    }
    return names;
}

/// Pieces that have broken readers of settings files before.
const QList<QByteArray>& pieces() {
    static const QList<QByteArray> values{
        "@Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)",
        "@Variant(\\0\\0\\0\\x8\\xff\\xff\\xff\\xff\\0\\0\\0\\x8\\xff\\xff\\xff\\xff)",
        "@Variant(\\0\\0\\x4\\0\\0\\0\\0\\x10QPixmap\\0)",
        "@Invalid()",
        "@ByteArray(\\xff)",
        "@Size(",
        "@",
        "@@",
        "\"",
        "\"\\",
        "\"\\x",
        "\"\\xffffffffffff\"",
        "\\",
        ", , ,",
        "nan",
        "-nan",
        "inf",
        "1e999",
        "-1",
        "0",
        "99999999999999999999999999",
        "0.0000000000000000000000000000000001",
        "[General]",
        "[",
        "[]",
        "[%General]",
        "true",
        "neon",
        "intense",
        "#GGGGGG",
        "\xFF\xFE",
        "\xED\xA0\x80",
        "\xF4\x90\x80\x80",
        "\xE2\x80",
        QByteArray("\0", 1),
        QByteArray("\0=\0\n", 4),
        "\r",
        "=",
        ";",
        "%00",
        QByteArray(4097, '\\'),
        QByteArray(4097, '"'),
        QByteArray(10000, 'A'),
        QByteArray(4097, '['),
        QByteArray(2000, '\n'),
    };
    return values;
}

class HostileText {
public:
    explicit HostileText(unsigned seed)
        : m_random(seed) {}

    QByteArray next() {
        QByteArray text = below(3) == 0 ? randomBytes() : lines();
        if (below(4) == 0)
            text.truncate(below(text.size() + 1));
        for (qsizetype flips = below(4); flips > 0 && !text.isEmpty(); --flips)
            text[below(text.size())] = static_cast<char>(below(256));
        return text;
    }

private:
    qsizetype below(qsizetype limit) {
        return limit <= 0 ? 0 : static_cast<qsizetype>(m_random() % static_cast<std::uint64_t>(limit));
    }

    template <class List>
    auto pick(const List& list) {
        return list.at(below(list.size()));
    }

    QByteArray randomBytes() {
        QByteArray bytes(below(300), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(below(256));
        return bytes;
    }

    QByteArray lines() {
        QByteArray text = below(2) == 0 ? "[General]\n" : "";
        for (qsizetype count = below(80); count > 0; --count) {
            text += below(10) == 0 ? pick(pieces()) : pick(m_keys);
            text += below(20) == 0 ? "" : "=";
            for (qsizetype parts = 1 + below(2); parts > 0; --parts)
                text += below(10) == 0 ? randomBytes() : pick(pieces());
            text += below(20) == 0 ? "" : "\n";
        }
        return text;
    }

    std::mt19937_64 m_random;
    QList<QByteArray> m_keys = keys();
};

void expectLegal(const QMetaProperty& property, const QVariant& value) {
    if (property.isEnumType()) {
        EXPECT_FALSE(value.toString().isEmpty()) << property.name();
    } else if (value.typeId() == QMetaType::Double) {
        EXPECT_TRUE(std::isfinite(value.toDouble()));
        EXPECT_GT(value.toDouble(), 0.0);
        EXPECT_LE(value.toDouble(), maximumIntervalSeconds);
    } else if (value.typeId() == QMetaType::QString) {
        EXPECT_LE(value.toString().size(), maximumTextLength) << property.name();
    } else {
        EXPECT_EQ(value.typeId(), QMetaType::Bool) << property.name();
    }
}

void expectEveryPropertyLegal(const SettingsStore& store) {
    const QMetaObject* meta = store.metaObject();
    for (int index = meta->propertyOffset(); index < meta->propertyCount(); ++index)
        expectLegal(meta->property(index), meta->property(index).read(&store));
}

TEST(HostileSettingsTest, AnyFileGivesLegalProperties) {
    HostileText hostileText(20240917);
    for (int run = 0; run < 80; ++run) {
        SCOPED_TRACE(run);
        const TemporarySettings settings;
        const QByteArray text = hostileText.next();
        settings.writeInPlace(text);
        expectEveryPropertyLegal(SettingsStore(settings.path()));
        EXPECT_EQ(settings.text(), text) << "reading must not write";
    }
}

TEST(HostileSettingsTest, ValuesCanBeStoredInAnyFile) {
    HostileText hostileText(70201);
    for (int run = 0; run < 25; ++run) {
        SCOPED_TRACE(run);
        const TemporarySettings settings;
        const QByteArray text = hostileText.next();
        settings.writeInPlace(text);
        SettingsStore store(settings.path());
        store.setUpdateInterval(run + 5.0);
        const SettingsStore again(settings.path());
        const bool isTooLarge = text.size() > IniText::maximumSize;
        EXPECT_EQ(!store.saveError().isEmpty(), isTooLarge);
        EXPECT_EQ(again.updateInterval(), isTooLarge ? 3.0 : run + 5.0);
        EXPECT_EQ(again.selectedThemeId(), store.selectedThemeId());
        EXPECT_EQ(again.graphFillStyle(), store.graphFillStyle());
    }
}

TEST(HostileSettingsTest, AChangedValueLeavesTheRestOfAnyFileAlone) {
    HostileText hostileText(86);
    const QStringList otherKeys{u"showCPU"_s, u"glowIntensity"_s, u"selectedThemeId"_s,
                                u"customCPUColorHex"_s};
    const QHash<QString, QString> values{{u"updateInterval"_s, u"4"_s}, {u"colorTheme"_s, u"a \"b\"\n"_s}};
    for (int run = 0; run < 500; ++run) {
        SCOPED_TRACE(run);
        const QByteArray before = hostileText.next();
        const QByteArray after = IniText::withValues(before, values);
        EXPECT_EQ(IniText::values(after, values.keys()), values);
        EXPECT_EQ(IniText::values(after, otherKeys), IniText::values(before, otherKeys));
        EXPECT_EQ(IniText::withValues(after, values), after);
    }
}

TEST(HostileSettingsTest, AnyPieceUnderAnyKeyGivesALegalValue) {
    for (const QByteArray& piece : pieces()) {
        const TemporarySettings settings;
        QByteArray text = "[General]\n";
        for (const QByteArray& key : keys())
            text += key + '=' + piece + '\n';
        settings.writeInPlace(text.left(IniText::maximumSize));
        expectEveryPropertyLegal(SettingsStore(settings.path()));
    }
}

TEST(HostileSettingsTest, AnOversizedFileGivesTheDefaultsAndIsLeftAlone) {
    const TemporarySettings settings;
    const QByteArray text = "showDisk=true\n" + QByteArray(IniText::maximumSize, 'x');
    settings.writeInPlace(text);
    SettingsStore store(settings.path());
    EXPECT_FALSE(store.showDisk());
    store.setUseFahrenheit(true);
    EXPECT_TRUE(store.useFahrenheit());
    EXPECT_TRUE(store.saveError().endsWith(u" is too large for a settings file"_s));
    EXPECT_EQ(settings.text(), text);
}

TEST(HostileSettingsTest, AMegabyteOfLinesIsRead) {
    const TemporarySettings settings;
    settings.writeInPlace(QByteArray("showDisk=true\n").repeated(IniText::maximumSize / 14));
    EXPECT_TRUE(SettingsStore(settings.path()).showDisk());
    settings.writeInPlace(QByteArray(IniText::maximumSize, '\n'));
    EXPECT_FALSE(SettingsStore(settings.path()).showDisk());
}

} // namespace
} // namespace orvelle
