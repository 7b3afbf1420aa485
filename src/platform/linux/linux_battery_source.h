#pragma once

#include "core/sources/battery_source.h"
#include "platform/linux/battery_packs.h"
#include "platform/linux/files.h"
#include "platform/linux/search_pace.h"

namespace orvelle::linux_platform {

/// Answers from `sys/class/power_supply` below a root directory. All packs of the machine are one source;
/// batteries of mice and headsets are none of the machine's and are never asked.
class LinuxBatterySource final : public BatterySource {
public:
    explicit LinuxBatterySource(std::filesystem::path root);

    [[nodiscard]] std::optional<std::vector<std::optional<PowerSourceDescription>>>
    readPowerSources() override;
    /// Answered from what `readPowerSources` read last.
    [[nodiscard]] std::optional<SmartBatteryProperties> readSmartBattery() override;

private:
    /// A number that changes from sample to sample.
    struct MovingValue {
        KeptFile file;
        std::optional<std::int64_t> BatteryPack::* field;
    };
    /// A place for a pack, which may be taken out while the program runs.
    struct Bay {
        std::filesystem::path folder;
        std::optional<KeptFile> presence;
        bool isOccupied = true;
        std::optional<KeptFile> status{};
        BatteryPack rarelyChanging{}; ///< as it was when the pack was looked at last
        std::vector<MovingValue> moving{};
    };

    void search();
    void addSupply(const std::filesystem::path& folder);
    void samplePacks();
    [[nodiscard]] bool readExternalPower();
    [[nodiscard]] static Bay openBay(const std::filesystem::path& folder);
    static void lookAtPack(Bay& bay);
    [[nodiscard]] static bool readPresence(Bay& bay);
    [[nodiscard]] static std::optional<BatteryPack> readPack(Bay& bay);

    std::filesystem::path m_root;
    SearchPace m_pace;
    std::vector<Bay> m_bays;
    std::vector<KeptFile> m_onlineFiles; ///< of the supplies that are no batteries
    std::vector<BatteryPack> m_packs;
    bool m_isOnExternalPower = false;
};

} // namespace orvelle::linux_platform
