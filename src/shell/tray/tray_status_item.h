#pragma once

#include "shell/painted/bar_item.h"

namespace orvelle {

/// A status item of the tray: an icon, or a part of one, and a tab above the panels. Main thread only.
class TrayStatusItem final : public StatusItem {
public:
    /// `tab` must outlive the object. `changed` is called when the icon may look different.
    TrayStatusItem(BarItem& tab, std::function<void()> changed);

    [[nodiscard]] const QString& identifier() const override { return m_tab.identifier(); }
    [[nodiscard]] double length() const override { return m_tab.length(); }
    void setPaint(ItemPaint paint) override;
    void repaint() override { m_tab.repaint(); }
    void setWords(const QString& name, const QString& text) override;
    [[nodiscard]] bool showsIcon() const override { return true; }
    void setIcon(const ItemIcon& icon) override;
    [[nodiscard]] double visiblePixelsPerPoint() const override { return m_tab.visiblePixelsPerPoint(); }
    void setClickHandler(std::function<void(ClickButton)> handler) override;

    [[nodiscard]] BarItem& tab() const { return m_tab; }
    [[nodiscard]] const QString& name() const { return m_tab.accessibleName(); }
    [[nodiscard]] const QString& words() const { return m_tab.accessibleText(); }
    /// Shows the program's icon until another one is set.
    [[nodiscard]] const ItemIcon& icon() const { return m_icon; }

    /// Does what a click with this button does, which may remove the item.
    void click(ClickButton button) const { m_tab.click(button); }

private:
    BarItem& m_tab;
    std::function<void()> m_changed;
    ItemIcon m_icon;
};

} // namespace orvelle
