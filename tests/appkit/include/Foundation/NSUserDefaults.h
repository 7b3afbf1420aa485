#pragma once

@interface NSUserDefaults : NSObject
+ (NSUserDefaults*)standardUserDefaults;
- (id)objectForKey:(NSString*)key;
- (void)setObject:(id)object forKey:(NSString*)key;
@end
