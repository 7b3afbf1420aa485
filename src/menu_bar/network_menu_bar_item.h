#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class NetworkMonitor;

/// The network module's place in the menu bar: the upload rate above the download rate, their histories, or a
/// dot for each direction.
class NetworkMenuBarItem : public MenuBarItem<ModuleId::network, NetworkMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// Both rates as bare text.
    [[nodiscard]] SceneNode rates() const;
    /// Both rates, each behind an arrow in the colour of its direction.
    [[nodiscard]] SceneNode ratePair() const;
    [[nodiscard]] SceneNode history(double width) const;
    [[nodiscard]] SceneNode activityDots() const;
};

} // namespace orvelle
