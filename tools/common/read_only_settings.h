#pragma once

#include "settings/settings_storage.h"

namespace orvelle {

/// Settings that a tool reads and leaves as they are. Changes are not stored, and nobody watches the place.
class ReadOnlySettings : public SettingsStorage {
public:
    /// Reads the stored values of these keys; nothing when the place cannot be read.
    using Reader = std::function<std::optional<StoredValues>(const QStringList& keys)>;

    /// Without a reader every setting has its default.
    explicit ReadOnlySettings(Reader reader = {})
        : m_reader(std::move(reader)) {}

    [[nodiscard]] std::optional<StoredValues> read(const QStringList& keys) override {
        return m_reader ? m_reader(keys) : StoredValues();
    }
    [[nodiscard]] SaveResult write(const StoredValues& /*values*/) override { return SaveResult::failed; }
    [[nodiscard]] QString failureReason() const override {
        return QStringLiteral("this program only reads settings");
    }
    void watch(const QStringList& /*keys*/, std::function<void()> /*changed*/) override {}

private:
    Reader m_reader;
};

} // namespace orvelle
