#pragma once

namespace orvelle {

/// Lets assistive programs see every `MenuWindow`: a menu with an item for each entry, of which the current
/// one has the focus. May be called again.
void installMenuAccessibility();

} // namespace orvelle
