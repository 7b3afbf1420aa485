#include "snapshot/sheet_file.h"

#include <QDir>
#include <QImageWriter>

namespace orvelle {

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
