#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <unistd.h>

namespace orvelle::linux_platform {

/// The fields of a made `stat` line that a test cares for; the others are as a sleeping program has them.
struct MadeProcess {
    std::int32_t pid = 0;
    std::string comm = "program";
    char state = 'S';
    std::uint64_t flags = 4194304;
    std::uint64_t userTicks = 0;
    std::uint64_t systemTicks = 0;
    std::uint64_t threadCount = 1;
    std::uint64_t startTime = 1000;
    std::uint64_t residentPages = 100;
    std::string exe; ///< target of the link; none when empty

    [[nodiscard]] std::string statLine() const {
        const auto text = [](std::uint64_t number) { return std::to_string(number); };
        return std::to_string(pid) + " (" + comm + ") " + state + " 1 " + std::to_string(pid) + " 1 0 -1 " +
               text(flags) + " 99 0 1 0 " + text(userTicks) + " " + text(systemTicks) + " 7 8 20 0 " +
               text(threadCount) + " 0 " + text(startTime) + " 3133440 " + text(residentPages) +
               " 18446744073709551615 94194442752000 94194442771881 140735203248768 0 0 0 0 0 0 0 0 0 17 1 0 "
               "0"
               " 0 0 0 94194442787888 94194442789504 94194455506944 140735203252873 140735203252893"
               " 140735203252893 140735203254251 0\n";
    }
};

/// A temporary directory with a `proc` in it.
class ProcessTree {
public:
    ProcessTree() {
        std::string pattern = (std::filesystem::temp_directory_path() / "orvelle-processes-XXXXXX").string();
        const char* made = ::mkdtemp(pattern.data());
        if (made == nullptr)
            throw std::system_error(errno, std::generic_category(), pattern);
        m_root = made;
        std::filesystem::create_directory(m_root / "proc");
    }
    ~ProcessTree() {
        std::error_code ignored;
        std::filesystem::remove_all(m_root, ignored);
    }
    ProcessTree(const ProcessTree&) = delete;
    ProcessTree& operator=(const ProcessTree&) = delete;

    [[nodiscard]] const std::filesystem::path& root() const { return m_root; }

    /// Adds the process, or replaces it.
    void put(const MadeProcess& process) const {
        const std::filesystem::path folder = m_root / "proc" / std::to_string(process.pid);
        std::filesystem::create_directory(folder);
        write(folder / "stat", process.statLine());
        std::filesystem::remove(folder / "exe");
        if (!process.exe.empty())
            std::filesystem::create_symlink(process.exe, folder / "exe");
    }
    void remove(std::int32_t pid) const {
        std::filesystem::remove_all(m_root / "proc" / std::to_string(pid));
    }
    static void write(const std::filesystem::path& path, const std::string& text) {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
    }

private:
    std::filesystem::path m_root;
};

} // namespace orvelle::linux_platform
