#pragma once

#include "shell/macos/click_through_hosting_view.h"
#include "shell/macos/foundation.h"
#include "shell/status_item.h"

namespace orvelle {

/// An item of the system's menu bar. Without a button, which the system may leave out, it shows nothing and
/// is never clicked.
class MacosStatusItem final : public StatusItem, private PaintedPicture {
  public:
    /// Clicks send `statusItemClicked:` to the target with the button, whose identifier is the item's.
    /// `painted` is called whenever the item has been painted.
    MacosStatusItem(QString identifier, double length, id clickTarget, std::function<void()> painted);
    ~MacosStatusItem() override;
    MacosStatusItem(const MacosStatusItem&) = delete;
    MacosStatusItem& operator=(const MacosStatusItem&) = delete;

    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return m_length; }
    void setPaint(ItemPaint paint) override { m_paint = std::move(paint); }
    void repaint() override;
    void setWords(const QString& name, const QString& text) override;
    [[nodiscard]] double visiblePixelsPerPoint() const override;
    void setClickHandler(std::function<void(ClickButton)> handler) override {
        m_clickHandler = std::move(handler);
    }
    [[nodiscard]] const std::function<void(ClickButton)>& clickHandler() const { return m_clickHandler; }

    /// Null when the system refused the item.
    [[nodiscard]] NSStatusItem* statusItem() const { return m_statusItem.get(); }
    /// Null when the item has none.
    [[nodiscard]] NSStatusBarButton* button() const { return [m_statusItem.get() button]; }

  private:
    void setUpButton(NSStatusBarButton* button, id clickTarget);
    void paint(QPainter& painter, const QRectF& bounds, BarAppearance appearance) override;

    QString m_identifier;
    double m_length;
    std::function<void()> m_painted;
    ItemPaint m_paint;
    std::function<void(ClickButton)> m_clickHandler;
    Retained<NSStatusItem*> m_statusItem;
    Retained<ClickThroughHostingView*> m_hostingView; ///< null without a button
};

} // namespace orvelle
