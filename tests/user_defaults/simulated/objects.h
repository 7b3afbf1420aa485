#pragma once

#include "user_defaults/simulated/database.h"

#include <Foundation/Foundation.h>

/// What the simulated classes share. Reference counting by hand and a stack of pools for each thread, as in
/// the real Foundation.
namespace orvelle::simulated {

/// A new object that the caller owns.
[[nodiscard]] id makeObject(const Value& value);
/// What an object of a property list stands for; nothing for any other object.
[[nodiscard]] std::optional<Value> valueOf(id object);

[[nodiscard]] std::u16string unitsOf(NSString* text);
/// The name of a key or a domain, all of which are ASCII here.
[[nodiscard]] std::string nameOf(NSString* text);
[[nodiscard]] NSString* makeName(const std::string& name);

/// Calls that wait for the main thread are dropped.
void forgetWaitingCalls();

} // namespace orvelle::simulated

/// A date, data, an array or a dictionary.
@interface SimulatedForeign : NSObject {
  @public
    void* m_foreign;
}
@end
