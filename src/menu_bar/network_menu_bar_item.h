#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class NetworkMonitor;

/// The network module's item: the upload rate above the download rate, their histories, or a dot for each
/// direction.
class NetworkMenuBarItem : public MenuBarItem<ModuleId::network, NetworkMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The current values in the user's style.
    [[nodiscard]] ItemScene body() const;
    /// The current values in a square.
    [[nodiscard]] IconScene icon() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// Both rates as bare text.
    [[nodiscard]] SceneNode rates() const;
    /// Both rates, each after an arrow in the colour of its direction.
    [[nodiscard]] SceneNode ratePair() const;
    [[nodiscard]] SceneNode history(double width) const;
    [[nodiscard]] SceneNode activityDots() const;
};

} // namespace orvelle
