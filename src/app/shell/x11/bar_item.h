#pragma once

#include "app/shell/status_item.h"

#include <QRectF>

#include <functional>

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
    QRectF m_bounds;
};

} // namespace orvelle
