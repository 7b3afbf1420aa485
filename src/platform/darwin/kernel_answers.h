#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <sys/sysctl.h>
#include <sys/types.h>
#include <type_traits>

namespace orvelle::darwin_platform {

/// The value of a two-level name of the management information base, such as {CTL_HW, HW_MEMSIZE}; nothing
/// when the call fails or the answer is not of the size of `Value`.
template <class Value>
[[nodiscard]] std::optional<Value> readSysctl(int topLevel, int identifier) {
    static_assert(std::is_trivially_copyable_v<Value>);
    std::array<int, 2> name{topLevel, identifier};
    Value value{};
    std::size_t size = sizeof value;
    if (sysctl(name.data(), name.size(), &value, &size, nullptr, 0) != 0 || size != sizeof value)
        return std::nullopt;
    return value;
}

} // namespace orvelle::darwin_platform
