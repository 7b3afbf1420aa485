#pragma once

#include "common/machine.h"
#include "counted_text.h"
#include "tree_folder.h"

namespace orvelle::soak {

/// A recorded machine whose files are written anew before each sample, read by the sources of Linux.
class TreeMachine final : public Machine {
public:
    explicit TreeMachine(const std::filesystem::path& recorded)
        : m_tree(recorded)
        , m_recordedInputs(m_tree.filesEndingIn("_input", "sys"))
        , m_recordedCharges(m_tree.filesEndingIn("_now", "sys")) {
        for (const char* path : rewrittenTexts)
            m_recordedTexts[path] = m_tree.read(path);
        for (const auto& [path, text] : m_tree.filesEndingIn("stat", "proc"))
            m_recordedTexts[path] = text;
    }

    [[nodiscard]] MachineSources sources() override;
    void reset() override;
    void change(Random& random) override;

private:
    static constexpr const char* rewrittenTexts[] = {"proc/loadavg",        "proc/meminfo", "proc/net/dev",
                                                     "proc/diskstats",      "proc/stat",    "statfs",
                                                     "proc/self/mountinfo", "addresses"};
    using Names = std::vector<std::string>;

    /// Calls `come` with a new name, or `go` with one of `names`, or neither, and keeps the names that are
    /// there.
    template <class Come, class Go>
    void comeAndGo(Names& names, const std::string& start, Random& random, Come come, Go go);

    void changeProcessors(Random& random);
    void changeMemory(Random& random);
    void changeInterfaces(Random& random);
    void changeDisks(Random& random);
    void changeVolumes(Random& random);
    void changeProcesses(Random& random);
    void changeChips(Random& random);
    void changePacks(Random& random);
    /// Writes the text, or rarely nothing at all.
    void write(const std::filesystem::path& path, std::string_view text, Random& random);
    void writeProcess(const std::string& pid, Random& random);

    TreeFolder m_tree;
    std::map<std::string, std::string> m_recordedTexts;
    std::map<std::string, std::string> m_recordedInputs;
    std::map<std::string, std::string> m_recordedCharges;
    CountedText m_processors;
    CountedText m_interfaceCounters;
    CountedText m_diskCounters;
    Names m_cores;
    Names m_interfaces;
    Names m_disks;
    Names m_volumes;
    Names m_processes;
    Names m_chips;
    Names m_packs;
};

} // namespace orvelle::soak
