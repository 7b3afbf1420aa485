#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

/// The system's database of preferences, which every process shares, and what this process holds of it. Tests
/// script it and play the other processes.
namespace orvelle::simulated {

/// A value that no setting has. Two of one kind are equal if their contents are.
struct Foreign {
    enum class Kind { date, data, array, dictionary };

    Kind kind = Kind::date;
    std::string content{};

    bool operator==(const Foreign&) const = default;
};

using Value = std::variant<bool, double, std::u16string, Foreign>;
using Domain = std::map<std::string, Value>;

struct Database {
    /// Of the program's bundle. None for a program outside of a bundle.
    std::optional<std::string> bundleIdentifier{};
    std::map<std::string, Domain> domains{};
    bool hasSuites = true;      ///< false: there are no user defaults for a name
    bool canSynchronize = true; ///< false: nothing can be written
    /// Another process acts while this one waits for its values to be stored.
    std::function<void()> duringSynchronize{};
    std::size_t synchronizations = 0;

    std::set<const void*> liveObjects{};
    /// Everything that a real system would have punished or that no documentation allows.
    std::vector<std::string> complaints{};

    void expect(bool isTrue, const std::string& otherwise);
};

[[nodiscard]] Database& database();

/// Releases what the system holds for the process. What lives on or observes after that was not given back.
void endProcess();
/// A process on a fresh system.
void startAfresh();

/// Another process stores a value, or removes it. This process learns of it on a thread that is not the main
/// one.
void storeElsewhere(const std::string& domain, const std::string& key, const std::optional<Value>& value);

/// What waits to be done on the main thread, and how it is done.
[[nodiscard]] std::size_t waitingOnMainThread();
void runMainThread();

} // namespace orvelle::simulated
