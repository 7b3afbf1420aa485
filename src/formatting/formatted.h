#pragma once

#include <QString>
#include <fmt/format.h>

#include <utility>

namespace orvelle {

/// Text with numbers in it. libfmt writes them like printf but never asks the locale for its decimal mark.
template <class... Arguments>
[[nodiscard]] QString formatted(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
    return QString::fromStdString(fmt::format(format, std::forward<Arguments>(arguments)...));
}

} // namespace orvelle
