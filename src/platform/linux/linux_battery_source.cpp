#include "platform/linux/linux_battery_source.h"

#include "platform/linux/files.h"

#include <algorithm>
#include <array>

namespace orvelle::linux_platform {
namespace {

enum class Change { rare, frequent };

struct PackAttribute {
    const char* file;
    std::optional<std::int64_t> BatteryPack::* field;
    Change change;
};

constexpr std::array packAttributes{
    PackAttribute{"capacity", &BatteryPack::capacity, Change::frequent},
    PackAttribute{"energy_now", &BatteryPack::energyNow, Change::frequent},
    PackAttribute{"energy_full", &BatteryPack::energyFull, Change::rare},
    PackAttribute{"energy_full_design", &BatteryPack::energyFullDesign, Change::rare},
    PackAttribute{"charge_now", &BatteryPack::chargeNow, Change::frequent},
    PackAttribute{"charge_full", &BatteryPack::chargeFull, Change::rare},
    PackAttribute{"charge_full_design", &BatteryPack::chargeFullDesign, Change::rare},
    PackAttribute{"voltage_now", &BatteryPack::voltageNow, Change::frequent},
    PackAttribute{"voltage_min_design", &BatteryPack::voltageMinDesign, Change::rare},
    PackAttribute{"current_now", &BatteryPack::currentNow, Change::frequent},
    PackAttribute{"power_now", &BatteryPack::powerNow, Change::frequent},
    PackAttribute{"temp", &BatteryPack::temperature, Change::frequent},
    PackAttribute{"cycle_count", &BatteryPack::cycleCount, Change::rare},
    PackAttribute{"time_to_empty_now", &BatteryPack::timeToEmpty, Change::frequent},
    PackAttribute{"time_to_full_now", &BatteryPack::timeToFull, Change::frequent},
};

/// The file, open, when it answers; one that does not is left alone until the next search.
std::optional<KeptFile> keepReadable(const std::filesystem::path& path) {
    KeptFile file(path, KeptFile::Layout::value);
    return file.read() ? std::optional(std::move(file)) : std::nullopt;
}

/// Without a readable external supply the packs' own states decide.
bool impliesExternalPower(const BatteryPack& pack) {
    return pack.status == PackStatus::charging || pack.status == PackStatus::full ||
           pack.status == PackStatus::notCharging;
}

} // namespace

LinuxBatterySource::LinuxBatterySource(std::filesystem::path root)
    : m_root(std::move(root)) {}

std::optional<std::vector<std::optional<PowerSourceDescription>>> LinuxBatterySource::readPowerSources() {
    if (m_pace.isSearchDue())
        search();
    samplePacks();
    m_isOnExternalPower = readExternalPower();
    std::vector<std::optional<PowerSourceDescription>> sources;
    if (!m_packs.empty())
        sources.emplace_back(describePacks(m_packs, m_isOnExternalPower));
    return sources;
}

std::optional<SmartBatteryProperties> LinuxBatterySource::readSmartBattery() {
    if (m_packs.empty())
        return std::nullopt;
    return combinePacks(m_packs, m_isOnExternalPower);
}

void LinuxBatterySource::search() {
    m_bays.clear();
    m_onlineFiles.clear();
    const std::filesystem::path folder = m_root / "sys/class/power_supply";
    for (const std::string& name : namesIn(folder))
        addSupply(folder / name);
}

void LinuxBatterySource::addSupply(const std::filesystem::path& folder) {
    // A supply that only feeds a device, or is a battery inside one, says nothing of the machine.
    if (readAttribute(folder / "scope") == "Device")
        return;
    const std::string type = readAttribute(folder / "type");
    if (type == "Battery")
        m_bays.push_back(openBay(folder));
    else if (auto online = keepReadable(folder / "online"); online && !type.empty())
        m_onlineFiles.push_back(std::move(*online));
}

LinuxBatterySource::Bay LinuxBatterySource::openBay(const std::filesystem::path& folder) {
    Bay bay{.folder = folder, .presence = keepReadable(folder / "present")};
    bay.isOccupied = readPresence(bay);
    lookAtPack(bay);
    return bay;
}

void LinuxBatterySource::lookAtPack(Bay& bay) {
    bay.status = keepReadable(bay.folder / "status");
    bay.rarelyChanging = {};
    bay.moving.clear();
    for (const auto& [name, field, change] : packAttributes) {
        std::optional<KeptFile> file = keepReadable(bay.folder / name);
        if (!file)
            continue;
        if (change == Change::frequent)
            bay.moving.push_back({.file = std::move(*file), .field = field});
        else
            bay.rarelyChanging.*field = readNumber(*file);
    }
}

bool LinuxBatterySource::readPresence(Bay& bay) {
    return !bay.presence || readNumber(*bay.presence) != 0;
}

void LinuxBatterySource::samplePacks() {
    m_packs.clear();
    for (Bay& bay : m_bays) {
        const bool isOccupied = readPresence(bay);
        // Another pack may have come into the bay, with figures of its own.
        if (isOccupied != bay.isOccupied)
            lookAtPack(bay);
        bay.isOccupied = isOccupied;
        std::optional<BatteryPack> pack = isOccupied ? readPack(bay) : std::nullopt;
        if (pack)
            m_packs.push_back(*pack);
        else if (isOccupied)
            m_pace.hasten();
    }
}

/// Nothing when the pack's state cannot be read: then the whole device has gone.
std::optional<BatteryPack> LinuxBatterySource::readPack(Bay& bay) {
    BatteryPack pack = bay.rarelyChanging;
    if (bay.status) {
        const std::optional<std::string_view> status = bay.status->read();
        if (!status)
            return std::nullopt;
        pack.status = parsePackStatus(*status);
    }
    for (MovingValue& value : bay.moving)
        pack.*value.field = readNumber(value.file);
    return pack;
}

bool LinuxBatterySource::readExternalPower() {
    if (m_onlineFiles.empty())
        return std::ranges::any_of(m_packs, impliesExternalPower);
    bool isAnyOnline = false;
    for (KeptFile& online : m_onlineFiles) {
        const std::optional<std::int64_t> state = readNumber(online);
        isAnyOnline = isAnyOnline || state.value_or(0) > 0;
        if (!state)
            m_pace.hasten();
    }
    return isAnyOnline;
}

} // namespace orvelle::linux_platform
