#pragma once

#include "darwin/simulated/property.h"

#include <Foundation/Foundation.h>

namespace orvelle::simulated {

using Objects = std::vector<id>;
using NamedObjects = std::map<const void*, id>;

/// The keys are only told apart, so each is an address of its own. Next to it stands the name under which a
/// test gives the value.
struct Key {
    const char* name;
};
extern const Key nameKey, totalKey, availableKey, importantKey, localKey, internalKey;

} // namespace orvelle::simulated

@interface NSString (Simulated)
- (id)initWithText:(const std::string&)text;
@end

@interface NSNumber (Simulated)
- (id)initWithValue:(long long)value;
@end

@interface NSArray (Simulated)
/// Takes over one reference to each object.
- (id)initWithObjects:(const orvelle::simulated::Objects&)objects;
@end

@interface NSDictionary (Simulated)
/// Takes over one reference to each object.
- (id)initWithNamedObjects:(const orvelle::simulated::NamedObjects&)objects;
@end
