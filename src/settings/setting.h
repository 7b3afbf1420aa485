#pragma once

#include "settings/setting_value.h"

#include <utility>

namespace orvelle {

class SettingsStore;

/// One setting of the store, whatever its type: its key, and how its value compares with what is stored.
class AnySetting {
public:
    using ChangedSignal = void (SettingsStore::*)();

    AnySetting(const AnySetting&) = delete;
    AnySetting& operator=(const AnySetting&) = delete;

    [[nodiscard]] const QString& key() const { return m_key; }
    [[nodiscard]] ChangedSignal changedSignal() const { return m_changedSignal; }
    [[nodiscard]] virtual QVariant storedForm() const = 0;

    /// Whether the storage does not yet hold the value.
    [[nodiscard]] bool isUnsaved() const { return m_isUnsaved; }
    /// The storage now holds the value.
    void markSaved();
    /// Takes over what the storage holds, if that is not what it held before: only then did someone else
    /// change it, and a value that could not be saved stays. Returns whether the value changed.
    [[nodiscard]] bool follow(const QVariant& stored);

protected:
    AnySetting(const char* key, ChangedSignal signal)
        : m_key(QLatin1StringView(key))
        , m_changedSignal(signal) {}
    ~AnySetting() = default;

    /// Assigns the parsed value or the default; returns whether the value changed.
    virtual bool assignStored(const QVariant& stored) = 0;

    QVariant m_stored; ///< what the storage last held, invalid when that was no plain value
    bool m_isUnsaved = false;

private:
    QString m_key;
    ChangedSignal m_changedSignal;
};

template <class Value>
class Setting final : public AnySetting {
public:
    Setting(const char* key, Value defaultValue, ChangedSignal signal)
        : AnySetting(key, signal)
        , m_default(defaultValue)
        , m_value(std::move(defaultValue)) {}

    [[nodiscard]] const Value& value() const { return m_value; }
    [[nodiscard]] QVariant storedForm() const override { return orvelle::storedForm(m_value); }

    /// Assigns a value that is to be saved. Returns false where there is nothing to do: the value is not
    /// legal, or it is the present one and stored already.
    [[nodiscard]] bool assign(const Value& value) {
        const bool isStored = !m_isUnsaved && parseSetting<Value>(m_stored).has_value();
        if (!isLegalSetting(value) || (isStored && value == m_value))
            return false;
        m_value = value;
        m_isUnsaved = true;
        return true;
    }

private:
    bool assignStored(const QVariant& stored) override {
        Value value = parseSetting<Value>(stored).value_or(m_default);
        return std::exchange(m_value, value) != value;
    }

    Value m_default;
    Value m_value;
};

inline void AnySetting::markSaved() {
    m_stored = storedForm();
    m_isUnsaved = false;
}

inline bool AnySetting::follow(const QVariant& stored) {
    if (stored == m_stored)
        return false;
    m_stored = stored;
    m_isUnsaved = false;
    return assignStored(stored);
}

} // namespace orvelle
