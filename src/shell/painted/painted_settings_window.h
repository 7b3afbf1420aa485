#pragma once

#include "settings/settings_storage.h"
#include "shell/desktop.h"

#include <QObject>
#include <QRect>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <memory>

namespace orvelle {

/// A window to which the window manager gives the title bar. Its frame is kept in `storage` under the key
/// `OrvelleSettings`, also when the program ends unexpectedly.
class PaintedSettingsWindow final : public QObject, public SettingsWindow {
    Q_OBJECT

public:
    /// Whether the desktop lets a program place its windows and tells where they are. Where it does not, only
    /// the size is restored and kept.
    enum class Placing { byProgram, byDesktop };

    /// `bringToUser` moves the window, while it is shown, to the virtual desktop that the user is on.
    PaintedSettingsWindow(std::unique_ptr<QWindow> content, std::unique_ptr<SettingsStorage> storage,
                          std::function<void(QWindow&)> bringToUser, Placing placing = Placing::byProgram);
    ~PaintedSettingsWindow() override;

    void bringForward() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void place();
    void closed();
    void remember();

    std::unique_ptr<QWindow> m_content;
    std::unique_ptr<SettingsStorage> m_storage;
    std::function<void(QWindow&)> m_bringToUser;
    Placing m_placing;
    QTimer m_restDelay; ///< runs while the window is being moved
    QRect m_remembered;
    bool m_isPainted = false; ///< since it was last opened
};

} // namespace orvelle
