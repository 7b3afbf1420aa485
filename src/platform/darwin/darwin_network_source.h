#pragma once

#include "core/sources/network_source.h"

namespace orvelle::darwin_platform {

/// Answers from `getifaddrs`, one entry for each of the list's whose name can be shown. The byte counters are
/// the 32-bit ones of the link-layer entries, which wrap at 4 GiB.
class DarwinNetworkSource final : public NetworkSource {
public:
    /// An entry of a loopback or of an interface that is down has no address and no bytes, because no monitor
    /// uses them. An entry without a name or without an address, such as some tunnels have, is left out.
    [[nodiscard]] std::optional<std::vector<InterfaceEntry>> read() override;
};

} // namespace orvelle::darwin_platform
