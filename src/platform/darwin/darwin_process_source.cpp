#include "platform/darwin/darwin_process_source.h"

#include "platform/darwin/kernel_answers.h"
#include "platform/readable_name.h"

#include <algorithm>
#include <array>
#include <libproc.h>

namespace orvelle::darwin_platform {
namespace {

/// The text that a call wrote, which by its account has `length` bytes; empty when that is not above 0.
template <std::size_t size>
std::string_view textIn(const std::array<char, size>& buffer, int length) {
    const std::size_t written = std::min(static_cast<std::size_t>(std::max(length, 0)), size);
    const std::string_view text(buffer.data(), written);
    return text.substr(0, text.find('\0'));
}

void takeName(ProcessRecord& record) {
    static_assert(PROC_PIDPATHINFO_MAXSIZE == 4096);
    std::array<char, PROC_PIDPATHINFO_MAXSIZE> path; // left as it is: 4096 zeros a process are not for free
    const std::string_view executable = textIn(path, proc_pidpath(record.pid, path.data(), path.size()));
    if (!executable.empty() && executable != "/") {
        assignReadableName(record.name, lastPathComponent(executable));
        return;
    }
    std::array<char, 256> name;
    assignReadableName(record.name, textIn(name, proc_name(record.pid, name.data(), name.size())));
}

void inspect(ProcessRecord& record, std::int32_t pid) {
    record.pid = pid;
    record.name.clear();
    static_assert(sizeof(proc_taskinfo) == 96);
    proc_taskinfo information{};
    const int size = proc_pidinfo(pid, PROC_PIDTASKINFO, 0, &information, sizeof information);
    if (size != sizeof information)
        return;
    takeName(record);
    record.userNanoseconds = std::min(information.pti_total_user, ProcessRecord::maximumNanoseconds);
    record.systemNanoseconds = std::min(information.pti_total_system, ProcessRecord::maximumNanoseconds);
    record.residentBytes = std::min(information.pti_resident_size, ProcessRecord::maximumBytes);
}

} // namespace

std::string_view lastPathComponent(std::string_view path) {
    const std::size_t end = path.find_last_not_of('/');
    if (end == std::string_view::npos)
        return path.substr(0, 1);
    path = path.substr(0, end + 1);
    return path.substr(path.rfind('/') + 1);
}

std::optional<std::uint64_t> DarwinProcessSource::readTotalMemory() {
    return readSysctl<std::uint64_t>(CTL_HW, HW_MEMSIZE);
}

std::optional<std::span<const ProcessRecord>> DarwinProcessSource::readProcesses() {
    const std::span<const std::int32_t> pids = listProcesses();
    if (pids.empty())
        return std::nullopt;
    // Never made shorter: the records beyond the end keep their names' memory for the next sample.
    if (m_records.size() < pids.size())
        m_records.resize(pids.size());
    std::size_t count = 0;
    for (const std::int32_t pid : pids) {
        if (pid > 0)
            inspect(m_records[count++], pid);
    }
    return std::span(m_records).first(count);
}

std::span<const std::int32_t> DarwinProcessSource::listProcesses() {
    // The first call answers the size of the list, with some room for processes that begin before the second.
    const int expectedSize = proc_listpids(PROC_ALL_PIDS, 0, nullptr, 0);
    if (expectedSize <= 0)
        return {};
    m_pids.assign(static_cast<std::size_t>(expectedSize) / sizeof(std::int32_t), 0);
    const int bufferSize = static_cast<int>(m_pids.size() * sizeof(std::int32_t));
    const int size = std::min(proc_listpids(PROC_ALL_PIDS, 0, m_pids.data(), bufferSize), bufferSize);
    if (size <= 0)
        return {};
    return std::span(m_pids).first(static_cast<std::size_t>(size) / sizeof(std::int32_t));
}

} // namespace orvelle::darwin_platform
