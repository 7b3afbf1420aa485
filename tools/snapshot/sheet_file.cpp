#include "snapshot/sheet_file.h"

#include <QDir>
#include <QImageWriter>

namespace orvelle {

QString sheetFileName(const QString& sheetName, double scale) {
    return QStringLiteral("%1@%2.png").arg(sheetName, QString::number(scale));
}

std::optional<QString> writeSheets(const QList<Sheet>& sheets, const QString& directory, double scale) {
    if (!QDir().mkpath(directory))
        return QStringLiteral("Cannot make the directory \"%1\"").arg(directory);
    for (const Sheet& sheet : sheets) {
        const QString path = QDir(directory).filePath(sheetFileName(sheet.name, scale));
        QImageWriter writer(path, "png");
        writer.setQuality(0); // the most compression; nothing is lost
        if (!writer.write(sheetImage(sheet, scale)))
            return QStringLiteral("Cannot write \"%1\": %2").arg(path, writer.errorString());
    }
    return std::nullopt;
}

} // namespace orvelle
