#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

@implementation SMAppService
+ (SMAppService*)mainAppService {
    return desktop().arrives("mainAppService") ? theOnly(self) : nil;
}
- (SMAppServiceStatus)status {
    return desktop().script.loginStatus;
}
- (BOOL)registerAndReturnError:(NSError**)error {
    desktop().expect(error == nullptr, "an error that nobody reads");
    if (!desktop().arrives("registerAndReturnError") || !desktop().script.mayRegisterLogin ||
        desktop().script.loginStatus == SMAppServiceStatusEnabled)
        return NO;
    desktop().script.loginStatus = SMAppServiceStatusEnabled;
    return YES;
}
- (BOOL)unregisterAndReturnError:(NSError**)error {
    desktop().expect(error == nullptr, "an error that nobody reads");
    if (!desktop().arrives("unregisterAndReturnError") ||
        desktop().script.loginStatus == SMAppServiceStatusNotRegistered)
        return NO;
    desktop().script.loginStatus = SMAppServiceStatusNotRegistered;
    return YES;
}
@end
