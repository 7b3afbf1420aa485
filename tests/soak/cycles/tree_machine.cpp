#include "tree_machine.h"

#include "common/counter.h"
#include "platform/host.h"

#include <algorithm>

namespace orvelle::soak {
namespace {

constexpr std::uint64_t samplesPerEmptyFile = 500;
constexpr std::size_t mostParts = 6;

constexpr std::uint64_t sectorsPerSample = 500'000;

/// The label ends with the colon after the name of an interface.
std::size_t labelOfInterface(std::string_view line) {
    return line.rfind(':') == std::string_view::npos ? 0 : line.rfind(':') + 1;
}

std::size_t labelOfCore(std::string_view line) {
    return line.starts_with("cpu") ? line.find(' ') : 0;
}

/// Two numbers and the name of a disk stand before its counters.
std::size_t labelOfDisk(std::string_view line) {
    std::size_t end = 0;
    for (int word = 0; word < 3; ++word)
        end = std::min(line.find(' ', line.find_first_not_of(' ', end)), line.size());
    return end;
}

/// A number as kernels print them: small, or at the limit of 32 or 64 bits, or below zero.
std::string oddNumber(std::uint64_t usual, Random& random) {
    constexpr const char* limits[] = {
        "0",  "4294967295",          "2147483647",          "18446744073709551615",
        "-1", "9223372036854775807", "-9223372036854775808"};
    return random.oneIn(50) ? random.oneOf(limits) : std::to_string(random.upTo(usual));
}

std::filesystem::path chipFolder(const std::string& name) {
    return std::filesystem::path("sys/class/hwmon") / name;
}

std::filesystem::path packFolder(const std::string& name) {
    return std::filesystem::path("sys/class/power_supply") / name;
}

} // namespace

MachineSources TreeMachine::sources() {
    reset();
    return makeTreeSources(m_tree.root(), [this] { return clocks.wall; });
}

template <class Come, class Go>
void TreeMachine::comeAndGo(Names& names, const std::string& start, Random& random, Come come, Go go) {
    if (random.oneIn(samplesPerArrival) && names.size() < mostParts) {
        const std::string name = random.name(start);
        if (std::ranges::find(names, name) == names.end()) {
            names.push_back(name);
            come(name);
        }
    }
    if (random.oneIn(samplesPerArrival) && !names.empty()) {
        const auto leaving = names.begin() + static_cast<std::ptrdiff_t>(random.upTo(names.size() - 1));
        go(*leaving);
        names.erase(leaving);
    }
}

void TreeMachine::reset() {
    for (const std::string& name : m_interfaces)
        m_tree.remove("sys/class/net/" + name);
    for (const std::string& pid : m_processes)
        m_tree.remove("proc/" + pid);
    for (const std::string& name : m_chips)
        m_tree.remove(chipFolder(name));
    for (const std::string& name : m_packs)
        m_tree.remove(packFolder(name));
    for (Names* names : {&m_cores, &m_interfaces, &m_disks, &m_volumes, &m_processes, &m_chips, &m_packs})
        names->clear();
    for (const auto* recorded : {&m_recordedTexts, &m_recordedInputs, &m_recordedCharges}) {
        for (const auto& [path, text] : *recorded)
            m_tree.write(path, text);
    }
    m_processors = CountedText(m_recordedTexts["proc/stat"], labelOfCore);
    m_interfaceCounters = CountedText(m_recordedTexts["proc/net/dev"], labelOfInterface);
    m_diskCounters = CountedText(m_recordedTexts["proc/diskstats"], labelOfDisk);
}

void TreeMachine::change(Random& random) {
    clocks.goOn(random);
    changeProcessors(random);
    changeMemory(random);
    changeInterfaces(random);
    changeDisks(random);
    changeVolumes(random);
    changeProcesses(random);
    changeChips(random);
    changePacks(random);
}

void TreeMachine::write(const std::filesystem::path& path, std::string_view text, Random& random) {
    m_tree.write(path, random.oneIn(samplesPerEmptyFile) ? std::string_view() : text);
}

void TreeMachine::changeProcessors(Random& random) {
    comeAndGo(
        m_cores, "cpu", random, [this](const std::string& name) { m_processors.add(name, 10); },
        [this](const std::string& name) { m_processors.remove(name); });
    m_processors.count(ticksPerSample, random);
    write("proc/stat", m_processors.text(), random);
    const std::string load = std::to_string(random.upTo(random.oneIn(50) ? UINT64_MAX >> 11 : 100));
    write("proc/loadavg", load + ".07 0.00 " + load + ".99 1/200 " + oddNumber(4'194'304, random) + '\n',
          random);
}

void TreeMachine::changeMemory(Random& random) {
    const std::string& recorded = m_recordedTexts["proc/meminfo"];
    if (!random.oneIn(5) || recorded.empty())
        return;
    // One line gets another number.
    const std::size_t start = recorded.find('\n', random.upTo(recorded.size() - 1));
    const std::size_t colon = recorded.find(':', start == std::string::npos ? 0 : start);
    if (colon == std::string::npos)
        return;
    const std::size_t end = std::min(recorded.find('\n', colon), recorded.size());
    write("proc/meminfo",
          recorded.substr(0, colon + 1) + ' ' + oddNumber(100'000'000, random) + " kB" + recorded.substr(end),
          random);
}

void TreeMachine::changeInterfaces(Random& random) {
    comeAndGo(
        m_interfaces, "veth", random,
        [this](const std::string& name) {
            m_interfaceCounters.add(name + ':', 16);
            m_tree.write("sys/class/net/" + name + "/flags", "0x1003\n");
            m_tree.write("sys/class/net/" + name + "/operstate", "up\n");
        },
        [this](const std::string& name) {
            m_interfaceCounters.remove(name + ':');
            m_tree.remove("sys/class/net/" + name);
        });
    m_interfaceCounters.count(bytesPerSample, random);
    write("proc/net/dev", m_interfaceCounters.text(), random);
    std::string addresses = m_recordedTexts["addresses"];
    for (const std::string& name : m_interfaces) {
        addresses += name + " 192.0.2." + std::to_string(random.upTo(255)) + '\n';
        if (random.oneIn(50))
            m_tree.write("sys/class/net/" + name + "/operstate", random.oneIn(2) ? "down\n" : "up\n");
    }
    write("addresses", addresses, random);
}

void TreeMachine::changeDisks(Random& random) {
    const auto label = [](const std::string& name) {
        // Digits as letters, because no disk has a number in its name.
        std::string disk = name;
        std::ranges::for_each(disk, [](char& letter) {
            letter = letter >= '0' && letter <= '9' ? static_cast<char>('a' + (letter - '0')) : letter;
        });
        return "   8      16 " + disk;
    };
    comeAndGo(
        m_disks, "sd", random, [&](const std::string& name) { m_diskCounters.add(label(name), 17); },
        [&](const std::string& name) { m_diskCounters.remove(label(name)); });
    m_diskCounters.count(sectorsPerSample, random);
    write("proc/diskstats", m_diskCounters.text(), random);
}

void TreeMachine::changeVolumes(Random& random) {
    const auto ignored = [](const std::string&) {};
    comeAndGo(m_volumes, "disk", random, ignored, ignored);
    if (!random.oneIn(10))
        return;
    std::string mounts = m_recordedTexts["proc/self/mountinfo"];
    std::string spaces = m_recordedTexts["statfs"];
    int device = 200;
    for (const std::string& name : m_volumes) {
        const std::string number = std::to_string(++device);
        mounts += "9" + number + " 27 8:" + number + " / /media/" + name + " rw shared:1 - ext4 /dev/sdz" +
                  number + " rw\n";
        spaces += "/media/" + name + ' ' + oddNumber(1'000'000'000, random) + ' ' +
                  oddNumber(1'000'000'000, random) + '\n';
    }
    write("proc/self/mountinfo", mounts, random);
    write("statfs", spaces, random);
}

void TreeMachine::writeProcess(const std::string& pid, Random& random) {
    const std::string user = oddNumber(100'000, random);
    const std::string system = oddNumber(100'000, random);
    const std::string start = std::to_string(random.upTo(2));
    const std::string comm = random.oneIn(10) ? random.name("renamed ") : "process) R (";
    m_tree.write("proc/" + pid + "/stat",
                 pid + " (" + comm + ") " + (random.oneIn(20) ? 'Z' : 'S') +
                     " 0 1 1 0 -1 4194560 6644 0 66 0 " + user + ' ' + system + " 0 0 20 0 1 0 " + start +
                     " 95248384 " + oddNumber(4000, random) + " 18446744073709551615 0 0 0 0 0 0\n");
}

void TreeMachine::changeProcesses(Random& random) {
    // Names of other folders than "1" to "1999999999" are no processes.
    comeAndGo(
        m_processes, "1", random, [&](const std::string& pid) { writeProcess(pid, random); },
        [this](const std::string& pid) { m_tree.remove("proc/" + pid); });
    if (!m_processes.empty())
        writeProcess(random.oneOf(m_processes), random);
}

void TreeMachine::changeChips(Random& random) {
    comeAndGo(
        m_chips, "hwmon", random,
        [&](const std::string& name) {
            m_tree.write(chipFolder(name) / "name", random.oneIn(2) ? "coretemp\n" : "nvme\n");
            m_tree.write(chipFolder(name) / "temp1_input", "40000\n");
            m_tree.write(chipFolder(name) / "fan1_input", "1000\n");
        },
        [this](const std::string& name) { m_tree.remove(chipFolder(name)); });
    for (const std::string& name : m_chips)
        write(chipFolder(name) / "temp1_input", oddNumber(200'000, random) + '\n', random);
    for (const auto& [path, text] : m_recordedInputs) {
        if (random.oneIn(20))
            write(path, oddNumber(120'000, random) + '\n', random);
    }
}

void TreeMachine::changePacks(Random& random) {
    const auto writeState = [&](const std::string& name) {
        constexpr const char* states[] = {"Charging\n", "Discharging\n", "Full\n", "Unknown\n",
                                          "Not charging\n"};
        write(packFolder(name) / "status", random.oneOf(states), random);
        write(packFolder(name) / "energy_now", oddNumber(50'000'000, random) + '\n', random);
    };
    comeAndGo(
        m_packs, "BAT", random,
        [&](const std::string& name) {
            m_tree.write(packFolder(name) / "type", "Battery\n");
            m_tree.write(packFolder(name) / "present", "1\n");
            m_tree.write(packFolder(name) / "energy_full", oddNumber(50'000'000, random) + '\n');
            m_tree.write(packFolder(name) / "energy_full_design", oddNumber(50'000'000, random) + '\n');
            m_tree.write(packFolder(name) / "voltage_now", oddNumber(12'000'000, random) + '\n');
            m_tree.write(packFolder(name) / "power_now", oddNumber(20'000'000, random) + '\n');
            writeState(name);
        },
        [this](const std::string& name) { m_tree.remove(packFolder(name)); });
    for (const std::string& name : m_packs) {
        if (random.oneIn(5))
            writeState(name);
        if (random.oneIn(50))
            m_tree.write(packFolder(name) / "present", random.oneIn(2) ? "0\n" : "1\n");
    }
    for (const auto& [path, text] : m_recordedCharges) {
        if (random.oneIn(20))
            write(path, oddNumber(50'000'000, random) + '\n', random);
    }
}

} // namespace orvelle::soak
