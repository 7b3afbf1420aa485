#include "theme/hex_color.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cctype>

namespace orvelle {
namespace {

constexpr qsizetype digitCount = 6;

/// Characters as people count them: a letter and its accents are one.
qsizetype characterCount(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

bool isHexadecimalDigit(QChar character) {
    return character.unicode() < 0x80 && std::isxdigit(character.unicode()) != 0;
}

/// The number that the leading digits spell; nothing when there is no digit.
std::optional<uint> scanHexadecimal(QStringView text) {
    text = text.trimmed();
    if (text.startsWith(QLatin1StringView("0x"), Qt::CaseInsensitive))
        text = text.sliced(2);
    const auto end = std::ranges::find_if_not(text, isHexadecimalDigit);
    bool isNumber = false;
    const uint number = text.first(end - text.begin()).toUInt(&isNumber, 16);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// A colour keeps 16 bits per component, where 8-bit steps are 257 apart; whole numbers make the cut exact.
uint steps255(quint16 component) {
    return component / 257U;
}

} // namespace

std::optional<QColor> hexToColor(const QString& text) {
    QString digits = text.trimmed();
    digits.remove(u'#');
    if (characterCount(digits) != digitCount)
        return std::nullopt;
    const std::optional<uint> number = scanHexadecimal(digits);
    return number ? std::optional(QColor(QRgb{*number})) : std::nullopt;
}

QString colorToHex(const QColor& color) {
    if (!color.isValid())
        return QStringLiteral("#FFFFFF");
    const QRgba64 components = color.rgba64();
    return QString::asprintf("#%02X%02X%02X", steps255(components.red()), steps255(components.green()),
                             steps255(components.blue()));
}

} // namespace orvelle
