#pragma once

#include <QVariant>

#include <optional>

/// Fields that may be absent, as QML sees them: null or undefined stands for absence.
namespace orvelle {

template <typename Value>
[[nodiscard]] QVariant variantOf(const std::optional<Value>& value) {
    return value ? QVariant::fromValue(*value) : QVariant::fromValue(nullptr);
}

template <typename Value>
[[nodiscard]] std::optional<Value> optionalOf(const QVariant& variant) {
    if (variant.isNull() || !variant.canConvert<Value>())
        return std::nullopt;
    return variant.value<Value>();
}

} // namespace orvelle
