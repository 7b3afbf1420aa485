#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>

namespace orvelle {

/// A named set of colours. They are opaque unless the table of themes says otherwise. All themes are built
/// in.
struct AppTheme {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QColor cpuColor MEMBER cpuColor CONSTANT)
    Q_PROPERTY(QColor memoryColor MEMBER memoryColor CONSTANT)
    Q_PROPERTY(QColor networkColor MEMBER networkColor CONSTANT)
    Q_PROPERTY(QColor diskColor MEMBER diskColor CONSTANT)
    Q_PROPERTY(QColor batteryColor MEMBER batteryColor CONSTANT)
    Q_PROPERTY(QColor sensorColor MEMBER sensorColor CONSTANT)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor CONSTANT)
    Q_PROPERTY(QColor textColor MEMBER textColor CONSTANT)
    Q_PROPERTY(QColor accentColor MEMBER accentColor CONSTANT)
    Q_PROPERTY(QColor graphLine MEMBER graphLine CONSTANT)
    Q_PROPERTY(QColor graphFill MEMBER graphFill CONSTANT)
    Q_PROPERTY(QColor graphGrid MEMBER graphGrid CONSTANT)
    Q_PROPERTY(QColor networkDownloadColor MEMBER networkDownloadColor CONSTANT)
    Q_PROPERTY(QColor networkUploadColor MEMBER networkUploadColor CONSTANT)
    Q_PROPERTY(QColor diskReadColor MEMBER diskReadColor CONSTANT)
    Q_PROPERTY(QColor diskWriteColor MEMBER diskWriteColor CONSTANT)
public:
    QString id;   ///< stable key, stored in `selectedThemeId`
    QString name; ///< label in the settings window
    QColor cpuColor;
    QColor memoryColor;
    QColor networkColor;
    QColor diskColor;
    QColor batteryColor;
    QColor sensorColor;
    QColor backgroundColor; ///< background of the panels
    QColor textColor;       ///< primary text
    QColor accentColor;
    QColor graphLine; ///< line of graphs with one series
    QColor graphFill; ///< fill under graphs
    QColor graphGrid; ///< grid lines, always translucent
    QColor networkDownloadColor;
    QColor networkUploadColor;
    QColor diskReadColor;
    QColor diskWriteColor;

    bool operator==(const AppTheme&) const = default;
};

/// The twelve themes in the order of the settings window, built on first use. The first, Midnight, applies
/// when no theme has the stored id.
[[nodiscard]] const QList<AppTheme>& builtInThemes();

} // namespace orvelle
