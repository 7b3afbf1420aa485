#pragma once

#include "app/shell/x11/bar_item.h"

#include <QRasterWindow>

#include <memory>
#include <vector>

namespace orvelle {

/// The strip at the top of the screen: it lays the items out and paints them. It knows neither where it
/// stands nor the window manager; that is the work of `BarPlacement`.
class BarWindow : public QRasterWindow {
    Q_OBJECT

public:
    BarWindow();

    /// The window owns the item; it stands to the right of those present.
    BarItem& addItem(const QString& identifier, double length);
    void removeItem(const StatusItem& item);
    [[nodiscard]] bool isEmpty() const { return m_items.empty(); }

Q_SIGNALS:
    /// The first item came or the last one went.
    void emptyChanged();
    /// A picture of the items has been handed to the screen.
    void painted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void layOut();
    void paintItem(QPainter& painter, const BarItem& item) const;

    std::vector<std::unique_ptr<BarItem>> m_items;
};

} // namespace orvelle
