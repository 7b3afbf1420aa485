#include "settings/plain_ini.h"

#include <QIODevice>

#include <algorithm>
#include <optional>

namespace orvelle::PlainIni {
namespace {

/// Where what holds no value is kept. No key in a file can be named so.
constexpr QLatin1StringView linesWithoutValue("=");
constexpr QLatin1StringView otherSections("[");

bool isHexDigit(QChar character) {
    return QStringView(u"0123456789abcdefABCDEF").contains(character);
}

/// Takes the digits of a \x escape from the front.
std::optional<QChar> takeCodeUnit(QStringView& text) {
    const auto* end = std::ranges::find_if_not(text, isHexDigit);
    bool isCodeUnit = false;
    const ushort unit = text.first(end - text.begin()).toUShort(&isCodeUnit, 16);
    text = text.sliced(end - text.begin());
    return isCodeUnit ? std::optional(QChar(unit)) : std::nullopt;
}

/// Takes a character, which may be an escape, from the front.
std::optional<QChar> takeCharacter(QStringView& text) {
    constexpr QStringView letters(u"nrt\\\"");
    constexpr QStringView characters(u"\n\r\t\\\"");
    const bool isEscape = text.startsWith(u'\\') && text.size() > 1;
    const QChar letter = text.at(isEscape ? 1 : 0);
    text = text.sliced(isEscape ? 2 : 1);
    if (!isEscape)
        return letter == u'\\' ? std::nullopt : std::optional(letter);
    if (letter == u'x')
        return takeCodeUnit(text);
    const qsizetype index = letters.indexOf(letter);
    return index < 0 ? std::nullopt : std::optional(characters.at(index));
}

/// The text in quotes or in front of a comment; nothing where something else follows.
std::optional<QString> readText(QStringView value) {
    const bool isQuoted = value.startsWith(u'"');
    const QStringView ends = isQuoted ? u"\"" : u"\",;";
    QStringView rest = value.sliced(isQuoted ? 1 : 0);
    QString text;
    while (!rest.isEmpty() && !ends.contains(rest.front())) {
        const std::optional<QChar> character = takeCharacter(rest);
        if (!character)
            return std::nullopt;
        text.append(*character);
    }
    if (isQuoted && rest.isEmpty())
        return std::nullopt;
    if (!isQuoted && !rest.isEmpty())
        text = text.trimmed();
    rest = rest.sliced(isQuoted ? 1 : 0).trimmed();
    return rest.isEmpty() || rest.front() == u';' ? std::optional(text) : std::nullopt;
}

QVariant decoded(QByteArrayView value) {
    const QString valueText = QString::fromUtf8(value);
    const std::optional<QString> text = readText(valueText);
    if (!text || valueText.toUtf8() != value)
        return value.toByteArray();
    // QSettings writes every value that is not a text as `@Type(...)` and doubles the sign in a text.
    if (!text->startsWith(u'@'))
        return *text;
    return text->startsWith(QLatin1StringView("@@")) ? QVariant(text->sliced(1)) : value.toByteArray();
}

bool needsNoQuotes(const QString& text) {
    return std::ranges::all_of(text, [](QChar character) {
        return character.unicode() < 0x80 &&
               (character.isLetterOrNumber() || QStringView(u"#+-._").contains(character));
    });
}

QString quoted(const QString& text) {
    QString result = QStringLiteral("\"");
    bool isBehindDigits = false; // of an escape, which has no end but the first character that is no digit
    for (const QChar character : text) {
        const ushort unit = character.unicode();
        isBehindDigits = unit < 0x20 || unit == 0x7F || character.isSurrogate() ||
                         (isBehindDigits && isHexDigit(character));
        if (isBehindDigits)
            result.append(QStringLiteral("\\x%1").arg(unit, 4, 16, QLatin1Char('0')));
        else if (unit == u'"' || unit == u'\\')
            result.append(u'\\').append(character);
        else
            result.append(character);
    }
    return result.append(u'"');
}

QByteArray encoded(const QVariant& value) {
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray();
    QString text = value.toString();
    if (text.startsWith(u'@'))
        text.prepend(u'@');
    return (needsNoQuotes(text) ? text : quoted(text)).toUtf8();
}

/// What follows the bracket, a comment say, does not matter.
bool isGeneralHeader(QByteArrayView line) {
    const qsizetype end = line.indexOf(']');
    return end > 0 && line.sliced(1, end - 1).trimmed().compare("General", Qt::CaseInsensitive) == 0;
}

/// The key in a line, empty where it holds none.
QByteArrayView keyOf(QByteArrayView line) {
    const bool isComment = line.startsWith(';') || line.startsWith('#');
    return line.first(isComment ? 0 : std::max<qsizetype>(line.indexOf('='), 0)).trimmed();
}

} // namespace

bool read(QIODevice& device, QSettings::SettingsMap& values) {
    const qint64 size = device.size();
    const QByteArray text = device.read(std::min(size, maximumSize));
    if (text.size() != size)
        return false;
    QByteArray withoutValue;
    QByteArray sections;
    bool isGeneral = true;
    // No list of lines is built: a hostile file may have a million.
    for (qsizetype begin = text.startsWith("\xEF\xBB\xBF") ? 3 : 0, end = 0; begin < size; begin = end + 1) {
        end = text.indexOf('\n', begin);
        if (end < 0)
            end = text.size();
        const QByteArrayView wholeLine = QByteArrayView(text).sliced(begin, end - begin);
        const QByteArrayView line = wholeLine.trimmed();
        const QByteArrayView key = keyOf(line);
        if (line.startsWith('['))
            isGeneral = isGeneralHeader(line);
        if (!isGeneral)
            sections.append(wholeLine).append('\n');
        else if (line.startsWith('[') || line.isEmpty())
            continue;
        else if (key.isEmpty())
            withoutValue.append(line).append('\n');
        else
            values.insert(QString::fromLatin1(key), decoded(line.sliced(line.indexOf('=') + 1).trimmed()));
    }
    values.insert(linesWithoutValue, withoutValue);
    values.insert(otherSections, sections);
    return true;
}

bool write(QIODevice& device, const QSettings::SettingsMap& values) {
    QByteArray text = "[General]\n" + values.value(linesWithoutValue).toByteArray();
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (value.key() != linesWithoutValue && value.key() != otherSections)
            text += value.key().toLatin1() + '=' + encoded(*value) + '\n';
    }
    if (const QByteArray sections = values.value(otherSections).toByteArray(); !sections.isEmpty())
        text += '\n' + sections;
    return text.size() <= maximumSize && device.write(text) == text.size();
}

QSettings::Format format() {
    static const QSettings::Format registered =
        QSettings::registerFormat(QStringLiteral("conf"), &read, &write);
    return registered;
}

} // namespace orvelle::PlainIni
