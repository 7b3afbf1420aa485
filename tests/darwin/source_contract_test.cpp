#include "darwin/simulated/addresses.h"
#include "darwin/typical_machine.h"
#include "platform/host.h"
#include "support/source_contract.h"

#include <limits>

namespace orvelle {
namespace {

using namespace simulated;

constexpr std::uint64_t largestCounter = std::numeric_limits<std::uint64_t>::max();
constexpr std::int64_t largestInteger = std::numeric_limits<std::int64_t>::max();
constexpr unsigned int flagsOfAnInterfaceThatIsUp = 0x8863;
/// Breaks a line, turns the text around and ends in half a character.
const std::string oddName = "a\nb\xE2\x80\xAE\xC3";

class DarwinSourceContractTest : public DarwinTest {
protected:
    static void setTemperature(const std::string& key, std::vector<std::uint8_t> bytes) {
        machine().controllerKeys[key] = {.type = "flt ", .size = 4, .bytes = std::move(bytes)};
    }
};

TEST_F(DarwinSourceContractTest, HoldsForATypicalMachine) {
    expectKeepsContract(host());
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForATree) {
    expectKeepsContract(makeTreeSources("/", [] { return WallTime{}; }));
}

TEST_F(DarwinSourceContractTest, HoldsForTenThousandProcessesOfExtremeFigures) {
    for (std::int32_t pid = 1; pid <= 10'000; ++pid)
        machine().processes.push_back({.pid = pid,
                                       .path = "/" + oddName + std::to_string(pid),
                                       .user = largestCounter,
                                       .system = largestCounter - 1,
                                       .residentBytes = largestCounter});
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForExtremeAnswersOfTheController) {
    setTemperature("Tp09", {0x7f, 0x80, 0, 0});       // infinity
    setTemperature("Tp0T", {0x7f, 0xc0, 0, 0});       // no number
    setTemperature("Tp01", {0x49, 0x74, 0x24, 0});    // a million
    setTemperature("Tg05", {0xff, 0x80, 0, 0});       // minus infinity
    setTemperature("Tg0D", {0x43, 0x15, 0xff, 0xff}); // just below 150
    machine().controllerKeys["F0Ac"] = {.type = "ui32", .size = 4, .bytes = {0xff, 0xff, 0xff, 0xff}};
    setTemperature("F1Ac", {0x5e, 0xff, 0xff, 0xff}); // about 2^63
    setTemperature("F2Ac", {0x3f, 0, 0, 0});          // half a revolution
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForMoreUsedSwapThanThereIs) {
    machine().setSysctl(swapUsageName, std::array<std::uint64_t, 4>{gibibyte, 0, largestCounter, 16384});
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForMemoryThatIsAllCache) {
    constexpr std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
    machine().pages = {.active = most, .inactive = most, .purgeable = most, .external = most};
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForOddInterfaces) {
    for (const std::string& name : {std::string(), std::string("\xE2\x80\xAE"), oddName})
        machine().interfaces.push_back({.name = name,
                                        .flags = flagsOfAnInterfaceThatIsUp,
                                        .address = linkAddress(),
                                        .bytes = {{~0U, ~0U}}});
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForOddVolumesAndTheLargestCounters) {
    machine().volumes->push_back(
        {.path = "/Volumes/" + oddName,
         .values = {{{"name", oddName}, {"total", largestInteger - 1}, {"available", largestInteger}}}});
    const Service driver{.properties = Properties{{"Statistics", Properties{{"Bytes (Read)", largestInteger},
                                                                            {"Bytes (Write)", -1}}}}};
    machine().services["IOBlockStorageDriver"] = {driver, driver};
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForLoadAveragesThatAreNotNumbers) {
    machine().loadAverages = {std::numeric_limits<double>::quiet_NaN(), -1,
                              std::numeric_limits<double>::infinity()};
    expectKeepsContract(host());
}

TEST_F(DarwinSourceContractTest, HoldsForTheLargestTicks) {
    constexpr std::int32_t most = -1; // the counters have no sign
    machine().processors = {.count = 1, .words = {most, most, most, most}};
    expectKeepsContract(host());
}

} // namespace
} // namespace orvelle
