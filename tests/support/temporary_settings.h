#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {

/// A settings file in a private folder that disappears with the test. The folder is in memory if possible,
/// because each write waits for the disk.
class TemporarySettings {
public:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("orvelle.conf")); }
    [[nodiscard]] QString folderPath() const { return m_folder.path(); }

    [[nodiscard]] QByteArray text() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Overwrites the existing file, like `echo >`.
    void writeInPlace(const QByteArray& text) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }

    /// Replaces the file with a new one, like most editors.
    void replaceByRename(const QByteArray& text) const {
        QSaveFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
        ASSERT_TRUE(file.commit());
    }

private:
    [[nodiscard]] static QString parentFolder() {
        const QString memory = QStringLiteral("/dev/shm");
        return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    }

    QTemporaryDir m_folder{parentFolder() + QStringLiteral("/orvelle-settings-XXXXXX")};
};

} // namespace orvelle
