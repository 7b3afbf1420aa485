#pragma once

#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {

/// A settings file in a folder of its own, which vanishes with the test.
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
    QTemporaryDir m_folder;
};

} // namespace orvelle
