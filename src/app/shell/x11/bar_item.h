#pragma once

#include "app/shell/status_item.h"

#include <QRectF>

#include <functional>
#include <utility>

namespace orvelle {

/// A status item as a part of the bar's window.
class BarItem final : public StatusItem {
public:
    /// `changed` is called when the item must be painted again.
    BarItem(QString identifier, double length, std::function<void(const BarItem&)> changed)
        : m_identifier(std::move(identifier))
        , m_length(length)
        , m_changed(std::move(changed)) {}

    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return m_length; }
    void setView(std::shared_ptr<const StatusItemView> view) override {
        m_view = std::move(view);
        m_changed(*this);
    }

    void setClickHandler(std::function<void(ClickButton)> handler) override {
        m_clickHandler = std::move(handler);
    }
    [[nodiscard]] const std::function<void(ClickButton)>& clickHandler() const { return m_clickHandler; }

    /// Whether the item is shown as held down by the mouse.
    [[nodiscard]] bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool highlighted) {
        if (std::exchange(m_isHighlighted, highlighted) != highlighted)
            m_changed(*this);
    }

    /// The picture; null before the first one is set.
    [[nodiscard]] const StatusItemView* view() const { return m_view.get(); }

    /// Where the item stands in the bar, in points. The bar assigns it.
    [[nodiscard]] const QRectF& bounds() const { return m_bounds; }
    void setBounds(const QRectF& bounds) { m_bounds = bounds; }

private:
    QString m_identifier;
    double m_length;
    std::function<void(const BarItem&)> m_changed;
    std::shared_ptr<const StatusItemView> m_view;
    std::function<void(ClickButton)> m_clickHandler;
    QRectF m_bounds;
    bool m_isHighlighted = false;
};

} // namespace orvelle
