// Records what the sources of src/platform/linux read. A file that one of them begins to read has to be added
// here.

#include "platform/linux/files.h"
#include "platform/linux/interface_addresses.h"
#include "platform/linux/linux_volumes.h"
#include "platform/linux/process_files.h"
#include "platform/linux/text.h"
#include "platform/readable_name.h"
#include "probe/report/linux_devices.h"
#include "probe/report/linux_texts.h"
#include "probe/report/pseudonyms.h"
#include "probe/report/recorded_tree.h"

#include <fmt/format.h>

#include <algorithm>
#include <system_error>

namespace orvelle {
namespace {

namespace fs = std::filesystem;
using namespace linux_platform;

/// Records one machine into a tree.
class LinuxRecording {
public:
    LinuxRecording(fs::path root, Pseudonyms& pseudonyms)
        : m_root(std::move(root))
        , m_pseudonyms(pseudonyms) {}

    [[nodiscard]] RecordedTree record() {
        recordCounters();
        recordVolumes();
        recordNetwork();
        recordProcesses();
        recordDevices(m_root, m_pseudonyms, m_tree);
        return std::move(m_tree);
    }

private:
    void recordCounters();
    void recordVolumes();
    void recordLabels();
    void recordVolumeDevice(const Mount& mount);
    void recordSpaces(const std::vector<Mount>& volumes);
    void recordNetwork();
    void recordProcesses();
    void recordProcess(ProcessFiles& files, std::int32_t pid);

    /// Records the file as `rewrite` makes it.
    template <class Rewrite>
    void recordText(const char* path, Rewrite rewrite) {
        if (const std::optional<std::string> text = readFile(m_root / path))
            m_tree.files.emplace(path, rewrite(*text));
    }

