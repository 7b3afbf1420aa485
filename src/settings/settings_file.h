#pragma once

#include "settings/settings_storage.h"

class QSettings;

namespace orvelle {

/// Settings in a file of plain ini text (see `PlainIni`), kept by QSettings: it locks the file while it
/// writes, merges the values into what the file then holds and replaces it as a whole, so that no reader and
/// no power cut ever sees half of it. A missing file is an empty one; its folder is created when first
/// needed.
class SettingsFile : public SettingsStorage {
public:
    explicit SettingsFile(QString filePath);

    /// Nothing when something other than a readable file of a sensible size stands in the file's place.
    [[nodiscard]] std::optional<StoredValues> read(const QStringList& keys) override;
    [[nodiscard]] bool write(const StoredValues& values) override;
    [[nodiscard]] QString failureReason() const override;
    [[nodiscard]] QString filePath() const override { return m_filePath; }

private:
    /// Whether the path leads to a readable file or to nothing.
    [[nodiscard]] bool isFileOrMissing() const;
    /// Null when the file cannot be read.
    [[nodiscard]] std::unique_ptr<QSettings> open() const;

    QString m_filePath;
};

} // namespace orvelle
