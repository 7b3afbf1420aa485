#include "platform/linux/directory.h"

namespace orvelle::linux_platform {

std::vector<std::string> namesIn(const std::filesystem::path& directory) {
    std::vector<std::string> names;
    std::error_code error;
    // A range-based loop would throw when the directory vanishes between two entries.
    for (std::filesystem::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error))
        names.push_back(entry->path().filename().string());
    return names;
}

bool existsUnfollowed(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

bool isEntryName(std::string_view name) {
    return !name.empty() && name != "." && name != "..";
}

} // namespace orvelle::linux_platform
