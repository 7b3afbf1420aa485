#include "probe/report/linux_devices.h"

#include "platform/linux/files.h"
#include "platform/linux/hwmon.h"
#include "platform/linux/linux_disk_source.h"
#include "platform/linux/text.h"
#include "probe/report/linux_texts.h"
#include "probe/report/pseudonyms.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace orvelle {
namespace {

namespace fs = std::filesystem;
using namespace linux_platform;

constexpr std::array supplyAttributes{"type",
                                      "scope",
                                      "present",
                                      "online",
                                      "status",
                                      "capacity",
                                      "energy_now",
                                      "energy_full",
                                      "energy_full_design",
                                      "charge_now",
                                      "charge_full",
                                      "voltage_now",
                                      "power_now",
                                      "charge_full_design",
                                      "voltage_min_design",
                                      "current_now",
                                      "temp",
                                      "cycle_count",
                                      "time_to_empty_now",
                                      "time_to_full_now"};

/// Records the devices of one machine into a tree.
class DeviceRecording {
public:
    DeviceRecording(const fs::path& root, Pseudonyms& pseudonyms, RecordedTree& tree)
        : m_root(root)
        , m_pseudonyms(pseudonyms)
        , m_tree(tree) {}

    void recordSupplies();
    void recordInterfaces();
    void recordBlockDevices();
    void recordSensors();

private:
    void recordInterface(const std::string& name);
    void recordSensor(const std::string& name);
    void recordAncestors(const fs::path& folder, const std::vector<fs::path>& powerFolders);
    void recordChannels(const fs::path& folder, bool isAsleep);

    /// A folder of the machine with its links resolved; nothing when it lies elsewhere.
    [[nodiscard]] std::optional<fs::path> resolved(const fs::path& folder) const;
    /// Where a resolved folder stands in the tree.
    [[nodiscard]] fs::path placeOf(const fs::path& folder) const;
    /// Records an attribute, one short line, if it can be read.
    void recordAttribute(const fs::path& from, const fs::path& to) {
        if (const auto text = readFile(from, maximumSize))
            m_tree.files.emplace(to.string(), std::string(trimmed(*text)) + "\n");
    }
    /// Records that a file exists, for those of which nothing else counts.
    void recordPresence(const fs::path& from, const fs::path& to) {
        if (existsUnfollowed(from))
            m_tree.files.emplace(to.string(), "");
    }

    static constexpr std::size_t maximumSize = 256;

