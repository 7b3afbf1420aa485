#pragma once

#include "settings/settings_storage.h"

namespace orvelle {

/// Settings in an ini file (see `IniText`), which is replaced as a whole at each write, so that no reader and
/// no power cut ever sees half of it. A missing file is an empty one; its folder is created when first
/// needed.
class SettingsFile : public SettingsStorage {
public:
    /// A larger file was not written by this program: it is neither read nor replaced.
    static constexpr qint64 maximumSize = qint64{1} << 20;

    explicit SettingsFile(QString filePath);

    /// Nothing when something other than a readable file of a sensible size stands in the file's place.
    [[nodiscard]] std::optional<StoredValues> read(const QStringList& keys) override;
    [[nodiscard]] bool write(const StoredValues& values) override;
    [[nodiscard]] QString filePath() const override { return m_filePath; }

private:
    [[nodiscard]] std::optional<QByteArray> readText() const;

    QString m_filePath;
};

} // namespace orvelle
