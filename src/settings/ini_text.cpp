#include "settings/ini_text.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace orvelle::IniText {
namespace {

bool isHexDigit(QChar character) {
    return QStringView(u"0123456789abcdefABCDEF").contains(character);
}

/// Consumes the digits of a \x escape.
std::optional<QChar> takeCodeUnit(QStringView& text) {
    const auto* end = std::ranges::find_if_not(text, isHexDigit);
    bool isCodeUnit = false;
    const ushort unit = text.first(end - text.begin()).toUShort(&isCodeUnit, 16);
    text = text.sliced(end - text.begin());
    return isCodeUnit ? std::optional(QChar(unit)) : std::nullopt;
}

/// Consumes one character or escape.
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

/// The text of a value with or without quotes. Nothing for a list, an unknown escape or a misplaced quote.
std::optional<QString> readText(QStringView value) {
    const bool isQuoted = value.startsWith(u'"');
    const QStringView ends = isQuoted ? u"\"" : u"\",";
    QStringView rest = value.sliced(isQuoted ? 1 : 0);
    QString text;
    while (!rest.isEmpty() && !ends.contains(rest.front())) {
        const std::optional<QChar> character = takeCharacter(rest);
        if (!character)
            return std::nullopt;
        text.append(*character);
    }
    return rest == QStringView(isQuoted ? u"\"" : u"") ? std::optional(text) : std::nullopt;
}

std::optional<QString> decoded(QByteArrayView value) {
    const QString valueText = QString::fromUtf8(value);
    if (valueText.toUtf8() != value)
        return std::nullopt;
    const std::optional<QString> text = readText(valueText);
    // QSettings writes every value that is not a text as `@Type(...)` and doubles the sign in a text.
    if (!text || !text->startsWith(u'@'))
        return text;
    return text->startsWith(QLatin1StringView("@@")) ? std::optional(text->sliced(1)) : std::nullopt;
}

bool needsNoQuotes(const QString& text) {
    return std::ranges::all_of(text, [](QChar character) {
        return character.unicode() < 0x80 &&
               (character.isLetterOrNumber() || QStringView(u"#+-._").contains(character));
    });
}

QString quoted(const QString& text) {
    QString result = QStringLiteral("\"");
    bool isBehindDigits = false; // of an escape, which only a character that is no digit ends
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

QByteArray encoded(QString text) {
    if (text.startsWith(u'@'))
        text.prepend(u'@');
    return (needsNoQuotes(text) ? text : quoted(text)).toUtf8();
}

/// Whether the line is `[General]`; text behind the bracket is ignored.
bool isGeneralHeader(QByteArrayView line) {
    const qsizetype end = line.indexOf(']');
    return end > 0 && line.sliced(1, end - 1).trimmed().compare("General", Qt::CaseInsensitive) == 0;
}

/// The key of a line, or nothing.
QByteArrayView keyOf(QByteArrayView line) {
    const bool isComment = line.startsWith(';') || line.startsWith('#');
    return line.first(isComment ? 0 : std::max<qsizetype>(line.indexOf('='), 0)).trimmed();
}

/// Strips the comment from the text behind an equals sign. A semicolon within quotes begins none.
QByteArrayView withoutComment(QByteArrayView value) {
    qsizetype end = value.startsWith('"') ? 1 : 0;
    if (end == 1) {
        while (end < value.size() && value[end] != '"')
            end += value[end] == '\\' ? 2 : 1;
    }
    const qsizetype comment = end < value.size() ? value.indexOf(';', end) : -1;
    return (comment < 0 ? value : value.first(comment)).trimmed();
}

/// A line without the blanks at its ends.
struct Line {
    QByteArrayView text;
    qsizetype end;  ///< offset behind its line feed
    bool isGeneral; ///< in the general section, or its header
};

/// Builds no list of lines: a hostile file may have a million.
template <class Visitor>
void visitLines(const QByteArray& text, Visitor visit) {
    bool isGeneral = true;
    for (qsizetype begin = text.startsWith("\xEF\xBB\xBF") ? 3 : 0, end = 0; begin < text.size();
         begin = end) {
        const qsizetype lineFeed = text.indexOf('\n', begin);
        end = lineFeed < 0 ? text.size() : lineFeed + 1;
        const QByteArrayView line = QByteArrayView(text).sliced(begin, end - begin).trimmed();
        if (line.startsWith('['))
            isGeneral = isGeneralHeader(line);
        visit(Line{line, end, isGeneral});
    }
}

/// The range of a value in the text.
struct Range {
    qsizetype begin;
    qsizetype length;
};

/// The wanted keys of a text, and where new ones belong.
struct Findings {
    std::map<QString, Range> values; ///< the last of equal keys
    qsizetype end = -1;              ///< behind the last key or header of a general section
    bool hasSections = false;
};

Findings find(const QByteArray& text, const QStringList& keys) {
    Findings found;
    visitLines(text, [&](const Line& line) {
        const bool isHeader = line.text.startsWith('[');
        found.hasSections |= isHeader;
        const QByteArrayView key = isHeader ? QByteArrayView() : keyOf(line.text);
        if (!line.isGeneral || (!isHeader && key.isEmpty()))
            return;
        found.end = line.end;
        const QString name = QString::fromLatin1(key);
        if (!keys.contains(name))
            return;
        const QByteArrayView behind = line.text.sliced(line.text.indexOf('=') + 1).trimmed();
        const QByteArrayView value = withoutComment(behind);
        // A missing value begins right behind the sign.
        const char* begin = behind.isEmpty() ? line.text.data() + line.text.size() : value.data();
        found.values[name] = {begin - text.constData(), value.size()};
    });
    return found;
}

QByteArray lineEndOf(const QByteArray& text) {
    const qsizetype lineFeed = text.indexOf('\n');
    return lineFeed > 0 && text[lineFeed - 1] == '\r' ? "\r\n" : "\n";
}

/// Adds lines for new keys.
void add(QByteArray& text, const QByteArray& lines, const Findings& found, const QByteArray& lineEnd) {
    if (found.end >= 0) {
        const bool isOpen = text[found.end - 1] != '\n';
        text.insert(found.end, isOpen ? lineEnd + lines : lines);
        return;
    }
    const QByteArray section = "[General]" + lineEnd + lines;
    if (found.hasSections)
        text.insert(text.startsWith("\xEF\xBB\xBF") ? 3 : 0, section + lineEnd);
    else
        text.append((text.isEmpty() || text.endsWith('\n') ? QByteArray() : lineEnd) + section);
}

} // namespace

QHash<QString, QString> values(const QByteArray& text, const QStringList& keys) {
    QHash<QString, QString> result;
    for (const auto& [key, range] : find(text, keys).values) {
        if (const auto value = decoded(QByteArrayView(text).sliced(range.begin, range.length)))
            result.insert(key, *value);
    }
    return result;
}

QByteArray withValues(const QByteArray& text, const QHash<QString, QString>& values) {
    const QByteArray lineEnd = lineEndOf(text);
    QStringList keys = values.keys();
    keys.sort();
    const Findings found = find(text, keys);
    QByteArray result = text;
    QByteArray newLines;
    for (const QString& key : std::as_const(keys)) {
        if (!found.values.contains(key))
            newLines += key.toLatin1() + '=' + encoded(values.value(key)) + lineEnd;
    }
    if (!newLines.isEmpty())
        add(result, newLines, found, lineEnd);
    // Back to front, so that earlier offsets stay valid. New lines follow every existing key.
    std::vector<std::pair<Range, QByteArray>> changes;
    changes.reserve(found.values.size());
    for (const auto& [key, range] : found.values)
        changes.emplace_back(range, encoded(values.value(key)));
    std::ranges::sort(changes, std::ranges::greater(), [](const auto& change) { return change.first.begin; });
    for (const auto& [range, value] : changes)
        result.replace(range.begin, range.length, value);
    return result;
}

} // namespace orvelle::IniText
