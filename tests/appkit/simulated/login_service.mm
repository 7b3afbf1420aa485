#include "appkit/simulated/objects.h"

#include <objc/runtime.h>

using namespace orvelle::simulated;

namespace {

bool isRegistered() {
    const long status = desktop().script.loginStatus;
    return status == SMAppServiceStatusEnabled || status == SMAppServiceStatusRequiresApproval;
}

} // namespace

// A service that the user has not allowed is registered, but waits for the user.
@implementation SMAppService
+ (SMAppService*)mainAppService {
    return desktop().arrives("mainAppService") ? theOnly(self) : nil;
}
+ (void)openSystemSettingsLoginItems {
    desktop().deeds.push_back("open the system's login items");
}
- (SMAppServiceStatus)status {
    return static_cast<SMAppServiceStatus>(desktop().script.loginStatus);
}
- (BOOL)registerAndReturnError:(NSError**)error {
    desktop().expect(error == nullptr, "an error that nobody reads");
    if (!desktop().arrives("registerAndReturnError") || !desktop().script.mayRegisterLogin || isRegistered())
        return NO;
    desktop().script.loginStatus =
        desktop().script.loginNeedsApproval ? SMAppServiceStatusRequiresApproval : SMAppServiceStatusEnabled;
    return desktop().script.loginNeedsApproval ? NO : YES;
}
- (BOOL)unregisterAndReturnError:(NSError**)error {
    desktop().expect(error == nullptr, "an error that nobody reads");
    if (!desktop().arrives("unregisterAndReturnError") || !isRegistered())
        return NO;
    desktop().script.loginStatus = SMAppServiceStatusNotRegistered;
    return YES;
}
@end

/// Stands here because nothing else refers to this service, which older systems do not have.
Class NSClassFromString(NSString* name) {
    const bool isThere = textOf(name) != "SMAppService" || desktop().script.hasLoginService;
    return isThere ? objc_getClass(textOf(name).c_str()) : Nil;
}
