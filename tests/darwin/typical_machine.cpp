#include "darwin/typical_machine.h"

#include "darwin/simulated/addresses.h"
#include "platform/host.h"

namespace orvelle {

using namespace simulated;

namespace {

/// IFF_UP and IFF_LOOPBACK, with flags around them that nobody asks for.
constexpr unsigned int up = 0x8863, down = 0x8822, loopback = 0x8049;

std::vector<Interface> typicalInterfaces() {
    return {{.name = "lo0", .flags = loopback, .address = linkAddress(), .bytes = {{7, 7}}},
            {.name = "lo0", .flags = loopback, .address = ipv4Address({127, 0, 0, 1})},
            {.name = "en0", .flags = up, .address = linkAddress(), .bytes = {{4000000000, 3000000000}}},
            {.name = "en0", .flags = up, .address = ipv4Address({192, 168, 1, 20})},
            {.name = "en0", .flags = up, .address = ipv6Address({0x2001, 0xdb8, 0, 0, 0, 0, 0, 7})},
            {.name = "utun0", .flags = down, .address = ipv4Address({10, 0, 0, 2})}};
}

std::vector<Process> typicalProcesses() {
    return {{.pid = 900, .path = "/usr/bin/compile", .user = 5, .system = 6, .residentBytes = 7},
            {.pid = 321,
             .path = "/Applications/Browser.app/Contents/MacOS/Browser",
             .user = 30,
             .system = 40,
             .residentBytes = 50},
            {.pid = 77, .shortName = "helper", .user = 1, .system = 2, .residentBytes = 3},
            {.pid = 60, .path = "/usr/sbin/other", .shortName = "other", .informationSize = 0},
            {.pid = 0, .shortName = "kernel_task"}};
}

Service driver(std::int64_t bytesRead, std::int64_t bytesWritten) {
    return {.properties = Properties{
                {"Statistics", Properties{{"Bytes (Read)", bytesRead}, {"Bytes (Write)", bytesWritten}}}}};
}

Service battery() {
    return {.properties = Properties{{"CycleCount", 120},
                                     {"DesignCapacity", 5000},
                                     {"AppleRawMaxCapacity", 4700},
                                     {"NominalChargeCapacity", 4800},
                                     {"Temperature", 3050},
                                     {"Voltage", 12000},
                                     {"Amperage", -1500}}};
}

Properties powerSource() {
    return {{"Current Capacity", 80},   {"Is Charging", false}, {"Power Source State", "Battery Power"},
            {"Is Charged", false},      {"Time to Empty", 240}, {"Time to Full Charge", -1},
            {"Type", "InternalBattery"}};
}

} // namespace

Machine typicalMachine() {
    Machine machine;
    machine.processors = {.count = 2, .words = {100, 50, 800, 10, 200, 60, 700, 20}};
    machine.pages = {.free = 1000,
                     .active = 5000,
                     .inactive = 4000,
                     .wired = 2000,
                     .compressor = 500,
                     .purgeable = 100,
                     .external = 1500};
    machine.loadAverages = {1.5, 2.5, 3.5};
    machine.setSysctl(bootTimeName, std::array<std::int64_t, 2>{1767225600, 250000});
    machine.setSysctl(physicalMemoryName, 8 * gibibyte);
    machine.setSysctl(swapUsageName, std::array<std::uint64_t, 4>{2 * gibibyte, gibibyte, gibibyte, 16384});
    machine.interfaces = typicalInterfaces();
    machine.processes = typicalProcesses();
    machine.services["IOBlockStorageDriver"] = {driver(1000, 2000), driver(30000, 40000)};
    machine.services["AppleSmartBattery"] = {battery()};
    machine.services["AppleSMC"] = {{}};
    machine.powerSources = PropertyList{powerSource()};
    machine.volumes = {
        {.path = "/",
         .values = {{{"name", "Macintosh HD"},
                     {"total", 500},
                     {"available", 150},
                     {"important", 200},
                     {"local", true}}}},
        {.path = "/Volumes/Share",
         .values = {{{"name", "Share"}, {"total", 900}, {"available", 100}, {"local", false}}}}};
    machine.controllerKeys["Tp09"] = {.type = "flt ", .size = 4, .bytes = {0x42, 0x48, 0, 0}};
    machine.controllerKeys["F0Ac"] = {.type = "ui16", .size = 2, .bytes = {0x07, 0xd0}};
    return machine;
}

MemoryReading typicalMemoryReading() {
    return {.pageSize = 16384,
            .physicalMemory = 8 * gibibyte,
            .freePages = 1000,
            .activePages = 5000,
            .inactivePages = 4000,
            .wiredPages = 2000,
            .compressorPages = 500,
            .purgeablePages = 100,
            .externalPages = 1500,
            .swapTotal = 2 * gibibyte,
            .swapUsed = gibibyte};
}

DarwinTest::DarwinTest() {
    kernel() = Kernel{};
    machine() = typicalMachine();
}

void DarwinTest::TearDown() {
    m_host.reset();
    EXPECT_EQ(kernel().live(), Live{});
    EXPECT_EQ(kernel().complaints(), std::vector<std::string>{});
}

MachineSources& DarwinTest::host() {
    if (!m_host) {
        m_host = makeHostSources();
        kernel().forgetCalls();
    }
    return *m_host;
}

std::vector<std::string> DarwinTest::takeSystemCalls() {
    std::vector<std::string> calls = kernel().systemCalls();
    kernel().forgetCalls();
    return calls;
}

void DarwinTest::startAfresh() {
    DarwinTest::TearDown();
    kernel() = Kernel{};
    machine() = typicalMachine();
}

} // namespace orvelle
