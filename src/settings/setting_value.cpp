#include "settings/setting_value.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvelle {
namespace {

/// Whether it is a number of a preferences database, rather than a text.
bool isNumber(const QVariant& stored) {
    switch (stored.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool isText(const QVariant& stored) {
    return stored.typeId() == QMetaType::QString;
}

std::optional<bool> parseSwitchText(const QString& text) {
    static constexpr std::array onWords{"true", "yes", "on", "1"};
    static constexpr std::array offWords{"false", "no", "off", "0"};
    const auto isWord = [&text](const char* word) {
        return text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(onWords, isWord))
        return true;
    if (std::ranges::any_of(offWords, isWord))
        return false;
    return std::nullopt;
}

} // namespace

bool isLegalSetting(double seconds) {
    return std::isfinite(seconds) && seconds > 0.0 && seconds <= maximumIntervalSeconds;
}

bool isLegalSetting(const QString& text) {
    return text.size() <= maximumTextLength;
}

std::optional<bool> parseSwitch(const QVariant& stored) {
    if (stored.typeId() == QMetaType::Bool)
        return stored.toBool();
    if (isText(stored))
        return parseSwitchText(stored.toString());
    if (isNumber(stored) && (stored.toDouble() == 0.0 || stored.toDouble() == 1.0))
        return stored.toDouble() == 1.0;
    return std::nullopt;
}

std::optional<double> parseSeconds(const QVariant& stored) {
    if (!isText(stored) && !isNumber(stored))
        return std::nullopt;
    bool isParsed = false;
    const double seconds = stored.toDouble(&isParsed); // reads a text in the C locale
    if (!isParsed || !isLegalSetting(seconds))
        return std::nullopt;
    return seconds;
}

std::optional<QString> parseText(const QVariant& stored) {
    if (!isText(stored) || !isLegalSetting(stored.toString()))
        return std::nullopt;
    return stored.toString();
}

std::optional<int> parseCase(const QVariant& stored, const QMetaEnum& cases) {
    if (!isText(stored))
        return std::nullopt;
    // QMetaEnum::keyToValue also accepts scoped names and stops at a NUL.
    const QString name = stored.toString();
    for (int index = 0; index < cases.keyCount(); ++index) {
        if (name == QLatin1StringView(cases.key(index)))
            return cases.value(index);
    }
    return std::nullopt;
}

} // namespace orvelle
