#include "platform/linux/linux_volumes.h"

#include "platform/linux/host_root.h"
#include "platform/linux/volume_choice.h"
#include "platform/linux/volume_labels.h"
#include "platform/names/sanitize.h"

#include <algorithm>
#include <array>

namespace orvelle::linux_platform {
namespace {

/// The choice is made anew after so many readings in any case: a label may be written without a mount.
constexpr unsigned readingsPerChoice = 20;

/// What container runtimes bind into every container. A tree of files need not hold them to be told.
constexpr std::array<std::string_view, 3> containerFiles{"/etc/hostname", "/etc/hosts", "/etc/resolv.conf"};

} // namespace

LinuxVolumes::LinuxVolumes(const std::filesystem::path& root)
    : LinuxVolumes(root, isHostRoot(root) ? hostVolumeSpace : SpaceReader()) {}

LinuxVolumes::LinuxVolumes(std::filesystem::path root, SpaceReader readSpace)
    : m_root(std::move(root))
    , m_isHost(isHostRoot(m_root))
    , m_mountinfo(m_root / "proc/self/mountinfo", KeptFile::Layout::records)
    , m_readSpace(std::move(readSpace)) {}

std::optional<std::vector<MountedVolume>> LinuxVolumes::read() {
    const bool mustChoose = !m_isHost || m_mountinfo.hasAnnouncedChange() || m_readingsUntilChoice == 0;
    if (mustChoose && !choose()) {
        m_readingsUntilChoice = 0;
        return std::nullopt;
    }
    m_readingsUntilChoice = mustChoose ? readingsPerChoice : m_readingsUntilChoice - 1;
    if (m_readSpace)
        measure();
    else
        measureFromTree();

    std::vector<MountedVolume> measured;
    for (const Volume& volume : m_volumes) {
        if (!volume.space)
            continue;
        measured.push_back(volume.published);
        measured.back().totalBytes = volume.space->totalBytes;
        measured.back().freeBytes = volume.space->freeBytes;
    }
    return measured;
}

bool LinuxVolumes::choose() {
    const std::optional<std::string_view> text = m_mountinfo.read();
    if (!text)
        return false;
    const HiddenPaths hidden = hiddenPathsInFstab(readFile(m_root / "etc/fstab").value_or(""));
    const VolumeLabels labels(m_root);
    std::vector<Volume> volumes;
    const auto isFile = [this](const Mount& mount) { return isSingleFile(mount); };
    std::vector<Mount> mounts = chosenVolumes(parseMountinfo(*text), hidden, isFile);
    // In a changed root directory (chroot) the kernel lists no mount at "/", yet there is one.
    if (std::ranges::find(mounts, "/", &Mount::path) == mounts.end())
        mounts.insert(mounts.begin(), Mount{.root = "/", .path = "/", .fileSystem = {}, .source = {}});
    for (const Mount& mount : mounts) {
        Volume volume = asKnownBefore(mount);
        volume.published.path = sanitizedName(mount.path);
        volume.published.name = labels.labelOf(mount);
        volume.published.isLocal = true;
        volumes.push_back(std::move(volume));
    }
    m_volumes = std::move(volumes);
    return true;
}

LinuxVolumes::Volume LinuxVolumes::asKnownBefore(const Mount& mount) const {
    const auto known = std::ranges::find(m_volumes, mount, &Volume::mount);
    return known != m_volumes.end() ? *known : Volume{.mount = mount, .published = {}};
}

bool LinuxVolumes::isSingleFile(const Mount& mount) const {
    // Made plain first, so that the path stays below the root.
    const std::filesystem::path path =
        m_root / std::filesystem::path(mount.path).lexically_normal().relative_path();
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::symlink_status(path, ignored);
    if (std::filesystem::exists(status))
        return !std::filesystem::is_directory(status);
    return std::ranges::find(containerFiles, mount.path) != containerFiles.end();
}

void LinuxVolumes::measure() {
    for (Volume& volume : m_volumes) {
        if (volume.readingsToSkip > 0) {
            --volume.readingsToSkip;
            continue;
        }
        const SpaceAnswer answer = m_readSpace(volume.mount.path);
        volume.space = answer.space;
        volume.readingsToSkip = readingsToSkipAfter(answer.took);
    }
}

void LinuxVolumes::measureFromTree() {
    const auto spaces = parseVolumeSpaces(readFile(m_root / "statfs").value_or(""));
    for (Volume& volume : m_volumes) {
        const auto position = spaces.find(volume.mount.path);
        volume.space = position != spaces.end() ? std::optional(position->second) : std::nullopt;
    }
}

} // namespace orvelle::linux_platform
