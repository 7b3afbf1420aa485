#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace orvelle {

class SystemMonitor;
struct FreshSettings;

/// A panel as its window shows it.
struct PanelPicture {
    QString name; ///< of the file, without scale and ending
    QImage image;
};

/// The panels of all modules with what `monitor` holds now, at rest. Their windows are shown while they are
/// painted; their scale is that of the application's screen.
[[nodiscard]] QList<PanelPicture> panelPictures(SystemMonitor& monitor, FreshSettings& settings);

} // namespace orvelle
