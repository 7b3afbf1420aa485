#include "platform/linux/volume_space.h"

#include "platform/linux/escapes.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <sys/statvfs.h>

namespace orvelle::linux_platform {

VolumeSpace volumeSpace(std::uint64_t totalBytes, std::uint64_t freeBytes) {
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    const std::uint64_t total = std::min(totalBytes, largest);
    // A file system can report more blocks free than it has while it is being changed in size.
    return {.totalBytes = static_cast<std::int64_t>(total),
            .freeBytes = static_cast<std::int64_t>(std::min(freeBytes, total))};
}

SpaceAnswer hostVolumeSpace(const std::string& path) {
    using Clock = std::chrono::steady_clock;
    struct statvfs space = {};
    const Clock::time_point start = Clock::now();
    const bool isTold = ::statvfs(path.c_str(), &space) == 0;
    SpaceAnswer answer{.space = std::nullopt, .took = Clock::now() - start};
    if (isTold)
        answer.space = volumeSpace(saturatingMultiply(space.f_blocks, space.f_frsize),
                                   saturatingMultiply(space.f_bavail, space.f_frsize));
    return answer;
}

unsigned readingsToSkipAfter(std::chrono::duration<double> took) {
    constexpr std::chrono::milliseconds patience{50};
    constexpr unsigned skippedPerPatience = 10;
    constexpr double mostSkipped = 200;
    if (took <= patience)
        return 0;
    return static_cast<unsigned>(std::min(took / patience * skippedPerPatience, mostSkipped));
}

std::map<std::string, VolumeSpace> parseVolumeSpaces(std::string_view text) {
    std::map<std::string, VolumeSpace> spaces;
    while (!text.empty()) {
        std::string_view line = trimmed(takeLine(text));
        const std::string_view path = takeWord(line);
        const auto total = takeNumber<std::uint64_t>(line);
        const auto free = takeNumber<std::uint64_t>(line);
        if (total && free)
            spaces.insert_or_assign(withoutOctalEscapes(path), volumeSpace(*total, *free));
    }
    return spaces;
}

} // namespace orvelle::linux_platform
