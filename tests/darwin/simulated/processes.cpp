#include "darwin/simulated/kernel.h"

#include <algorithm>
#include <libproc.h>

using namespace orvelle::simulated;

namespace {

const Process* findProcess(int pid) {
    const std::vector<Process>& processes = kernel().machine.processes;
    const auto process = std::ranges::find(processes, pid, &Process::pid);
    return process != processes.end() ? &*process : nullptr;
}

int writeText(const std::string& text, void* buffer, std::size_t bufferSize) {
    const std::size_t size = std::min(text.size(), bufferSize);
    std::memcpy(buffer, text.data(), size);
    if (size < bufferSize)
        static_cast<char*>(buffer)[size] = '\0';
    return static_cast<int>(size);
}

} // namespace

int proc_listpids(std::uint32_t type, std::uint32_t typeInformation, void* buffer, int bufferSize) {
    kernel().expect(type == PROC_ALL_PIDS && typeInformation == 0, "proc_listpids of another kind");
    kernel().expect((buffer == nullptr) == (bufferSize == 0), "proc_listpids with half a buffer");
    if (!kernel().arrives(buffer == nullptr ? "proc_listpids size" : "proc_listpids"))
        return -1;
    const std::vector<Process>& processes = kernel().machine.processes;
    constexpr std::size_t spare = 20;
    if (buffer == nullptr)
        return static_cast<int>((processes.size() + spare) * sizeof(std::int32_t));
    const std::size_t room = static_cast<std::size_t>(bufferSize) / sizeof(std::int32_t);
    const std::size_t count = std::min(room, processes.size());
    std::ranges::transform(processes.begin(), processes.begin() + static_cast<std::ptrdiff_t>(count),
                           static_cast<std::int32_t*>(buffer), &Process::pid);
    return kernel().machine.listedPidBytes.value_or(static_cast<int>(count * sizeof(std::int32_t)));
}

int proc_pidinfo(int pid, int flavor, std::uint64_t argument, void* buffer, int bufferSize) {
    kernel().expect(flavor == PROC_PIDTASKINFO && argument == 0, "proc_pidinfo of another kind");
    kernel().expect(bufferSize == sizeof(proc_taskinfo), "proc_pidinfo with another size");
    const Process* process = findProcess(pid);
    if (!kernel().arrives("proc_pidinfo " + std::to_string(pid)) || process == nullptr)
        return 0;
    proc_taskinfo information{};
    information.pti_total_user = process->user;
    information.pti_total_system = process->system;
    information.pti_resident_size = process->residentBytes;
    std::memcpy(buffer, &information, sizeof information);
    return process->informationSize;
}

int proc_pidpath(int pid, void* buffer, std::uint32_t bufferSize) {
    kernel().expect(bufferSize == 4096, "proc_pidpath with another size");
    const Process* process = findProcess(pid);
    if (!kernel().arrives("proc_pidpath " + std::to_string(pid)) || process == nullptr)
        return 0;
    return writeText(process->path, buffer, bufferSize);
}

int proc_name(int pid, void* buffer, std::uint32_t bufferSize) {
    kernel().expect(bufferSize == 256, "proc_name with another size");
    const Process* process = findProcess(pid);
    if (!kernel().arrives("proc_name " + std::to_string(pid)) || process == nullptr)
        return 0;
    return writeText(process->shortName, buffer, bufferSize);
}