    const fs::path& m_root;
    Pseudonyms& m_pseudonyms;
    RecordedTree& m_tree;
};

void DeviceRecording::recordSupplies() {
    const fs::path folder = m_root / "sys/class/power_supply";
    for (const std::string& name : namesIn(folder)) {
        const fs::path place = fs::path("sys/class/power_supply") / m_pseudonyms.powerSupply(name);
        for (const char* attribute : supplyAttributes)
            recordAttribute(folder / name / attribute, place / attribute);
    }
}

void DeviceRecording::recordInterfaces() {
    std::vector<std::string> names = namesIn(m_root / "sys/class/net");
    std::ranges::sort(names);
    for (const std::string& name : names)
        recordInterface(name);
}

void DeviceRecording::recordInterface(const std::string& name) {
    const fs::path folder = m_root / "sys/class/net" / name;
    const fs::path place = fs::path("sys/class/net") / m_pseudonyms.interface(name);
    for (const char* attribute : {"flags", "operstate", "type", "tun_flags"})
        recordAttribute(folder / attribute, place / attribute);
    for (const char* file : {"wireless", "bridge", "master", "device"})
        recordPresence(folder / file, place / file);
    if (const auto uevent = readFile(folder / "uevent"))
        m_tree.files.emplace((place / "uevent").string(), ueventText(*uevent));
}

void DeviceRecording::recordBlockDevices() {
    const std::string text = readFile(m_root / "proc/diskstats").value_or("");
    for (const BlockDeviceCounters& device : parseDiskstats(text)) {
        std::string name(device.name);
        std::ranges::replace(name, '/', '!');
        std::string pseudonym = m_pseudonyms.device(device.name);
        std::ranges::replace(pseudonym, '/', '!');
        for (const char* folder : {"sys/class/block", "sys/block"}) {
            const fs::path place = fs::path(folder) / pseudonym;
            recordPresence(m_root / folder / name / "device", place / "device");
            // Stands for the folder itself.
            if (existsUnfollowed(m_root / folder / name))
                m_tree.files.emplace((place / "dev").string(), "");
        }
    }
    for (const std::string& name : namesIn(m_root / "sys/block")) {
        if (!name.starts_with("zram") || m_pseudonyms.device(name) != name)
            continue;
        if (const auto statistics = readFile(m_root / "sys/block" / name / "mm_stat"))
            m_tree.files.emplace("sys/block/" + name + "/mm_stat", numbersOnly(*statistics));
    }
}

std::optional<fs::path> DeviceRecording::resolved(const fs::path& folder) const {
    std::error_code error;
    const fs::path base = fs::canonical(m_root / "sys", error);
    fs::path real = fs::canonical(folder, error);
    if (error || std::ranges::mismatch(base, real).in1 != base.end())
        return std::nullopt;
    return real;
}

fs::path DeviceRecording::placeOf(const fs::path& folder) const {
    std::error_code ignored;
    fs::path place = "sys";
    for (const fs::path& part : folder.lexically_relative(fs::canonical(m_root / "sys", ignored)))
        place /= m_pseudonyms.deviceFolder(part.string());
    return place;
}

void DeviceRecording::recordSensors() {
    for (const std::string& name : namesIn(m_root / "sys/class/hwmon"))
        recordSensor(name);
}

void DeviceRecording::recordSensor(const std::string& name) {
    const fs::path folder = m_root / "sys/class/hwmon" / name;
    const std::optional<fs::path> real = resolved(folder);
    if (!real)
        return;
    const fs::path link = fs::path("sys/class/hwmon") / name;
    const fs::path place = placeOf(*real);
    if (place != link)
        m_tree.links.emplace(link.string(), place.lexically_relative(link.parent_path()).string());

    const std::vector<fs::path> powerFolders = findHwmonDevice(m_root, folder).powerFolders;
    const bool isAsleep = std::ranges::any_of(powerFolders, [](const fs::path& power) {
        return readAttribute(power / "runtime_status").starts_with("suspend");
    });
    recordAttribute(*real / "name", place / "name");
    recordChannels(*real, isAsleep);
    const std::optional<fs::path> device = resolved(folder / "device");
    if (device) {
        m_tree.links.emplace((place / "device").string(),
                             placeOf(*device).lexically_relative(place).string());
        // Drivers that register the old way keep the attributes there.
        recordAttribute(*device / "name", placeOf(*device) / "name");
        recordChannels(*device, isAsleep);
    }
    recordAncestors(device.value_or(*real), powerFolders);
}

/// Records what is asked of the folders between a device and `sys`.
void DeviceRecording::recordAncestors(const fs::path& device, const std::vector<fs::path>& powerFolders) {
    std::error_code error;
    const fs::path base = fs::canonical(m_root / "sys", error);
    for (fs::path folder = device; folder != base && folder.has_relative_path();
         folder = folder.parent_path()) {
        const fs::path place = placeOf(folder);
        const fs::path subsystem = fs::read_symlink(folder / "subsystem", error);
        if (!error)
            m_tree.links.emplace((place / "subsystem").string(),
                                 "../" + subsystem.parent_path().filename().string() + "/" +
                                     subsystem.filename().string());
        recordAttribute(folder / "model", place / "model");
        const std::string name = folder.filename().string();
        const fs::path port = fs::path("ata_port") / name / "port_no";
        if (name.starts_with("ata"))
            recordAttribute(folder / port, place / port);
        if (std::ranges::find(powerFolders, folder / "power") == powerFolders.end())
            continue;
        for (const char* attribute : {"runtime_status", "control", "autosuspend_delay_ms"})
            recordAttribute(folder / "power" / attribute, place / "power" / attribute);
    }
}

void DeviceRecording::recordChannels(const fs::path& folder, bool isAsleep) {
    for (const std::string& file : namesIn(folder)) {
        const bool isChannel = file.starts_with("temp") || file.starts_with("fan");
        const std::string place = (placeOf(folder) / file).string();
        if (isChannel && file.ends_with("_label"))
            recordAttribute(folder / file, place);
        else if (isChannel && file.ends_with("_input"))
            m_tree.files.emplace(place, isAsleep ? "" : readAttribute(folder / file) + "\n");
    }
}

} // namespace

void recordDevices(const fs::path& root, Pseudonyms& pseudonyms, RecordedTree& tree) {
    DeviceRecording recording(root, pseudonyms, tree);
    recording.recordSupplies();
    recording.recordInterfaces();
    recording.recordBlockDevices();
    recording.recordSensors();
}

} // namespace orvelle
