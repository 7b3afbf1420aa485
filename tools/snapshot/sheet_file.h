#pragma once

#include "snapshot/sheet.h"

#include <QString>

#include <optional>

namespace orvelle {

/// Name of the file of a sheet at this many pixels per point, for example "ring-charts@1.5.png".
[[nodiscard]] QString sheetFileName(const QString& sheetName, double scale);

/// Writes the picture as a file of this name into `directory`, which is made when it is missing, over what is
/// there. The answer is what went wrong, for a person to read.
[[nodiscard]] std::optional<QString> writePicture(const QImage& picture, const QString& fileName,
                                                  const QString& directory);

/// Writes each sheet into `directory` in the same way.
[[nodiscard]] std::optional<QString> writeSheets(const QList<Sheet>& sheets, const QString& directory,
                                                 double scale);

} // namespace orvelle
