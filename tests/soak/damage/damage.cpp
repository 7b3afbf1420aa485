// orvelle-soak-damage FIXTURES SECONDS [SEED COUNT]: damages recorded machines and settings files at random,
// and prints the rows of a table of the results. Every trial has a seed of its own. A finding names it on the
// standard error; with that SEED and the COUNT 1 the same trial runs again, in this process, for a debugger.

#include "damaged_machine.h"
#include "damaged_settings.h"
#include "dice.h"

#include <QGuiApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace orvelle::soak;

constexpr std::uint64_t trialsOfOneProcess = 200;
/// A trial takes milliseconds; one that takes this long hangs.
constexpr unsigned longestTrialSeconds = 120;

/// What the process of the trials tells the one that waits for it.
struct Progress {
    std::uint64_t seed = 0;
    std::uint64_t machines = 0;
    std::uint64_t settings = 0;
};

/// A private folder, in memory if possible, because trials write much.
class TrialFolder {
public:
    TrialFolder() {
        const fs::path memory = "/dev/shm";
        const bool isUsable = ::access(memory.c_str(), W_OK) == 0;
        std::string name =
            ((isUsable ? memory : fs::temp_directory_path()) / "orvelle-damage-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            std::abort();
        m_path = name;
    }
    ~TrialFolder() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    TrialFolder(const TrialFolder&) = delete;
    TrialFolder& operator=(const TrialFolder&) = delete;

    [[nodiscard]] const fs::path& path() const { return m_path; }

private:
    fs::path m_path;
};

/// One machine or one settings file, which the seed decides.
void tryOnce(const fs::path& fixtures, const fs::path& folder, Progress& progress) {
    Dice dice(progress.seed);
    const fs::path place = folder / "trial";
    fs::create_directory(place);
    if (progress.seed % 4 == 0) {
        tryDamagedMachine(fixtures, place, dice);
        ++progress.machines;
    } else {
        tryDamagedSettings(place, dice);
        ++progress.settings;
    }
    fs::remove_all(place);
}

using Deadline = std::chrono::steady_clock::time_point;

/// Runs trials from `progress.seed` on. Returns the status of the process.
int tryMany(const fs::path& fixtures, const fs::path& folder, std::uint64_t count, Deadline end,
            Progress& progress) {
    int argumentCount = 1;
    char name[] = "orvelle-soak-damage";
    char* arguments[] = {name, nullptr};
    const QGuiApplication application(argumentCount, arguments);
    for (std::uint64_t left = count; left > 0 && std::chrono::steady_clock::now() < end;
         --left, ++progress.seed) {
        ::alarm(longestTrialSeconds);
        try {
            tryOnce(fixtures, folder, progress);
        } catch (const std::exception& finding) {
            std::fprintf(stderr, "damage: %s\n", finding.what());
            return EXIT_FAILURE;
        }
    }
    ::alarm(0);
    return EXIT_SUCCESS;
}

/// Runs trials in another process. Whether that process ended well.
bool tryApart(const fs::path& fixtures, Deadline end, Progress& progress) {
    const TrialFolder folder;
    const pid_t child = ::fork();
    if (child == 0)
        std::_Exit(tryMany(fixtures, folder.path(), trialsOfOneProcess, end, progress));
    int status = 0;
    ::waitpid(child, &status, 0);
    if (child > 0 && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS)
        return true;
    std::fprintf(stderr, "damage: seed %llu fails (%s %d)\n", static_cast<unsigned long long>(progress.seed),
                 WIFSIGNALED(status) ? "signal" : "status",
                 WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status));
    ++progress.seed;
    return false;
}

int soak(const fs::path& fixtures, std::chrono::seconds duration) {
    void* shared =
        ::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        return EXIT_FAILURE;
    auto& progress = *new (shared) Progress;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    progress.seed = static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::seconds>(now).count())
                    << 20U;
    const std::uint64_t first = progress.seed;
    const Deadline end = std::chrono::steady_clock::now() + duration;
    int findings = 0;
    while (std::chrono::steady_clock::now() < end && findings < 20)
        findings += tryApart(fixtures, end, progress) ? 0 : 1;
    std::printf("| Damaged machines, sampled %d times each, with all status items | %llu | %d findings |\n",
                6, static_cast<unsigned long long>(progress.machines), findings);
    std::printf("| Damaged settings files, read, changed and read again | %llu | seeds %llu to %llu |\n",
                static_cast<unsigned long long>(progress.settings), static_cast<unsigned long long>(first),
                static_cast<unsigned long long>(progress.seed));
    return findings == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argumentCount, char** arguments) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    if (argumentCount == 3)
        return soak(arguments[1], std::chrono::seconds(std::atoll(arguments[2])));
    if (argumentCount != 5) {
        std::fputs("usage: orvelle-soak-damage FIXTURES SECONDS [SEED COUNT]\n", stderr);
        return 2;
    }
    const TrialFolder folder;
    Progress progress{.seed = std::strtoull(arguments[3], nullptr, 10)};
    return tryMany(arguments[1], folder.path(), std::strtoull(arguments[4], nullptr, 10), Deadline::max(),
                   progress);
}
