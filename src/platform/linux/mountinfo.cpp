#include "platform/linux/mountinfo.h"

#include "platform/linux/escapes.h"
#include "platform/linux/text.h"

#include <optional>

namespace orvelle::linux_platform {
namespace {

/// Skips the optional fields, whose number varies, up to and with the dash that ends them.
bool skipOptionalFields(std::string_view& line) {
    while (!line.empty()) {
        if (takeWord(line) == "-")
            return true;
    }
    return false;
}

std::optional<Mount> parseMount(std::string_view line) {
    Mount mount;
    const auto id = takeNumber<std::int64_t>(line);
    const auto parentId = takeNumber<std::int64_t>(line);
    std::string_view device = takeWord(line);
    const auto deviceMajor = parseNumber<unsigned>(takeUntil(device, ':'));
    const auto deviceMinor = parseNumber<unsigned>(device);
    if (!id || !parentId || !deviceMajor || !deviceMinor)
        return std::nullopt;
    mount.id = *id;
    mount.parentId = *parentId;
    mount.deviceMajor = *deviceMajor;
    mount.deviceMinor = *deviceMinor;
    mount.root = withoutOctalEscapes(takeWord(line));
    mount.path = withoutOctalEscapes(takeWord(line));
    if (!mount.path.starts_with('/') || !skipOptionalFields(line))
        return std::nullopt;
    mount.fileSystem = withoutOctalEscapes(takeWord(line));
    mount.source = withoutOctalEscapes(takeWord(line));
    if (mount.fileSystem.empty())
        return std::nullopt;
    return mount;
}

} // namespace

std::vector<Mount> parseMountinfo(std::string_view text) {
    std::vector<Mount> mounts;
    while (!text.empty()) {
        if (std::optional<Mount> mount = parseMount(takeLine(text)))
            mounts.push_back(*std::move(mount));
    }
    return mounts;
}

} // namespace orvelle::linux_platform
