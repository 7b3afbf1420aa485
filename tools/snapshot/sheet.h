#pragma once

#include <QImage>
#include <QList>
#include <QPainter>
#include <QSizeF>
#include <QString>

#include <functional>

namespace orvelle {

/// One view on a sheet.
struct SheetCell {
    QString caption; ///< written under the view
    QSizeF size;     ///< room of the view, points
    std::function<void(QPainter&, const QRectF&)> paint;
};

/// Views that are compared with one another, from left to right under a heading.
struct SheetRow {
    QString title;
    QList<SheetCell> cells;
};

/// What stands behind the views.
enum class SheetBackground { dark, light };

/// A picture that shows a view in all its looks. All rows are shown once on each background.
struct Sheet {
    QString name; ///< of the file, without scale and ending
    QList<SheetRow> rows;
    QList<SheetBackground> backgrounds = {SheetBackground::dark, SheetBackground::light};
};

/// A cell with `room` points around its view on every side, for what the view paints beyond its frame.
[[nodiscard]] SheetCell cellWithRoom(const QString& caption, const QSizeF& viewSize, double room,
                                     std::function<void(QPainter&, const QRectF&)> paint);

/// Width and height that the sheet needs, whole points. Needs a QGuiApplication, as painting does.
[[nodiscard]] QSize sheetSize(const Sheet& sheet);

/// The sheet at this many pixels per point, with its device pixel ratio set.
[[nodiscard]] QImage sheetImage(const Sheet& sheet, double scale);

} // namespace orvelle
