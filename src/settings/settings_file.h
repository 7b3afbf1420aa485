#pragma once

#include "settings/replaced_file.h"
#include "settings/settings_storage.h"

#include <memory>

namespace orvelle {

/// Settings in a file of ini text (see `IniText`), read anew and merged with the values under a lock whenever
/// some are written, and replaced as a whole (see `ReplacedFile`). A missing file is an empty one; its folder
/// is created when first needed. Neither a lock that another program holds nor a busy disk is waited for.
class SettingsFile : public SettingsStorage {
public:
    explicit SettingsFile(QString filePath, ReplacedFile::Flush flush = ReplacedFile::systemFlush());

    /// Nothing when something other than a readable file of a sensible size stands in the file's place.
    [[nodiscard]] std::optional<StoredValues> read(const QStringList& keys) override;
    [[nodiscard]] SaveResult write(const StoredValues& values) override;
    [[nodiscard]] QString failureReason() const override;
    [[nodiscard]] QString filePath() const override { return m_filePath; }

private:
    /// The file itself where the path leads to it by links.
    [[nodiscard]] ReplacedFile& target();
    /// The text of the file, empty where there is none; nothing where it cannot be read.
    [[nodiscard]] std::optional<QByteArray> text() const;

    const QString m_filePath;
    const ReplacedFile::Flush m_flush;
    QString m_targetPath;
    std::unique_ptr<ReplacedFile> m_target;
};

} // namespace orvelle
