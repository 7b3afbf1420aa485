// For systems whose sources ask the kernel rather than read files.

#include "probe/report/recorded_tree.h"

namespace orvelle {

std::optional<RecordedTree> recordMachine(const std::filesystem::path& /*root*/, Pseudonyms& /*pseudonyms*/) {
    return std::nullopt;
}

} // namespace orvelle
