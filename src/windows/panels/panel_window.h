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

    /// Lets what is behind the window be seen where nothing is painted, as in its corners. Before it is
    /// shown.
    void makeTranslucent();
    /// Shows `panel` in the frame that every panel has. The properties are those of the frame.
    void setPanel(QQuickItem& panel, QVariantMap frameProperties);

private Q_SLOTS:
    void openSettings() { m_openSettings(); }

private:
    std::function<void()> m_openSettings;
};

} // namespace orvelle
