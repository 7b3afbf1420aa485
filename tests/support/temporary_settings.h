#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {

/// A settings file in a folder of its own, which vanishes with the test. It is kept in memory where there is
/// a place for that: each write waits for the disk.
class TemporarySettings {
public:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("orvelle.conf")); }
    [[nodiscard]] QString folderPath() const { return m_folder.path(); }

    [[nodiscard]] QByteArray text() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Writes into the file that is there, as `echo >` does.
    void writeInPlace(const QByteArray& text) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }

    /// Puts a new file in the place of the old one, as most editors do.
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
