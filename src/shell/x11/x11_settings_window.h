#pragma once

#include "settings/settings_storage.h"
#include "shell/settings_window.h"

#include <QRect>
#include <QTimer>
#include <QWindow>

namespace orvelle {

/// A window of its own under the desktop's window manager, which gives it its title bar. Where it stood is
/// kept in `storage` under the key `OrvelleSettings`, also when the program ends unexpectedly.
class X11SettingsWindow final : public QObject, public SettingsWindow {
    Q_OBJECT

public:
    X11SettingsWindow(std::unique_ptr<QWindow> content, std::unique_ptr<SettingsStorage> storage);
    ~X11SettingsWindow() override;

    void bringForward() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void place();
    void remember();
    /// Takes a window that is on another of the window manager's desktops to the present one.
    void bringToThisDesktop() const;

    std::unique_ptr<QWindow> m_content;
    std::unique_ptr<SettingsStorage> m_storage;
    QTimer m_restDelay; ///< runs while the window is being moved
    QRect m_remembered;
    bool m_isPainted = false; ///< since it was last opened
};

} // namespace orvelle