    fs::path m_root;
    Pseudonyms& m_pseudonyms;
    RecordedTree m_tree;
};

void LinuxRecording::recordCounters() {
    for (const char* path : {"proc/stat", "proc/loadavg", "proc/meminfo", "proc/spl/kstat/zfs/arcstats"})
        recordText(path, [](const std::string& text) { return numbersOnly(text); });
    recordText("proc/diskstats",
               [this](const std::string& text) { return diskstatsText(text, m_pseudonyms); });
}

void LinuxRecording::recordVolumes() {
    recordText("etc/fstab", [this](const std::string& text) { return fstabText(text, m_pseudonyms); });
    if (m_tree.files["etc/fstab"].empty())
        m_tree.files.erase("etc/fstab");
    const std::optional<std::string> text = readFile(m_root / "proc/self/mountinfo");
    if (!text)
        return;
    const std::vector<Mount> mounts = parseMountinfo(*text);
    m_tree.files.emplace("proc/self/mountinfo", mountinfoText(mounts, m_pseudonyms));
    const HiddenPaths hidden = hiddenPathsInFstab(readFile(m_root / "etc/fstab").value_or(""));
    const auto isSingleFile = [this](const Mount& mount) {
        std::error_code ignored;
        const fs::path path = fs::path(mount.path).lexically_normal().relative_path();
        const fs::file_status status = fs::symlink_status(m_root / path, ignored);
        const bool isFile = fs::exists(status) && !fs::is_directory(status);
        if (isFile)
            m_tree.files.emplace(m_pseudonyms.path(path.string()), "");
        return isFile;
    };
    std::vector<Mount> volumes = chosenVolumes(mounts, hidden, isSingleFile);
    if (std::ranges::find(volumes, "/", &Mount::path) == volumes.end())
        volumes.push_back(Mount{.root = "/", .path = "/", .fileSystem = {}, .source = {}});
    recordLabels();
    for (const Mount& volume : volumes)
        recordVolumeDevice(volume);
    recordSpaces(volumes);
}

void LinuxRecording::recordLabels() {
    const fs::path folder = m_root / "dev/disk/by-label";
    for (const std::string& name : namesIn(folder)) {
        std::error_code error;
        const fs::path target = fs::read_symlink(folder / name, error);
        const std::string label = m_pseudonyms.place(withoutHexEscapes(name));
        if (!error && !label.empty() && label.find('/') == std::string::npos)
            m_tree.links.emplace("dev/disk/by-label/" + label,
                                 "../../" + m_pseudonyms.device(target.filename().string()));
    }
}

/// The links by which a volume's device is found.
void LinuxRecording::recordVolumeDevice(const Mount& mount) {
    const std::string number = fmt::format("{}:{}", mount.deviceMajor, mount.deviceMinor);
    std::error_code error;
    if (const fs::path target = fs::read_symlink(m_root / "sys/dev/block" / number, error); !error)
        m_tree.links.emplace("sys/dev/block/" + number, "../../devices/virtual/block/" +
                                                            m_pseudonyms.device(target.filename().string()));
    const fs::path source = fs::path(mount.source).lexically_normal();
    if (!source.native().starts_with("/dev/"))
        return;
    if (const fs::path target = fs::read_symlink(m_root / source.relative_path(), error); !error)
        m_tree.links.emplace(mountSource(mount, m_pseudonyms).substr(1),
                             "../" + m_pseudonyms.device(target.filename().string()));
}

/// In a recorded machine the file `statfs` stands in the place of the system call.
void LinuxRecording::recordSpaces(const std::vector<Mount>& volumes) {
    const auto recorded = parseVolumeSpaces(readFile(m_root / "statfs").value_or(""));
    std::string text;
    for (const Mount& volume : volumes) {
        const auto position = recorded.find(volume.path);
        const std::optional<VolumeSpace> inTree =
            position != recorded.end() ? std::optional(position->second) : std::nullopt;
        const std::optional<VolumeSpace> space =
            isHostRoot(m_root) ? hostVolumeSpace(volume.path).space : inTree;
        if (space)
            text += fmt::format("{} {} {}\n", m_pseudonyms.path(volume.path), space->totalBytes,
                                space->freeBytes);
    }
    m_tree.files.emplace("statfs", text);
}

void LinuxRecording::recordNetwork() {
    recordText("proc/net/dev", [this](const std::string& text) { return netDevText(text, m_pseudonyms); });
    recordText("proc/net/route", [this](const std::string& text) { return routeText(text, m_pseudonyms); });
    const auto addresses =
        isHostRoot(m_root) ? hostAddresses() : parseAddresses(readFile(m_root / "addresses").value_or(""));
    std::string text;
    for (const InterfaceAddress& address : addresses.value_or(std::vector<InterfaceAddress>()))
        text += fmt::format("{} {}\n", m_pseudonyms.interface(address.interfaceName),
                            m_pseudonyms.address(address.text));
    m_tree.files.emplace("addresses", text);
}

void LinuxRecording::recordProcesses() {
    ProcessFiles files(m_root);
    if (!files.open())
        return;
    const std::vector<std::int32_t> pids = files.list();
    for (const std::int32_t pid : pids)
        recordProcess(files, pid);
}

void LinuxRecording::recordProcess(ProcessFiles& files, std::int32_t pid) {
    const std::string folder = fmt::format("proc/{}/", pid);
    const std::optional<std::string_view> read = files.readStat(pid);
    if (!read)
        return;
    const std::string text(*read);
    const std::optional<ProcessStat> stat = parseProcessStat(text);
    if (!stat)
        return;
    const std::optional<std::string_view> path =
        isKernelThread(*stat) ? std::nullopt : files.readExecutablePath(pid);
    const std::string shown = processName(path.value_or(std::string_view()), stat->comm);
    const std::string name = shown.empty() ? std::string() : m_pseudonyms.process(shown);
    if (const auto rewritten = processStatText(text, pid, name))
        m_tree.files.emplace(folder + "stat", *rewritten);
    if (path && !name.empty())
        m_tree.links.emplace(folder + "exe", "/usr/bin/" + name);
}

} // namespace

std::optional<RecordedTree> recordMachine(const fs::path& root, Pseudonyms& pseudonyms) {
    return LinuxRecording(root, pseudonyms).record();
}

} // namespace orvelle
