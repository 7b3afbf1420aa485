#pragma once

#include "platform/linux/kept_file.h"

#include <cstdint>

/// Small readings from sysfs. An attribute is one short value with a line end (Documentation/filesystems/
/// sysfs.rst); anything else that a tree may hold in its place is nothing.
namespace orvelle::linux_platform {

/// `text` as one whole number with nothing beside it but blanks; nothing otherwise, as a value that is half
/// understood must not be published. The largest of its type when it does not fit.
[[nodiscard]] std::optional<std::int64_t> parseAttributeNumber(std::string_view text);

/// The number that an attribute holds now.
[[nodiscard]] std::optional<std::int64_t> readNumber(KeptFile& file);

/// The text of an attribute that is read rarely, without the blanks around it; empty when it cannot be read.
[[nodiscard]] std::string readAttribute(const std::filesystem::path& path);

} // namespace orvelle::linux_platform
