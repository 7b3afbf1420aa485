#pragma once

#include "shell/painted/bar.h"

#include <QWindow>

namespace orvelle {

/// A window of Qt through which assistive programs see a bar: a tool bar with a button for each item, named
/// after its module and described by its values in words. Pressing the button is a left click, showing its
/// menu a right one. What assistive programs hear of its place is the bar's, so the window need not be the
/// one that shows the items, and need not be shown at all.
class AccessibleBar : public QWindow {
    Q_OBJECT

public:
    /// `place` is called whenever the bar needs its place.
    explicit AccessibleBar(std::function<BarPlace()> place);

    [[nodiscard]] Bar& bar() { return m_bar; }
    [[nodiscard]] QAccessibleInterface* accessibleRoot() const override;

private:
    void announceItem(std::size_t index, QAccessible::Event type);

    Bar m_bar;
};

} // namespace orvelle
