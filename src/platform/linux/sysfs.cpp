#include "platform/linux/sysfs.h"

#include "platform/linux/text.h"

namespace orvelle::linux_platform {
namespace {

/// No name or label that a driver gives is longer.
constexpr std::size_t maximumAttributeSize = 256;

} // namespace

std::optional<std::int64_t> parseAttributeNumber(std::string_view text) {
    const std::string_view word = trimmed(text);
    const std::string_view digits = word.starts_with('-') ? word.substr(1) : word;
    if (!isDigits(digits))
        return std::nullopt;
    return parseNumber<std::int64_t>(word);
}

std::optional<std::int64_t> readNumber(KeptFile& file) {
    const std::optional<std::string_view> text = file.read();
    return text ? parseAttributeNumber(*text) : std::nullopt;
}

std::string readAttribute(const std::filesystem::path& path) {
    const std::optional<std::string> text = readFile(path, maximumAttributeSize);
    return text ? std::string(trimmed(*text)) : std::string();
}

} // namespace orvelle::linux_platform
