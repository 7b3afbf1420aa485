#pragma once

#include "core/sources/smc_user_client.h"
#include "platform/darwin/references.h"

namespace orvelle::darwin_platform {

/// The user client of the "AppleSMC" service.
class DarwinSMCUserClient final : public SMCUserClient {
public:
    [[nodiscard]] bool open() override;
    [[nodiscard]] bool callStructMethod(std::uint32_t selector, const SMCParameterBlock& input,
                                        SMCParameterBlock& output, std::size_t& outputSize) override;
    void close() override;

private:
    OwnedConnection m_connection; ///< the null name while closed
};

} // namespace orvelle::darwin_platform
