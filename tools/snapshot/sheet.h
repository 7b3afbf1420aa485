#pragma once

#include <QImage>
#include <QList>
#include <QPainter>
#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>

namespace orvelle {

/// One view on a sheet.
struct SheetCell {
    QString caption; ///< written under the view
    QSizeF size;     ///< of the view, points
    std::function<void(QPainter&, const QRectF&)> paint;
};

/// Views side by side under a heading.
struct SheetRow {
    QString title;
    QList<SheetCell> cells;
};

enum class SheetBackground { dark, light };

/// A picture that shows a view in all its variants. All rows are shown once on each background.
struct Sheet {
    QString name; ///< of the file, without scale and ending
    QList<SheetRow> rows;
    QList<SheetBackground> backgrounds = {SheetBackground::dark, SheetBackground::light};
};

/// A cell with `room` points around its view on every side, because the view paints beyond its frame.
[[nodiscard]] SheetCell cellWithRoom(const QString& caption, const QSizeF& viewSize, double room,
                                     std::function<void(QPainter&, const QRectF&)> paint);

/// Width and height that the sheet needs, whole points. Needs a QGuiApplication, as painting does.
[[nodiscard]] QSize sheetSize(const Sheet& sheet);

/// The sheet at this many pixels per point, with its device pixel ratio set.
[[nodiscard]] QImage sheetImage(const Sheet& sheet, double scale);

/// The name of the file of a sheet at this many pixels per point, for example "ring-charts@1.5.png".
[[nodiscard]] QString sheetFileName(const QString& sheetName, double scale);

/// Writes the picture into `directory`, which is made when it is missing; an existing file is replaced.
/// Returns an error for a person to read.
[[nodiscard]] std::optional<QString> writePicture(const QImage& picture, const QString& fileName,
                                                  const QString& directory);

/// Writes each sheet in the same way, up to the first error.
[[nodiscard]] std::optional<QString> writeSheets(const QList<Sheet>& sheets, const QString& directory,
                                                 double scale);

} // namespace orvelle
