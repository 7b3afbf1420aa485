#pragma once

#include "app/shell/status_bar.h"
#include "app/shell/x11/bar_window.h"
#include "app/shell/x11/transient_window.h"

#include <QElapsedTimer>

#include <optional>

namespace orvelle {

/// The popover of an item in the program's own bar. It opens when the clicks that have arrived are handled,
/// so that many clicks at once end in one change.
class X11Popover final : public QObject, public Popover {
    Q_OBJECT

public:
    X11Popover(BarWindow& bar, PopoverContent makeContent);

    [[nodiscard]] bool isShown() const override { return m_item != nullptr; }
    void show(const StatusItem& item) override;
    void close() override;

private:
    void open();
    void setItem(const StatusItem* item);
    [[nodiscard]] bool makeWindow();
    void logPainted();

    BarWindow& m_bar;
    const StatusItem* m_item = nullptr; ///< under which the popover is shown, or is about to be
    QElapsedTimer m_sinceShow;
    PopoverContent m_makeContent;
    std::unique_ptr<QWindow> m_window; ///< null before the first showing
    QSize m_size;                      ///< wanted by the content
    std::optional<TransientWindow> m_transient;
};

} // namespace orvelle
