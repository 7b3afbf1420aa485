#pragma once

#include <QMetaEnum>
#include <QString>
#include <QVariant>

#include <concepts>
#include <optional>
#include <type_traits>

/// The legal values of settings, and how stored values are parsed. People and other programs store them too:
/// an illegal value reads as nothing, and the setting's default applies.
namespace orvelle {

/// The longest legal time between updates in seconds, a day.
inline constexpr double maximumIntervalSeconds = 86400.0;

/// The longest legal text in UTF-16 units. Theme names and colours need a handful.
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
/// Whether the value has a case: any number can be cast to an enumeration.
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

/// The stored value, or nothing if it is absent, of another type or illegal.
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

/// The stored form of a legal value: an enumeration's case as its name, everything else unchanged.
template <class Value>
[[nodiscard]] QVariant storedForm(const Value& value) {
    if constexpr (std::is_enum_v<Value>)
        return caseName(value);
    else
        return value;
}

} // namespace orvelle
