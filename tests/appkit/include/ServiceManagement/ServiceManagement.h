#pragma once

// Simulated macOS: the service that starts a program at login.
#include <Foundation/Foundation.h>

enum SMAppServiceStatus : NSInteger {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3
};

@interface SMAppService : NSObject
+ (SMAppService*)mainAppService;
+ (void)openSystemSettingsLoginItems;
- (SMAppServiceStatus)status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
