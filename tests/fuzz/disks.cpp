#include "parsers.h"
#include "platform/linux/linux_disk_source.h"
#include "platform/linux/linux_volumes.h"
#include "platform/linux/mounts.h"
#include "require.h"

#include <algorithm>

namespace orvelle::fuzz {
namespace {

using namespace linux_platform;

void checkChoice(const std::vector<Mount>& mounts, const HiddenPaths& hidden, bool areSingleFiles) {
    const std::vector<Mount> chosen =
        chosenVolumes(mounts, hidden, [areSingleFiles](const Mount&) { return areSingleFiles; });
    for (const Mount& volume : chosen) {
        require(std::ranges::find(mounts, volume) != mounts.end(), "a volume is one of the mounts");
        require(volume.path == "/" || !hidden.contains(volume.path), "a hidden path is not chosen");
        // A pool of ZFS is identified by its name, whatever device number its mounts show.
        const auto sameDevice = std::ranges::count_if(chosen, [&volume](const Mount& other) {
            return other.fileSystem != "zfs" && other.deviceMajor == volume.deviceMajor &&
                   other.deviceMinor == volume.deviceMinor;
        });
        require(sameDevice == 1 || volume.fileSystem == "zfs", "each device is chosen once");
    }
}

} // namespace

void fuzzDiskstats(std::string_view text) {
    for (const BlockDeviceCounters& device : parseDiskstats(text)) {
        requireWithin(text, device.name);
        require(!device.name.empty() && device.name != "." && device.name != "..", "a device has a name");
        const std::string disk = multipathDiskOf(device.name);
        require(disk.empty() || !isWholeDiskName(device.name), "a path to a disk is no whole disk");
        require(disk.empty() || disk.size() < device.name.size(), "a path's name leads to a shorter one");
    }
}

void fuzzMountinfo(std::string_view text) {
    const std::vector<Mount> mounts = parseMountinfo(text);
    HiddenPaths hidden;
    for (const Mount& mount : mounts) {
        require(mount.path.starts_with('/'), "a mount path is absolute");
        require(!mount.fileSystem.empty(), "a mount has a file system");
        if (hidden.empty())
            hidden.insert(mount.path);
    }
    checkChoice(mounts, {}, false);
    checkChoice(mounts, {}, true);
    checkChoice(mounts, hidden, false);
}

void fuzzFstab(std::string_view text) {
    for (const std::string& path : hiddenPathsInFstab(text))
        require(!path.empty(), "a hidden path has a name");
}

void fuzzVolumeSpaces(std::string_view text) {
    for (const auto& [path, space] : parseVolumeSpaces(text)) {
        require(!path.empty(), "a volume has a path");
        require(space.freeBytes >= 0 && space.freeBytes <= space.totalBytes,
                "no more is free than there is in all");
    }
}

} // namespace orvelle::fuzz
