#pragma once

#include <QMetaEnum>
#include <QString>
#include <QVariant>

#include <concepts>
#include <optional>
#include <type_traits>

/// What may stand in a setting, and how it is read from what a person or another program stored. A stored
/// value that is not legal reads as nothing, and the setting's default applies.
namespace orvelle {

/// The longest time between updates that is taken seriously, a day in seconds.
inline constexpr double maximumIntervalSeconds = 86400.0;

/// The longest text that a setting holds, in UTF-16 units; theme names and colours need a handful.
inline constexpr qsizetype maximumTextLength = 4096;

/// The name of an enumeration's case; null for a number that names none.
template <class Enum>
requires std::is_enum_v<Enum>
[[nodiscard]] QString caseName(Enum value) {
    const QMetaEnum cases = QMetaEnum::fromType<Enum>();
    for (int index = 0; index < cases.keyCount(); ++index) {
        if (cases.value(index) == static_cast<int>(value))
            return QString::fromLatin1(cases.key(index));
    }
    return {};
}

[[nodiscard]] constexpr bool isLegalSetting(bool) {
    return true;
}
/// Seconds: finite, more than 0 and at most `maximumIntervalSeconds`.
[[nodiscard]] bool isLegalSetting(double seconds);
[[nodiscard]] bool isLegalSetting(const QString& text);
/// A number that was cast to the enumeration may name no case.
template <class Enum>
requires std::is_enum_v<Enum>
[[nodiscard]] bool isLegalSetting(Enum value) {
    return !caseName(value).isNull();
}

/// true, yes, on and 1, or false, no, off and 0, in any case; also a stored boolean or the numbers 1 and 0.
[[nodiscard]] std::optional<bool> parseSwitch(const QVariant& stored);
/// A number with a decimal point, whatever the locale.
[[nodiscard]] std::optional<double> parseSeconds(const QVariant& stored);
[[nodiscard]] std::optional<QString> parseText(const QVariant& stored);
/// The value of the case with exactly this name.
[[nodiscard]] std::optional<int> parseCase(const QVariant& stored, const QMetaEnum& cases);

/// The setting's value as stored, or nothing where it is absent, of another type or not legal.
template <class Value>
[[nodiscard]] std::optional<Value> parseSetting(const QVariant& stored) {
    if constexpr (std::same_as<Value, bool>) {
        return parseSwitch(stored);
    } else if constexpr (std::same_as<Value, double>) {
        return parseSeconds(stored);
    } else if constexpr (std::same_as<Value, QString>) {
        return parseText(stored);
    } else {
        const std::optional<int> value = parseCase(stored, QMetaEnum::fromType<Value>());
        return value ? std::optional(static_cast<Value>(*value)) : std::nullopt;
    }
}

/// The form in which a legal value is stored: an enumeration's case by its name, everything else as it is.
template <class Value>
[[nodiscard]] QVariant storedForm(const Value& value) {
    if constexpr (std::is_enum_v<Value>)
        return caseName(value);
    else
        return value;
}

} // namespace orvelle
