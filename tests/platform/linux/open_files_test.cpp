#include "child_process.h"
#include "hwmon_tree.h"
#include "platform/host.h"
#include "platform/linux/files.h"
#include "platform/replay/fake_sources.h"
#include "process_tree.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <sys/resource.h>

namespace orvelle::linux_platform {
namespace {

std::ptrdiff_t openFileCount() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

void askEverySource(MachineSources& machine) {
    static_cast<void>(machine.processor->readTicks());
    static_cast<void>(machine.processor->readLoadAverages());
    static_cast<void>(machine.processor->readBootTime());
    static_cast<void>(machine.memory->read());
    static_cast<void>(machine.disk->readVolumes());
    static_cast<void>(machine.disk->readCounters());
    static_cast<void>(machine.network->read());
    static_cast<void>(machine.battery->readPowerSources());
    static_cast<void>(machine.battery->readSmartBattery());
    static_cast<void>(machine.sensor->readCPUTemperature());
    static_cast<void>(machine.sensor->readGPUTemperature());
    static_cast<void>(machine.sensor->readSensors());
    static_cast<void>(machine.sensor->readFanSpeeds());
    static_cast<void>(machine.process->readProcesses());
}

/// A machine whose devices, interfaces, packs and processes are there at some samples and gone at others.
class RestlessMachine {
public:
    RestlessMachine() {
        m_tree.write("proc/meminfo", "MemTotal: 1000 kB\nMemFree: 500 kB\n");
        m_tree.write("proc/loadavg", "0.1 0.2 0.3 1/2 3\n");
        m_tree.write("proc/self/mountinfo", "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n");
        m_tree.write("statfs", "/ 1000 500\n");
        m_tree.nvme(0, "0000:01:00.0", 0, "Stays", "40000");
    }

    void moveTo(int sample) {
        const std::string disk = " 8 0 sda 1 0 2 3 4 0 5 6 0 7 8\n";
        m_tree.write("proc/stat", "cpu0 1 2 3 4\nbtime 77\n");
        m_tree.write("proc/diskstats", sample % 2 == 0 ? disk : disk + " 8 16 sdb 1 0 2 3 4 0 5 6 0 7 8\n");
        const std::string loopback = "lo: 5 0 0 0 0 0 0 0 5 0 0 0 0 0 0 0\n";
        m_tree.write("proc/net/dev",
                     sample % 3 == 0 ? loopback : loopback + "usb0: 5 0 0 0 0 0 0 0 5 0 0 0 0 0 0 0\n");
        setBattery(sample % 4 < 2);
        setGraphics(sample % 5 < 3);
        const int gone = 100 + (sample + 3) % 7;
        const int born = 100 + sample % 7;
        m_tree.remove("proc/" + std::to_string(gone));
        const MadeProcess process{.pid = born, .exe = {}};
        m_tree.write("proc/" + std::to_string(born) + "/stat", process.statLine());
    }

    [[nodiscard]] const std::filesystem::path& root() const { return m_tree.root(); }

private:
    void setBattery(bool isThere) const {
        const std::string folder = "sys/class/power_supply/BAT0/";
        m_tree.remove(folder);
        if (!isThere)
            return;
        m_tree.write(folder + "type", "Battery");
        m_tree.write(folder + "status", "Full");
        m_tree.write(folder + "capacity", "90");
    }
    void setGraphics(bool isThere) const {
        const std::string device = "pci0000:00/0000:03:00.0";
        m_tree.remove(HwmonTree::chipFolder(1));
        m_tree.remove("sys/devices/" + device);
        if (!isThere)
            return;
        m_tree.device(device, "pci");
        m_tree.chip(1, device, "amdgpu", {{"temp1_input", "52000"}, {"fan1_input", "900"}});
    }

    HwmonTree m_tree;
};

TEST(OpenFiles, LeaveTheLastOnesThatThisProcessMayHaveToOthers) {
    RestlessMachine restless;
    restless.moveTo(0);
    constexpr int limit = 24;
    const auto countAmongLast = [] {
        int count = 0;
        for (int descriptor = limit - KeptFile::descriptorsLeftFree; descriptor < limit; ++descriptor)
            count += ::fcntl(descriptor, F_GETFD) >= 0 ? 1 : 0;
        return count;
    };
    const auto heldAmongLast = inChildProcess([&restless, &countAmongLast] {
        const rlimit limits{.rlim_cur = limit, .rlim_max = limit};
        FakeClock clock;
        MachineSources machine = makeTreeSources(restless.root(), clock.reader());
        const int before = countAmongLast();
        if (::setrlimit(RLIMIT_NOFILE, &limits) != 0)
            return limit;
        askEverySource(machine);
        if (!machine.memory->read() || !machine.process->readProcesses())
            return limit;
        return countAmongLast() - before;
    });
    EXPECT_LE(heldAmongLast, 1); // the folder of the processes
}

TEST(OpenFiles, DoNotGrowInNumberWhileProcessesAndDevicesComeAndGo) {
    RestlessMachine restless;
    FakeClock clock;
    MachineSources machine = makeTreeSources(restless.root(), clock.reader());
    std::ptrdiff_t mostOfFirstHalf = 0;
    std::ptrdiff_t mostOfSecondHalf = 0;
    for (int sample = 0; sample < 200; ++sample) {
        restless.moveTo(sample);
        askEverySource(machine);
        std::ptrdiff_t& most = sample < 100 ? mostOfFirstHalf : mostOfSecondHalf;
        most = std::max(most, openFileCount());
    }
    EXPECT_EQ(mostOfSecondHalf, mostOfFirstHalf);
}

TEST(OpenFiles, AreGivenBackWithTheSources) {
    const std::ptrdiff_t before = openFileCount();
    RestlessMachine restless;
    restless.moveTo(0);
    FakeClock clock;
    std::optional<MachineSources> machine = makeTreeSources(restless.root(), clock.reader());
    askEverySource(*machine);
    EXPECT_GT(openFileCount(), before) << "the count sees what is kept open";
    machine.reset();
    EXPECT_EQ(openFileCount(), before);
}

TEST(OpenFiles, OfTheHostDoNotGrowInNumberWhileProcessesComeAndGo) {
    MachineSources machine = makeHostSources();
    askEverySource(machine);
    const std::ptrdiff_t before = openFileCount();
    for (int sample = 0; sample < 200; ++sample) {
        const ChildProcess child;
        askEverySource(machine);
    }
    askEverySource(machine);
    EXPECT_EQ(openFileCount(), before);
}

} // namespace
} // namespace orvelle::linux_platform
