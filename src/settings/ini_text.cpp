#include "settings/ini_text.h"

#include <QLocale>
#include <QMap>

#include <algorithm>

namespace orvelle::IniText {
namespace {

/// One line of the file, its end not included.
struct Line {
    qsizetype begin = 0;
    QByteArrayView content;
    bool isGeneral = false; ///< stands in `[General]` or before any section
    QByteArrayView key;     ///< empty when the line holds no key
    QByteArrayView value;
};

bool isHeader(QByteArrayView trimmed) {
    return trimmed.startsWith('[');
}

/// What follows the bracket, a comment say, does not matter.
bool isGeneralHeader(QByteArrayView trimmed) {
    constexpr QByteArrayView header("[General]");
    return trimmed.first(std::min(trimmed.size(), header.size())).compare(header, Qt::CaseInsensitive) == 0;
}

void splitAtEquals(Line& line) {
    const QByteArrayView trimmed = line.content.trimmed();
    const qsizetype equals = trimmed.indexOf('=');
    if (isHeader(trimmed) || trimmed.startsWith(';') || trimmed.startsWith('#') || equals < 0)
        return;
    line.key = trimmed.first(equals).trimmed();
    line.value = trimmed.sliced(equals + 1).trimmed();
}

/// Calls `visit` with every line in turn. No list of lines is built: a hostile file may have a million.
template <class Visitor>
void forEachLine(QByteArrayView text, Visitor visit) {
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
    bool isGeneral = true;
    qsizetype begin = text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    while (begin < text.size()) {
        const qsizetype newline = text.indexOf('\n', begin);
        qsizetype end = newline < 0 ? text.size() : newline;
        if (end > begin && text[end - 1] == '\r')
            --end;
        Line line;
        line.begin = begin;
        line.content = text.sliced(begin, end - begin);
        const QByteArrayView trimmed = line.content.trimmed();
        if (isHeader(trimmed))
            isGeneral = isGeneralHeader(trimmed);
        line.isGeneral = isGeneral;
        splitAtEquals(line);
        visit(line);
        begin = newline < 0 ? text.size() : newline + 1;
    }
}

/// Reads the digits of a \x escape at `position` and moves behind them.
std::optional<QChar> readCodeUnit(QStringView text, qsizetype& position) {
    const qsizetype begin = position;
    ushort unit = 0;
    while (position < text.size() && position - begin < 4) {
        bool isDigit = false;
        const uint digit = text.sliced(position, 1).toUInt(&isDigit, 16);
        if (!isDigit)
            break;
        unit = static_cast<ushort>(unit * 16U + digit);
        ++position;
    }
    return position > begin ? std::optional(QChar(unit)) : std::nullopt;
}

/// The character of an escape at `position`, behind its backslash.
std::optional<QChar> readEscape(QStringView text, qsizetype& position) {
    if (position >= text.size())
        return std::nullopt;
    switch (text.at(position++).unicode()) {
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'\\':
        return u'\\';
    case u'"':
        return u'"';
    case u'x':
        return readCodeUnit(text, position);
    default:
        return std::nullopt;
    }
}

/// The text behind an opening quote; nothing when it is not closed or when more than a comment follows.
std::optional<QString> readQuoted(QStringView text) {
    QString result;
    for (qsizetype position = 0; position < text.size();) {
        const QChar character = text.at(position++);
        if (character == u'"') {
            const QStringView rest = text.sliced(position).trimmed();
            return rest.isEmpty() || rest.front() == u';' ? std::optional(result) : std::nullopt;
        }
        const std::optional<QChar> read =
            character == u'\\' ? readEscape(text, position) : std::optional(character);
        if (!read)
            return std::nullopt;
        result.append(*read);
    }
    return std::nullopt;
}

std::optional<QString> readBare(QStringView text) {
    const qsizetype comment = text.indexOf(u';');
    const QStringView value = (comment < 0 ? text : text.first(comment)).trimmed();
    if (value.contains(u',') || value.contains(u'\\') || value.contains(u'"'))
        return std::nullopt;
    return value.toString();
}

/// QSettings writes every value that is not a text as `@Type(...)` and doubles the sign in a text.
std::optional<QString> decode(QByteArrayView value) {
    const QString text = QString::fromUtf8(value);
    std::optional<QString> read =
        text.startsWith(u'"') ? readQuoted(QStringView(text).sliced(1)) : readBare(text);
    if (!read || !read->startsWith(u'@'))
        return read;
    return read->startsWith(QLatin1StringView("@@")) ? std::optional(read->sliced(1)) : std::nullopt;
}

QString quoted(const QString& text) {
    QString result = QStringLiteral("\"");
    for (const QChar character : text) {
        const ushort unit = character.unicode();
        if (unit == u'"' || unit == u'\\')
            result.append(u'\\').append(character);
        else if (unit < 0x20 || unit == 0x7F || character.isSurrogate())
            result.append(QStringLiteral("\\x%1").arg(unit, 4, 16, QLatin1Char('0')));
        else
            result.append(character);
    }
    return result.append(u'"');
}

bool needsNoQuotes(const QString& text) {
    return std::ranges::all_of(text, [](QChar character) {
        return character.unicode() < 0x80 &&
               (character.isLetterOrNumber() || QStringView(u"#+-._").contains(character));
    });
}

QByteArray encode(const QVariant& value) {
    if (value.typeId() == QMetaType::Double)
        return QByteArray::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    QString text = value.toString();
    if (text.startsWith(u'@'))
        text.prepend(u'@');
    return (needsNoQuotes(text) ? text : quoted(text)).toUtf8();
}

/// Bytes of a text that others replace.
struct Edit {
    qsizetype size = 0;
    QByteArray replacement;
};

/// Where the lines of some keys stand in a text.
struct Places {
    struct Place {
        qsizetype begin = 0;
        qsizetype size = 0;
    };
    QHash<QString, Place> lines;           ///< the last line of each key
    std::optional<qsizetype> endOfGeneral; ///< behind the last line of `[General]` that is not blank
};

Places findPlaces(const QByteArray& text, const StoredValues& values) {
    Places places;
    forEachLine(text, [&](const Line& line) {
        if (!line.isGeneral || line.content.trimmed().isEmpty())
            return;
        places.endOfGeneral = line.begin + line.content.size();
        const QString key = QString::fromUtf8(line.key);
        if (values.contains(key))
            places.lines[key] = {line.begin, line.content.size()};
    });
    return places;
}

} // namespace

StoredValues parse(const QByteArray& text, const QStringList& keys) {
    StoredValues values;
    forEachLine(text, [&](const Line& line) {
        const auto key = std::ranges::find_if(
            keys, [&line](const QString& wanted) { return QLatin1StringView(line.key) == wanted; });
        if (!line.isGeneral || key == keys.end())
            return;
        const std::optional<QString> value = decode(line.value);
        if (value)
            values.insert(*key, *value);
        else
            values.remove(*key);
    });
    return values;
}

QByteArray withValues(const QByteArray& text, const StoredValues& values) {
    const Places places = findPlaces(text, values);
    QStringList keys = values.keys();
    keys.sort();
    QByteArray result = text;
    QByteArray added;
    QMap<qsizetype, Edit> edits;
    for (const QString& key : keys) {
        const QByteArray line = key.toUtf8() + '=' + encode(values.value(key));
        if (const auto place = places.lines.find(key); place != places.lines.end())
            edits.insert(place->begin, {place->size, line});
        else
            added += '\n' + line;
    }
    if (places.endOfGeneral && !added.isEmpty())
        edits.insert(*places.endOfGeneral, {0, added});
    // From the back, so that the positions in front of an edit stay true.
    for (auto edit = edits.constEnd(); edit != edits.constBegin();) {
        --edit;
        result.replace(edit.key(), edit->size, edit->replacement);
    }
    if (!places.endOfGeneral)
        result += (text.isEmpty() || text.endsWith('\n') ? "[General]" : "\n[General]") + added + '\n';
    return result;
}

} // namespace orvelle::IniText
