#include "probe/report/recorded_tree.h"

namespace orvelle {
namespace {

using Entries = std::map<std::string, std::string>;

Entries changedEntries(const Entries& earlier, const Entries& later) {
    Entries changed;
    for (const auto& entry : later) {
        const auto before = earlier.find(entry.first);
        if (before == earlier.end() || before->second != entry.second)
            changed.insert(entry);
    }
    return changed;
}

} // namespace

RecordedTree changedSince(const RecordedTree& earlier, const RecordedTree& later) {
    return {.files = changedEntries(earlier.files, later.files),
            .links = changedEntries(earlier.links, later.links)};
}

} // namespace orvelle
