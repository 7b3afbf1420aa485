#pragma once

#include "shell/tray/tray_picture.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QPoint>

namespace orvelle {

/// What one icon of the tray shows.
struct TrayContent {
    QString title;
    TrayPictures pictures;
    TrayToolTip toolTip;
    QString label;       ///< beside the picture, where the tray has labels
    QString widestLabel; ///< for which such a tray keeps space

    bool operator==(const TrayContent&) const = default;
};

/// What the user does with an icon. The points cannot be trusted: some trays give a position on the desktop,
/// some a position in the icon, some nothing.
struct TrayActions {
    std::function<void(const QPoint&)> open;
    std::function<void(const QPoint&)> openMenu; ///< asked for by trays that show no menu themselves
};

/// The object of an icon on D-Bus, interface org.kde.StatusNotifierItem, as trays of freedesktop.org ask for
/// it. Main thread only.
class StatusNotifierItem final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(QList<orvelle::TrayPicture> IconPixmap READ iconPixmap)
    Q_PROPERTY(orvelle::TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide)

public:
    /// `id` names the icon to the tray, which may remember where it stood. `owner` is what a connection
    /// registers.
    StatusNotifierItem(QObject& owner, QString id, TrayActions actions);

    /// Shows the content, and tells the tray what of it is new.
    void show(const TrayContent& content);

    [[nodiscard]] QString category() const { return QStringLiteral("SystemServices"); }
    [[nodiscard]] QString id() const { return m_id; }
    [[nodiscard]] QString title() const { return m_content.title; }
    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
    [[nodiscard]] int windowId() const { return 0; }
    /// Empty, because a name would take precedence over the picture.
    [[nodiscard]] QString iconName() const { return {}; }
    [[nodiscard]] TrayPictures iconPixmap() const { return m_content.pictures; }
    [[nodiscard]] TrayToolTip toolTip() const { return m_content.toolTip; }
    [[nodiscard]] bool itemIsMenu() const { return false; }
    [[nodiscard]] QDBusObjectPath menu() const;
    [[nodiscard]] QString label() const { return m_content.label; }
    [[nodiscard]] QString labelGuide() const { return m_content.widestLabel; }

public Q_SLOTS: // the methods on D-Bus
    // NOLINTBEGIN(readability-identifier-naming): the names on D-Bus
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);
    /// The next window that asks for the keyboard gets it by this token of the compositor.
    void ProvideXdgActivationToken(const QString& token);

Q_SIGNALS: // the signals on D-Bus
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString& status);
    void XAyatanaNewLabel(const QString& label, const QString& guide);
    // NOLINTEND(readability-identifier-naming)

private:
    QString m_id;
    TrayActions m_actions;
    TrayContent m_content;
};

} // namespace orvelle
