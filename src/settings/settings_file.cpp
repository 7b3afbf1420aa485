#include "settings/settings_file.h"

#include "settings/ini_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <utility>

namespace orvelle {

SettingsFile::SettingsFile(QString filePath)
    : m_filePath(std::move(filePath)) {}

std::optional<StoredValues> SettingsFile::read(const QStringList& keys) {
    const std::optional<QByteArray> text = readText();
    if (!text)
        return std::nullopt;
    return IniText::parse(*text, keys);
}

bool SettingsFile::write(const StoredValues& values) {
    const std::optional<QByteArray> text = readText();
    if (!text || !QDir().mkpath(QFileInfo(m_filePath).path()))
        return false;
    const QByteArray newText = IniText::withValues(*text, values);
    QSaveFile file(m_filePath);
    return newText.size() <= maximumSize && file.open(QIODevice::WriteOnly) &&
           file.write(newText) == newText.size() && file.commit();
}

std::optional<QByteArray> SettingsFile::readText() const {
    const QFileInfo info(m_filePath);
    if (!info.exists())
        return QByteArray();
    // Opening a pipe or a device could wait for ever.
    QFile file(m_filePath);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    QByteArray text = file.read(maximumSize + 1);
    if (text.size() > maximumSize || file.error() != QFileDevice::NoError)
        return std::nullopt;
    return text;
}

} // namespace orvelle
