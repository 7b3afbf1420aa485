#pragma once

// Simulated macOS: the service that starts a program at login.
#include <Foundation/Foundation.h>

typedef NSInteger SMAppServiceStatus;
enum : SMAppServiceStatus {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2
};

@interface SMAppService : NSObject
+ (SMAppService*)mainAppService;
- (SMAppServiceStatus)status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
