#include "theme/colors.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cctype>

namespace orvelle {
namespace {

constexpr qsizetype digitCount = 6;

/// The number of user-perceived characters: a letter and its accents are one.
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

/// The number that the leading digits spell, or nothing without a digit.
std::optional<uint> scanHexadecimal(QStringView text) {
    text = text.trimmed();
    if (text.startsWith(QLatin1StringView("0x"), Qt::CaseInsensitive))
        text = text.sliced(2);
    const auto end = std::ranges::find_if_not(text, isHexadecimalDigit);
    bool isNumber = false;
    const uint number = text.first(end - text.begin()).toUInt(&isNumber, 16);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// `QColor` stores 16 bits per component, in which 8-bit steps are 257 apart. Integers round down exactly.
uint steps255(quint16 component) {
    return component / 257U;
}

} // namespace

QColor withOpacity(const QColor& color, double opacity) {
    QColor result = color;
    result.setAlphaF(static_cast<float>(std::clamp(color.alphaF() * opacity, 0.0, 1.0)));
    return result;
}

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
