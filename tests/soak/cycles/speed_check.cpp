#include "speed_check.h"

#include <algorithm>

namespace orvelle::soak {
namespace {

std::uint64_t movedOn(std::uint64_t from, std::uint64_t to) {
    return to > from ? to - from : 0;
}

double perSecond(std::uint64_t amount, double seconds) {
    return seconds > 0 ? static_cast<double>(amount) / seconds : 0;
}

/// The least and the most that a speed may be.
struct Bounds {
    double least = 0;
    double most = 0;

    [[nodiscard]] bool holds(double speed) const { return isBetween(speed, least, most); }
    void operator+=(const Bounds& other) {
        least += other.least;
        most += other.most;
    }
};

/// Of an interface that the sample before did not see, an earlier sample may be known or not.
Bounds boundsOf(const std::uint64_t* before, std::uint64_t now, double seconds) {
    if (before == nullptr)
        return {.least = 0, .most = perSecond(now, seconds)};
    const double exact = perSecond(movedOn(*before, now), seconds);
    return {.least = exact, .most = exact};
}

} // namespace

void SpeedCheck::check(SystemMonitor& monitor, const Answers& answers, WallTime now, Failures& failures) {
    checkNetwork(monitor.network(), answers, now, failures);
    checkDisk(monitor.disk(), answers, now, failures);
    if (answers.wereProcessesAsked)
        checkProcesses(monitor.process(), answers, now, failures);
}

void SpeedCheck::checkNetwork(const NetworkMonitor& network, const Answers& answers, WallTime now,
                              Failures& failures) {
    const bool isSample = answers.interfaces && !answers.interfaces->empty();
    const double download = network.totalDownloadSpeed();
    const double upload = network.totalUploadSpeed();
    m_downloads.follow(network.downloadHistory(), isSample ? &download : nullptr, failures);
    m_uploads.follow(network.uploadHistory(), isSample ? &upload : nullptr, failures);
    if (!isSample)
        return;
    BytesByName present;
    for (const InterfaceEntry& entry : *answers.interfaces) {
        if (!entry.isUp || entry.isLoopback)
            continue;
        Bytes& bytes = present[entry.name];
        bytes.in += entry.bytesIn;
        bytes.out += entry.bytesOut;
    }
    checkInterfaces(network, present, m_networkTime ? secondsBetween(*m_networkTime, now) : 0, failures);
    m_interfaces = std::move(present);
    m_networkTime = now;
}

void SpeedCheck::checkInterfaces(const NetworkMonitor& network, const BytesByName& present, double elapsed,
                                 Failures& failures) {
    std::map<QString, std::pair<Bounds, Bounds>> allowed;
    Bounds allIn;
    Bounds allOut;
    for (const auto& [name, bytes] : present) {
        const auto before = m_interfaces.find(name);
        const bool isKnown = before != m_interfaces.end();
        const Bounds in = boundsOf(isKnown ? &before->second.in : nullptr, bytes.in, elapsed);
        const Bounds out = boundsOf(isKnown ? &before->second.out : nullptr, bytes.out, elapsed);
        allowed[QString::fromStdString(name)] = {in, out};
        allIn += in;
        allOut += out;
    }
    for (const NetworkInterfaceInfo& info : network.interfaces()) {
        const auto bounds = allowed.find(info.name);
        if (bounds == allowed.end()) {
            failures.add("an interface is listed that is not up: " + info.name.toStdString());
            continue;
        }
        failures.require(bounds->second.first.holds(info.downloadSpeed), "download speed",
                         info.downloadSpeed);
        failures.require(bounds->second.second.holds(info.uploadSpeed), "upload speed", info.uploadSpeed);
    }
    failures.require(allIn.holds(network.totalDownloadSpeed()), "total download speed",
                     network.totalDownloadSpeed());
    failures.require(allOut.holds(network.totalUploadSpeed()), "total upload speed",
                     network.totalUploadSpeed());
}

void SpeedCheck::checkDisk(const DiskMonitor& disk, const Answers& answers, WallTime now,
                           Failures& failures) {
    const DiskIOInfo& published = disk.diskIO();
    DiskCounters sum;
    for (const DiskCounters& counters : answers.disks.value_or(std::vector<DiskCounters>{})) {
        sum.bytesRead += counters.bytesRead;
        sum.bytesWritten += counters.bytesWritten;
    }
    const double elapsed = m_diskTime ? secondsBetween(*m_diskTime, now) : 0;
    const bool isSample = answers.disks && m_disks.bytesRead != 0 && elapsed > 0;
    m_reads.follow(disk.readHistory(), isSample ? &published.readSpeed : nullptr, failures);
    m_writes.follow(disk.writeHistory(), isSample ? &published.writeSpeed : nullptr, failures);
    if (isSample) {
        const double readSpeed = perSecond(movedOn(m_disks.bytesRead, sum.bytesRead), elapsed);
        const double writeSpeed = perSecond(movedOn(m_disks.bytesWritten, sum.bytesWritten), elapsed);
        failures.require(isSame(published.readSpeed, readSpeed), "speed of reading", published.readSpeed);
        failures.require(isSame(published.writeSpeed, writeSpeed), "speed of writing", published.writeSpeed);
    } else {
        failures.require(published == m_diskIO, "the disk's speeds changed without a sample");
    }
    m_diskIO = published;
    if (answers.disks) {
        m_disks = sum;
        m_diskTime = now;
    }
}

double SpeedCheck::usageOf(const ProcessRecord& process, WallTime now) {
    constexpr double mostPercent = 800;
    const Times present{process.userNanoseconds, process.systemNanoseconds, now, m_sample};
    const auto [position, isNew] = m_processes.try_emplace(process.pid, present);
    if (isNew)
        return 0;
    const Times before = std::exchange(position->second, present);
    const std::uint64_t used = movedOn(before.user, present.user) + movedOn(before.system, present.system);
    return std::min(perSecond(used, secondsBetween(before.at, now)) / 1e9 * 100, mostPercent);
}

void SpeedCheck::checkProcesses(const ProcessMonitor& process, const Answers& answers, WallTime now,
                                Failures& failures) {
    ++m_sample;
    std::vector<double> usages;
    std::vector<std::uint64_t> sizes;
    std::map<std::int32_t, double> usageByPid;
    const auto listed = answers.processes.value_or(std::span<const ProcessRecord>{});
    for (const ProcessRecord& record : listed) {
        const auto known = m_processes.find(record.pid);
        if (known != m_processes.end())
            known->second.sample = m_sample;
        if (record.pid <= 0 || record.name.empty())
            continue;
        usages.push_back(usageByPid[record.pid] = usageOf(record, now));
        sizes.push_back(record.residentBytes);
    }
    if (!listed.empty())
        std::erase_if(m_processes, [this](const auto& entry) { return entry.second.sample != m_sample; });

    const std::size_t count = std::min(usages.size(), ProcessMonitor::maximumListed);
    std::ranges::partial_sort(usages, usages.begin() + static_cast<std::ptrdiff_t>(count), std::greater());
    std::ranges::partial_sort(sizes, sizes.begin() + static_cast<std::ptrdiff_t>(count), std::greater());
    const QList<ProcessInfo>& byUsage = process.topCPUProcesses();
    const QList<ProcessInfo>& bySize = process.topMemoryProcesses();
    if (byUsage.size() != static_cast<qsizetype>(count) || bySize.size() != static_cast<qsizetype>(count)) {
        failures.add("the lists of processes have the wrong length");
        return;
    }
    for (std::size_t place = 0; place < count; ++place) {
        const ProcessInfo& busy = byUsage[static_cast<qsizetype>(place)];
        const ProcessInfo& large = bySize[static_cast<qsizetype>(place)];
        failures.require(isSame(busy.cpuUsage, usages[place]), "usage of a process", busy.cpuUsage);
        failures.require(isSame(usageByPid[busy.pid], busy.cpuUsage), "usage of another process",
                         busy.cpuUsage);
        failures.require(large.memoryBytes == sizes[place], "memory of a process", double(large.memoryBytes));
        failures.require(isBetween(large.memoryPercent, 0, 1e30), "share of memory", large.memoryPercent);
        failures.require(!busy.name.isEmpty() && !large.name.isEmpty(), "a process without a name");
    }
}

} // namespace orvelle::soak
