#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

namespace orvelle {

/// Changes or removes an environment variable for the lifetime of the object.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::optional<QByteArray>& value)
        : m_name(name)
        , m_before(qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt) {
        set(value);
    }
    ~EnvironmentVariable() { set(m_before); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void set(const std::optional<QByteArray>& value) const {
        if (value)
            qputenv(m_name, *value);
        else
            qunsetenv(m_name);
    }

    const char* m_name;
    std::optional<QByteArray> m_before;
};

} // namespace orvelle
