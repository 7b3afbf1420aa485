#pragma once

namespace orvelle {

/// The build id of the module with which this program was built, see cmake/WriteIdentity.cmake. The linker
/// computes it from the module's content, and neither stripping nor installing changes it.
extern const unsigned char windowModuleIdentity[20];

} // namespace orvelle
