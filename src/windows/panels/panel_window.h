#pragma once

#include <QQuickView>

#include <functional>

namespace orvelle {

/// The window of one panel.
class PanelWindow final : public QQuickView {
    Q_OBJECT

public:
    PanelWindow(QQmlEngine& engine, std::function<void()> openSettings)
        : QQuickView(&engine, nullptr)
        , m_openSettings(std::move(openSettings)) {}

    /// Where nothing is painted, as in rounded corners, the window shows what is behind it. Call this before
    /// the window is shown.
    void makeTranslucent();
    /// Puts `panel` into the frame of every panel, which gets these properties.
    void setPanel(QQuickItem& panel, QVariantMap frameProperties);

private Q_SLOTS:
    void openSettings() { m_openSettings(); }

private:
    std::function<void()> m_openSettings;
};

} // namespace orvelle
