#include "platform/linux/linux_volumes.h"

#include "platform/linux/files.h"
#include "platform/linux/mounts.h"
#include "platform/linux/text.h"
#include "platform/readable_name.h"

#include <algorithm>
#include <array>
#include <sys/statvfs.h>

namespace orvelle::linux_platform {
namespace {

/// The last component of a link's target, which is not looked up; empty when there is no such link.
std::string linkedName(const std::filesystem::path& link) {
    std::error_code ignored;
    return std::filesystem::read_symlink(link, ignored).filename().string();
}

/// Readings between two choices at most: a label may be written without a mount.
constexpr unsigned readingsPerChoice = 20;

/// Files that container runtimes bind into every container. A tree need not contain them.
constexpr std::array<std::string_view, 3> containerFiles{"/etc/hostname", "/etc/hosts", "/etc/resolv.conf"};

/// The labels of the file systems on a machine's block devices, as udev lists them in `dev/disk/by-label`.
class VolumeLabels {
public:
    explicit VolumeLabels(std::filesystem::path root);

    /// The label of the file system that is mounted, fit to be shown; nothing when it has none.
    [[nodiscard]] std::optional<std::string> labelOf(const Mount& mount) const;

private:
    std::filesystem::path m_root;
    std::map<std::string, std::string> m_labelsByDevice;
};

VolumeLabels::VolumeLabels(std::filesystem::path root)
    : m_root(std::move(root)) {
    const std::filesystem::path directory = m_root / "dev/disk/by-label";
    for (const std::string& link : namesIn(directory)) {
        const std::string device = linkedName(directory / link);
        if (!device.empty())
            m_labelsByDevice.emplace(device, withoutHexEscapes(link));
    }
}

std::optional<std::string> VolumeLabels::labelOf(const Mount& mount) const {
    const std::filesystem::path source = std::filesystem::path(mount.source).lexically_normal();
    if (m_labelsByDevice.empty() || !source.native().starts_with("/dev/"))
        return std::nullopt;
    // The source may be the device itself, a link that the device mapper made or a name that no device has
    // (/dev/root), where only the number leads to the device.
    const std::string number = std::to_string(mount.deviceMajor) + ':' + std::to_string(mount.deviceMinor);
    for (const std::string& device :
         {linkedName(m_root / "sys/dev/block" / number), source.filename().string(),
          linkedName(m_root / source.relative_path())}) {
        const auto position = m_labelsByDevice.find(device);
        if (position == m_labelsByDevice.end())
            continue;
        std::string label = readableName(position->second);
        return label.empty() ? std::nullopt : std::optional(std::move(label));
    }
    return std::nullopt;
}

} // namespace

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
    const bool isKnown = ::statvfs(path.c_str(), &space) == 0;
    SpaceAnswer answer{.space = std::nullopt, .took = Clock::now() - start};
    if (isKnown)
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
    std::string fstab = readFile(m_root / "etc/fstab").value_or("");
    if (m_chosenMounts.empty() || *text != m_chosenMountinfo || fstab != m_chosenFstab) {
        m_chosenMounts = mountsOfVolumes(*text, fstab);
        m_chosenMountinfo = *text;
        m_chosenFstab = std::move(fstab);
    }
    const VolumeLabels labels(m_root);
    std::vector<Volume> volumes;
    for (const Mount& mount : m_chosenMounts) {
        Volume volume = asKnownBefore(mount);
        volume.published.path = readableName(mount.path);
        volume.published.name = labels.labelOf(mount);
        volume.published.isLocal = true;
        volumes.push_back(std::move(volume));
    }
    m_volumes = std::move(volumes);
    return true;
}

std::vector<Mount> LinuxVolumes::mountsOfVolumes(std::string_view mountinfo, std::string_view fstab) const {
    const auto isFile = [this](const Mount& mount) { return isSingleFile(mount); };
    std::vector<Mount> mounts = chosenVolumes(parseMountinfo(mountinfo), hiddenPathsInFstab(fstab), isFile);
    // In a changed root directory (chroot) the kernel lists no mount at "/", yet there is one.
    if (std::ranges::find(mounts, "/", &Mount::path) == mounts.end())
        mounts.insert(mounts.begin(), Mount{.root = "/", .path = "/", .fileSystem = {}, .source = {}});
    return mounts;
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
