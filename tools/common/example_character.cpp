#include "common/example_character.h"

namespace orvelle {
namespace {

constexpr std::int64_t gigabyte = 1'000'000'000;
constexpr std::int64_t day = 86'400;
constexpr std::int64_t hour = 3'600;

std::vector<ExampleInterface> laptopInterfaces() {
    return {{.entry = {.name = "enp0s31f6",
                       .isUp = true,
                       .ipv4Address = "10.20.0.14",
                       .ipv6Address = "2001:db8:77:1::2c6f",
                       .kind = InterfaceKind::ethernet},
             .downloadRate = 210'000,
             .uploadRate = 540'000},
            {.entry = {.name = "wlan0",
                       .isUp = true,
                       .ipv4Address = "192.168.1.20",
                       .ipv6Address = "2001:db8:4f2a:81c0::1d3e",
                       .kind = InterfaceKind::wifi},
             .downloadRate = 1'840'000,
             .uploadRate = 96'000}};
}

std::vector<MountedVolume> laptopVolumes() {
    return {{.path = "/", .isLocal = true, .totalBytes = 512 * gigabyte, .freeBytes = 212 * gigabyte},
            {.path = "/media/alex/Backup",
             .name = "Backup",
             .isLocal = true,
             .totalBytes = 2'000 * gigabyte,
             .freeBytes = 431 * gigabyte}};
}

std::vector<ExampleProcess> laptopProcesses() {
    return {{.name = "firefox", .cpuPercent = 64, .mebibytes = 1437},
            {.name = "cc1plus", .cpuPercent = 97, .mebibytes = 612},
            {.name = "gnome-shell", .cpuPercent = 21, .mebibytes = 389},
            {.name = "Isolated Web Content", .cpuPercent = 38, .mebibytes = 846},
            {.name = "thunderbird", .cpuPercent = 3, .mebibytes = 574},
            {.name = "pipewire", .cpuPercent = 5, .mebibytes = 41},
            {.name = "postgres", .cpuPercent = 1, .mebibytes = 1024}};
}

ExampleCharacter laptop() {
    ExampleCharacter machine{.calmPercent = 6, .swingPercent = 105};
    machine.loadAverages = {2.41, 1.87, 1.32};
    machine.uptimeSeconds = 3 * day + 7 * hour + 42 * 60;
    machine.memory = {.wired = 12,
                      .active = 26,
                      .activeSwing = 33,
                      .inactive = 18,
                      .compressed = 9,
                      .cached = 13,
                      .swapTotalMebibytes = 8192,
                      .swapUsedMebibytes = 1340};
    machine.interfaces = laptopInterfaces();
    machine.readRate = 5'200'000;
    machine.writeRate = 2'900'000;
    machine.volumes = laptopVolumes();
    machine.powerSources = {{.currentCapacity = 64,
                             .isCharging = false,
                             .powerSourceState = PowerSourceDescription::batteryPower,
                             .isCharged = false,
                             .timeToEmpty = 167,
                             .timeToFullCharge = -1}};
    machine.smartBattery = {.cycleCount = 312,
                            .designCapacity = 5088,
                            .rawMaxCapacity = 4417,
                            .temperature = 3140,
                            .voltage = 12310,
                            .amperage = -1020};
    machine.cpuCelsius = 58;
    machine.gpuCelsius = 47;
    machine.sensors = {
        {.key = "package", .name = "coretemp Package id 0", .value = 58},
        {.key = "gpu", .name = "amdgpu edge", .value = 47},
        {.key = "drive", .name = "Samsung SSD 970 EVO Plus Composite", .value = 71},
        {.key = "wireless", .name = "iwlwifi_1", .value = 38},
    };
    machine.fanSpeeds = {2140, 1985};
    machine.processes = laptopProcesses();
    return machine;
}

std::vector<ExampleInterface> loadedInterfaces() {
    return {{.entry = {.name = "enx00e04c680a5b",
                       .isUp = true,
                       .ipv4Address = "203.113.200.254",
                       .ipv6Address = "2001:db8:4f2a:81c0:9d3e:77b2:4c1f:e05d"},
             .downloadRate = 113'000'000,
             .uploadRate = 110'600'000},
            {.entry = {.name = "wlp0s20f3", .isUp = true, .ipv4Address = "192.168.100.200"},
             .downloadRate = 74'000'000,
             .uploadRate = 51'000'000}};
}

std::vector<MountedVolume> loadedVolumes() {
    return {{.path = "/", .isLocal = true, .totalBytes = 512 * gigabyte, .freeBytes = 0},
            {.path = "/media/alex/Photographs of many years",
             .name = "Photographs of many years",
             .isLocal = true,
             .totalBytes = 18'000 * gigabyte,
             .freeBytes = 1'100 * gigabyte}};
}

std::vector<ExampleProcess> loadedProcesses() {
    return {{.name = "qemu-system-x86_64", .cpuPercent = 800, .mebibytes = 65'536},
            {.name = "rustc", .cpuPercent = 796, .mebibytes = 23'552},
            {.name = "java", .cpuPercent = 640, .mebibytes = 12'288},
            {.name = "ld.lld", .cpuPercent = 388, .mebibytes = 4'096},
            {.name = "clang-tidy-19", .cpuPercent = 200, .mebibytes = 1'000}};
}

ExampleCharacter loadedLaptop() {
    ExampleCharacter machine{.calmPercent = 20, .swingPercent = 60, .climbPercent = 80};
    machine.loadAverages = {128.36, 104.72, 88.05};
    machine.uptimeSeconds = 412 * day + 23 * hour + 56 * 60;
    machine.memory = {.gibibytes = 128,
                      .wired = 21,
                      .active = 14,
                      .activeSwing = 9,
                      .inactive = 8,
                      .compressed = 30,
                      .swapTotalMebibytes = 131'072,
                      .swapUsedMebibytes = 130'969};
    machine.interfaces = loadedInterfaces();
    machine.readRate = 2'000'000'000;
    machine.writeRate = 900'000'000;
    machine.volumes = loadedVolumes();
    machine.powerSources = {{.currentCapacity = 100,
                             .isCharging = true,
                             .powerSourceState = PowerSourceDescription::externalPower,
                             .isCharged = false,
                             .timeToEmpty = -1,
                             .timeToFullCharge = 1439}};
    machine.smartBattery = {.cycleCount = 2048,
                            .designCapacity = 13'600,
                            .rawMaxCapacity = 7'480,
                            .temperature = 6120,
                            .voltage = 20'480,
                            .amperage = 6210};
    machine.cpuCelsius = 112;
    machine.gpuCelsius = 104;
    machine.sensors = {{.key = "package", .name = "coretemp Package id 0", .value = 112},
                       {.key = "gpu", .name = "amdgpu junction", .value = 104},
                       {.key = "drive", .name = "Samsung SSD 970 EVO Plus Composite", .value = 89}};
    machine.fanSpeeds = {6150, 5980, 12'480};
    machine.processes = loadedProcesses();
    return machine;
}

ExampleCharacter bareComputer() {
    ExampleCharacter machine{.coreCount = 16, .cycles = 1, .calmPercent = 8, .swingPercent = 66};
    machine.interfaces = {
        {.entry = {
             .name = "eth0", .isUp = true, .ipv4Address = "192.168.1.20", .kind = InterfaceKind::ethernet}}};
    return machine;
}

} // namespace

ExampleCharacter exampleCharacter(ExampleMachine machine) {
    switch (machine) {
    case ExampleMachine::laptop:
        return laptop();
    case ExampleMachine::loadedLaptop:
        return loadedLaptop();
    case ExampleMachine::bareComputer:
        return bareComputer();
    }
    return {};
}

} // namespace orvelle
