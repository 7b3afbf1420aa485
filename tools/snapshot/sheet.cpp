#include "snapshot/sheet.h"

#include "theme/fonts.h"

#include <QDir>
#include <QFontMetricsF>
#include <QImageWriter>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double margin = 14;   ///< around the rows of one background
constexpr double rowGap = 10;   ///< between two rows
constexpr double columnGap = 8; ///< between two cells

struct Colors {
    QColor background;
    QColor title;
    QColor caption;
};

Colors colorsOf(SheetBackground background) {
    if (background == SheetBackground::dark)
        return {QColor(30, 30, 32), QColor(255, 255, 255, 217), QColor(255, 255, 255, 153)};
    return {QColor(246, 246, 248), QColor(0, 0, 0, 217), QColor(0, 0, 0, 153)};
}

QFont titleFont() {
    return systemFont(10, QFont::DemiBold);
}
QFont captionFont() {
    return systemFont(9);
}

double lineHeight(const QFont& font) {
    return std::ceil(QFontMetricsF(font).height()) + 2;
}

/// Width of the view or of its caption, whichever is wider.
double columnWidth(const SheetCell& cell) {
    return std::ceil(
        std::max(cell.size.width(), QFontMetricsF(captionFont()).horizontalAdvance(cell.caption)));
}

double viewHeight(const SheetRow& row) {
    double height = 0;
    for (const SheetCell& cell : row.cells)
        height = std::max(height, cell.size.height());
    return std::ceil(height);
}

QSizeF rowSize(const SheetRow& row) {
    double width = -columnGap;
    for (const SheetCell& cell : row.cells)
        width += columnWidth(cell) + columnGap;
    const double titleWidth = std::ceil(QFontMetricsF(titleFont()).horizontalAdvance(row.title));
    return {std::max(width, titleWidth),
            lineHeight(titleFont()) + viewHeight(row) + lineHeight(captionFont())};
}

/// The rows on one background with the margin around them.
QSizeF panelSize(const Sheet& sheet) {
    double width = 0;
    double height = -rowGap;
    for (const SheetRow& row : sheet.rows) {
        width = std::max(width, rowSize(row).width());
        height += rowSize(row).height() + rowGap;
    }
    return {width + 2 * margin, std::max(height, 0.0) + 2 * margin};
}

void paintRow(QPainter& painter, const QPointF& topLeft, const SheetRow& row, const Colors& colors) {
    const QRectF title(topLeft, QSizeF(rowSize(row).width(), lineHeight(titleFont())));
    painter.setFont(titleFont());
    painter.setPen(colors.title);
    painter.drawText(title, Qt::AlignLeft | Qt::AlignTop, row.title);
    double left = topLeft.x();
    for (const SheetCell& cell : row.cells) {
        const double width = columnWidth(cell);
        const QRectF column(left, title.bottom(), width, viewHeight(row));
        const QPointF corner(left + std::floor((width - cell.size.width()) / 2),
                             column.top() + std::floor((column.height() - cell.size.height()) / 2));
        painter.save();
        cell.paint(painter, QRectF(corner, cell.size));
        painter.restore();
        painter.setFont(captionFont());
        painter.setPen(colors.caption);
        painter.drawText(QRectF(left, column.bottom(), width, lineHeight(captionFont())),
                         Qt::AlignHCenter | Qt::AlignBottom, cell.caption);
        left += width + columnGap;
    }
}

void paintPanel(QPainter& painter, const QRectF& panel, const Sheet& sheet, SheetBackground background) {
    const Colors colors = colorsOf(background);
    painter.fillRect(panel, colors.background);
    QPointF topLeft = panel.topLeft() + QPointF(margin, margin);
    for (const SheetRow& row : sheet.rows) {
        paintRow(painter, topLeft, row, colors);
        topLeft.ry() += rowSize(row).height() + rowGap;
    }
}

} // namespace

SheetCell cellWithRoom(const QString& caption, const QSizeF& viewSize, double room,
                       std::function<void(QPainter&, const QRectF&)> paint) {
    return {.caption = caption,
            .size = viewSize + QSizeF(2 * room, 2 * room),
            .paint = [room, paint = std::move(paint)](QPainter& painter, const QRectF& frame) {
                paint(painter, frame.adjusted(room, room, -room, -room));
            }};
}

QSize sheetSize(const Sheet& sheet) {
    const QSizeF panel = panelSize(sheet);
    return {static_cast<int>(panel.width()),
            static_cast<int>(panel.height()) * static_cast<int>(sheet.backgrounds.size())};
}

QImage sheetImage(const Sheet& sheet, double scale) {
    QImage image((QSizeF(sheetSize(sheet)) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QRectF panel(QPointF(0, 0), panelSize(sheet));
    for (const SheetBackground background : sheet.backgrounds) {
        paintPanel(painter, panel, sheet, background);
        panel.translate(0, panel.height());
    }
    painter.end();
    return image.convertToFormat(QImage::Format_RGB32);
}

QString sheetFileName(const QString& sheetName, double scale) {
    return QStringLiteral("%1@%2.png").arg(sheetName, QString::number(scale));
}

std::optional<QString> writePicture(const QImage& picture, const QString& fileName,
                                    const QString& directory) {
    if (!QDir().mkpath(directory))
        return QStringLiteral("Cannot make the directory \"%1\"").arg(directory);
    const QString path = QDir(directory).filePath(fileName);
    QImageWriter writer(path, "png");
    writer.setQuality(0); // the most compression; nothing is lost
    if (!writer.write(picture))
        return QStringLiteral("Cannot write \"%1\": %2").arg(path, writer.errorString());
    return std::nullopt;
}

std::optional<QString> writeSheets(const QList<Sheet>& sheets, const QString& directory, double scale) {
    for (const Sheet& sheet : sheets) {
        if (auto error = writePicture(sheetImage(sheet, scale), sheetFileName(sheet.name, scale), directory))
            return error;
    }
    return std::nullopt;
}

} // namespace orvelle
