#include "app/shell/desktop.h"

#include <QWindow>

namespace orvelle {
namespace {

/// A window of its own under the desktop's window manager, which gives it its title bar.
class X11SettingsWindow final : public SettingsWindow {
public:
    explicit X11SettingsWindow(std::unique_ptr<QWindow> content)
        : m_content(std::move(content)) {
        m_content->setTitle(QStringLiteral("Orvelle Settings"));
    }

    void bringForward() override {
        m_content->showNormal(); // also when it has been minimized
        m_content->raise();
        m_content->requestActivate();
    }

private:
    std::unique_ptr<QWindow> m_content;
};

} // namespace

std::unique_ptr<SettingsWindow> makeSettingsWindow(std::unique_ptr<QWindow> content) {
    return std::make_unique<X11SettingsWindow>(std::move(content));
}

} // namespace orvelle
