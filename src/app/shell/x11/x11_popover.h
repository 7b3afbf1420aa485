#pragma once

#include "app/shell/status_bar.h"
#include "app/shell/x11/bar_window.h"
#include "app/shell/x11/transient_window.h"

#include <optional>

namespace orvelle {

/// The popover of an item in the program's own bar.
class X11Popover final : public Popover {
public:
    X11Popover(BarWindow& bar, PopoverContent makeContent);

    [[nodiscard]] bool isShown() const override { return m_transient && m_transient->isShown(); }
    void show(const StatusItem& item) override;
    void close() override;

private:
    [[nodiscard]] bool makeWindow();
    void setItem(const StatusItem* item);

    BarWindow& m_bar;
    const StatusItem* m_item = nullptr; ///< the one under which the popover is shown
    PopoverContent m_makeContent;
    std::unique_ptr<QWindow> m_window; ///< null before the first showing
    QSize m_size;                      ///< wanted by the content
    std::optional<TransientWindow> m_transient;
};

} // namespace orvelle
