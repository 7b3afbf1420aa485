#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

/// Integer arithmetic that stops the process rather than wrap: a wrong reading must never be published as a
/// plausible one. The sources keep real machines' input away from these limits.
namespace orvelle {

/// Ends the process with a message that names the operation.
[[noreturn]] void stopForArithmetic(const char* operation);

template <std::integral Integer>
[[nodiscard]] Integer checkedAdd(Integer left, Integer right) {
    Integer result{};
    if (__builtin_add_overflow(left, right, &result))
        stopForArithmetic("addition");
    return result;
}

template <std::integral Integer>
[[nodiscard]] Integer checkedSubtract(Integer left, Integer right) {
    Integer result{};
    if (__builtin_sub_overflow(left, right, &result))
        stopForArithmetic("subtraction");
    return result;
}

template <std::integral Integer>
[[nodiscard]] Integer checkedMultiply(Integer left, Integer right) {
    Integer result{};
    if (__builtin_mul_overflow(left, right, &result))
        stopForArithmetic("multiplication");
    return result;
}

/// The same value as another integer type; stops when that type cannot hold it.
template <std::integral To, std::integral From>
[[nodiscard]] To checkedConvert(From value) {
    To result{};
    if (__builtin_add_overflow(value, From{}, &result))
        stopForArithmetic("conversion");
    return result;
}

/// Truncates toward zero; stops when the value is not finite or does not fit.
[[nodiscard]] inline std::int64_t checkedTruncate(double value) {
    constexpr double limit = 9223372036854775808.0; // 2^63, the first double beyond the range
    if (!std::isfinite(value) || value >= limit || value < -limit)
        stopForArithmetic("truncation");
    return static_cast<std::int64_t>(value);
}

/// How far a cumulative counter moved on; 0 when it went backwards.
[[nodiscard]] constexpr std::uint64_t counterDelta(std::uint64_t current, std::uint64_t previous) {
    return current >= previous ? current - previous : 0;
}

} // namespace orvelle
