#include "platform/darwin/smc_user_client.h"

#include "platform/darwin/system_objects.h"

namespace orvelle::darwin_platform {
namespace {

class DarwinSMCUserClient final : public SMCUserClient {
public:
    [[nodiscard]] bool open() override;
    [[nodiscard]] bool callStructMethod(std::uint32_t selector, const SMCParameterBlock& input,
                                        SMCParameterBlock& output, std::size_t& outputSize) override;
    void close() override;

private:
    OwnedConnection m_connection; ///< the null name while closed
};

bool DarwinSMCUserClient::open() {
    const OwnedIOObject service = findService("AppleSMC");
    if (!service)
        return false;
    constexpr std::uint32_t connectionType = 0;
    io_connect_t connection = IO_OBJECT_NULL;
    if (IOServiceOpen(service.get(), mach_task_self(), connectionType, &connection) != KERN_SUCCESS)
        return false;
    m_connection = OwnedConnection(connection);
    return true;
}

bool DarwinSMCUserClient::callStructMethod(std::uint32_t selector, const SMCParameterBlock& input,
                                           SMCParameterBlock& output, std::size_t& outputSize) {
    return IOConnectCallStructMethod(m_connection.get(), selector, &input, sizeof input, &output,
                                     &outputSize) == KERN_SUCCESS;
}

void DarwinSMCUserClient::close() {
    m_connection = OwnedConnection();
}

} // namespace

std::unique_ptr<SMCUserClient> makeSMCUserClient() {
    return std::make_unique<DarwinSMCUserClient>();
}

} // namespace orvelle::darwin_platform
