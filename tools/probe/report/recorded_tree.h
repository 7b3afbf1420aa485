#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace orvelle {

class Pseudonyms;

/// The files of a machine that the sources read, at one moment. Paths are relative to the root of the
/// machine.
struct RecordedTree {
    std::map<std::string, std::string> files; ///< the text of each file
    std::map<std::string, std::string> links; ///< the target of each symbolic link

    bool operator==(const RecordedTree&) const = default;
};

/// Records the machine below `root` with pseudonyms in the place of private names. What is not known to be
/// harmless is left out. Nothing where the sources read no files.
[[nodiscard]] std::optional<RecordedTree> recordMachine(const std::filesystem::path& root,
                                                        Pseudonyms& pseudonyms);

/// What differs in a later moment. A file that has gone since cannot be told and is left out.
[[nodiscard]] RecordedTree changedSince(const RecordedTree& earlier, const RecordedTree& later);

} // namespace orvelle
