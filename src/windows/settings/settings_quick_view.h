#pragma once

#include <QQuickView>

#include <functional>

namespace orvelle {

/// The window around the settings.
class SettingsQuickView final : public QQuickView {
    Q_OBJECT

public:
    SettingsQuickView(QQmlEngine& engine, std::function<void()> quitApp)
        : QQuickView(&engine, nullptr)
        , m_quitApp(std::move(quitApp)) {}

    /// Loads the content, with the initial properties that were set before.
    void open();

private Q_SLOTS:
    void quitApp() { m_quitApp(); }

private:
    std::function<void()> m_quitApp;
};

} // namespace orvelle
