#pragma once

#include "settings/setting_value.h"

#include <type_traits>
#include <utility>

namespace orvelle {

class SettingsStore;

/// The parameter type of a setting: a text by reference, everything else by value.
template <class Value>
using PassedSetting = std::conditional_t<std::is_same_v<Value, QString>, const QString&, Value>;

/// One setting of any type: its key, and whether its value is stored.
class AnySetting {
public:
    using ChangedSignal = void (SettingsStore::*)();

    AnySetting(const AnySetting&) = delete;
    AnySetting& operator=(const AnySetting&) = delete;

    [[nodiscard]] const QString& key() const { return m_key; }
    [[nodiscard]] ChangedSignal changedSignal() const { return m_changedSignal; }
    /// Whether the storage does not yet hold the value.
    [[nodiscard]] bool isUnsaved() const { return m_isUnsaved; }

    [[nodiscard]] virtual QVariant storedForm() const = 0;
    /// The storage now holds the value.
    virtual void markSaved() = 0;
    /// Takes the stored value, or the default where that is not legal, if the storage held another value
    /// before: only then did someone change it. Otherwise a value that could not be saved stays. Returns
    /// whether the value changed.
    [[nodiscard]] virtual bool follow(const QVariant& stored) = 0;

protected:
    AnySetting(const char* key, ChangedSignal signal)
        : m_key(QLatin1StringView(key))
        , m_changedSignal(signal) {}
    ~AnySetting() = default;

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

    /// Assigns a value, to be saved unless the storage holds it. One that is not legal is not taken. Returns
    /// whether the value changed.
    [[nodiscard]] bool assign(const Value& value) {
        if (!isLegalSetting(value))
            return false;
        m_isUnsaved = value != m_stored;
        return std::exchange(m_value, value) != value;
    }

    [[nodiscard]] QVariant storedForm() const override { return orvelle::storedForm(m_value); }

    void markSaved() override {
        m_stored = m_value;
        m_isUnsaved = false;
    }

    [[nodiscard]] bool follow(const QVariant& stored) override {
        std::optional<Value> parsed = parseSetting<Value>(stored);
        if (parsed == m_stored)
            return false;
        m_stored = std::move(parsed);
        m_isUnsaved = false;
        const Value previous = std::exchange(m_value, m_stored.value_or(m_default));
        return m_value != previous;
    }

private:
    Value m_default;
    Value m_value;
    std::optional<Value> m_stored; ///< what the storage last held, nothing while that was not legal
};

} // namespace orvelle
