#include "shell/desktop.h"
#include "shell/macos/retained.h"

#include <ServiceManagement/ServiceManagement.h>

namespace orvelle {
namespace {

/// Null before macOS 13, which has no such service. Asked for by name, so that the program starts there.
SMAppService* mainAppService() { return [NSClassFromString(@"SMAppService") mainAppService]; }

/// The program's own entry among the login items in the system's settings. The user may forbid it there, and
/// then it stays off.
class MacosLoginItem final : public LoginItem {
  public:
    [[nodiscard]] bool isEnabled() const override {
        const ReleasePool pool;
        SMAppService* const service = mainAppService();
        return service != nil && [service status] == SMAppServiceStatusEnabled;
    }

    [[nodiscard]] bool setEnabled(bool enabled) override {
        const ReleasePool pool;
        SMAppService* const service = mainAppService();
        if (service == nil)
            return false;
        // Both fail where nothing is to be done; what counts is how it stands afterwards.
        if (enabled)
            static_cast<void>([service registerAndReturnError:nullptr]);
        else
            static_cast<void>([service unregisterAndReturnError:nullptr]);
        return isEnabled() == enabled;
    }

    /// The system itself finds a program that has moved.
    void repair() override {}
};

} // namespace

std::unique_ptr<LoginItem> makeLoginItem() { return std::make_unique<MacosLoginItem>(); }

} // namespace orvelle
