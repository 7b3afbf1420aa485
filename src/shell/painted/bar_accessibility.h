#pragma once

namespace orvelle {

/// Lets assistive programs see every `BarWindow`: a tool bar with a button for each item. A button is named
/// after its module and described by the item's values in words; to press it is a left click, to show its
/// menu a right one. May be called again.
void installBarAccessibility();

} // namespace orvelle
