#include "bytes.h"
#include "parsers.h"
#include "require.h"
#include "settings/ini_text.h"
#include "settings/settings_store.h"
#include "shell/painted/window_frame.h"
#include "support/kept_lines.h"
#include "theme/colors.h"

namespace orvelle::fuzz {
namespace {

const QString colorKey = QStringLiteral("customCPUColorHex");
const QString intervalKey = QStringLiteral("updateInterval");
const QString switchKey = QStringLiteral("showCPU");
const QString themeKey = QStringLiteral("selectedThemeId");

template <class Value>
void checkSetting(const QVariant& stored) {
    const std::optional<Value> value = parseSetting<Value>(stored);
    if (!value)
        return;
    require(isLegalSetting(*value), "only a legal value is taken");
    const QVariant form = storedForm(*value);
    require(parseSetting<Value>(form) == value, "a value is the same after it has been stored");
    const QByteArray file = IniText::withValues({}, {{themeKey, form.toString()}});
    require(parseSetting<Value>(QVariant(IniText::values(file, {themeKey}).value(themeKey))) == value,
            "a value is the same after it has been in a file");
}

QVariant takeStored(Bytes& bytes) {
    switch (bytes.below(10)) {
    case 0:
        return bytes.number<int>();
    case 1:
        return bytes.number<uint>();
    case 2:
        return bytes.number<qlonglong>();
    case 3:
        return bytes.number<qulonglong>();
    case 4:
        return bytes.number<float>();
    case 5:
        return bytes.number<double>();
    case 6:
        return bytes.below(2) == 1;
    case 7:
        return bytes.rest().toUtf8();
    case 8:
        return QStringList{bytes.line(), bytes.rest()};
    default:
        return bytes.rest();
    }
}

QRect takeScreen(Bytes& bytes) {
    const QPoint corner(bytes.number<qint16>(), bytes.number<qint16>());
    return {corner, QSize(1 + bytes.number<quint16>(), 1 + bytes.number<quint16>())};
}

} // namespace

void fuzzSettingsFile(std::string_view text) {
    const QByteArray file(text.data(), static_cast<qsizetype>(text.size()));
    const QStringList keys{colorKey, intervalKey, switchKey, themeKey};
    const QHash<QString, QString> before = IniText::values(file, keys);
    require(IniText::withValues(file, {}) == file, "a text without a change stays as it is");

    const QHash<QString, QString> changes{
        {switchKey, QStringLiteral("false")},
        {themeKey, Bytes(text).part('\n').empty() ? QString() : Bytes(text).line()}};
    const QByteArray after = IniText::withValues(file, changes);
    const QHash<QString, QString> now = IniText::values(after, keys);
    for (const QString& key : keys) {
        const QHash<QString, QString>& expected = changes.contains(key) ? changes : before;
        require(now.contains(key) == expected.contains(key) && now.value(key) == expected.value(key),
                "a value that was stored is read, and the others stay");
    }
    require(IniText::withValues(after, changes) == after, "the same values again change nothing");
    require(keepsOtherLines(file, after, changes.keys()), "a change keeps every other line");
}

void fuzzSettingValues(std::string_view text) {
    Bytes bytes(text);
    const QVariant stored = takeStored(bytes);
    checkSetting<bool>(stored);
    checkSetting<double>(stored);
    checkSetting<QString>(stored);
    checkSetting<SettingsStore::CPUDisplayMode>(stored);
    checkSetting<GraphLineStyle>(stored);
    checkSetting<AnimationSpeed>(stored);
}

void fuzzCustomColor(std::string_view text) {
    if (const std::optional<QColor> color = hexToColor(Bytes::text(text))) {
        require(color->isValid() && color->alpha() == 255, "a colour is opaque");
        require(hexToColor(colorToHex(*color)) == color, "a colour is the same after it has been written");
    }
}

/// The first line is the remembered frame, the rest the screens of the desktop.
void fuzzWindowFrame(std::string_view text) {
    Bytes bytes(text);
    const std::optional<QRect> frame = parseFrame(bytes.line());
    if (!frame)
        return;
    require(parseFrame(frameText(*frame)) == frame, "a frame is the same after it has been written");
    QList<QRect> screens;
    while (!bytes.isEmpty() && screens.size() < 4)
        screens.append(takeScreen(bytes));
    const QSize smallest(320, 240);
    const QRect placed = frameOnScreens(*frame, screens, smallest);
    if (screens.isEmpty()) {
        require(placed == *frame, "without a screen the frame stays");
        return;
    }
    require(placed.width() >= smallest.width() && placed.height() >= smallest.height(),
            "a window keeps its smallest size");
    require(
        std::ranges::any_of(screens, [&](const QRect& screen) { return screen.contains(placed.topLeft()); }),
        "the upper left corner is on a screen");
    require(screens.size() > 1 || frameOnScreens(placed, screens, smallest).topLeft() == placed.topLeft(),
            "a frame that was placed stays where it is");
}

} // namespace orvelle::fuzz
