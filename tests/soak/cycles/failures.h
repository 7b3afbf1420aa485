#pragma once

#include <QList>
#include <QString>

#include <cmath>
#include <string>
#include <vector>

namespace orvelle::soak {

/// The broken promises of one cycle, in words.
class Failures {
public:
    void add(std::string text) { m_texts.push_back(std::move(text)); }
    /// Adds `text` unless `holds`. The text is made of pieces, because nearly all of them are never needed.
    void require(bool holds, const char* text) {
        if (!holds)
            add(text);
    }
    void require(bool holds, const char* text, double value) {
        if (!holds)
            add(std::string(text) + ": " + std::to_string(value));
    }

    [[nodiscard]] const std::vector<std::string>& all() const { return m_texts; }

private:
    std::vector<std::string> m_texts;
};

/// Rounding makes sums and quotients differ by this share at most.
inline constexpr double rounding = 1e-9;

[[nodiscard]] inline bool isBetween(double value, double least, double most) {
    return std::isfinite(value) && value >= least - rounding * std::abs(least) &&
           value <= most + rounding * std::abs(most);
}

[[nodiscard]] inline bool isSame(double value, double expected) {
    return isBetween(value, expected, expected);
}

/// Follows a history: each sample appends one value at most, and only the oldest is dropped.
class HistoryCheck {
public:
    explicit HistoryCheck(const char* name)
        : m_name(name) {}

    /// `appended` points to the value that this sample gave, or to nothing.
    void follow(const QList<double>& history, const double* appended, Failures& failures) {
        constexpr qsizetype longest = 60;
        if (appended != nullptr)
            m_expected.append(*appended);
        if (m_expected.size() > longest)
            m_expected.removeFirst();
        if (history != m_expected)
            failures.add(std::string(m_name) + " is not the values that the samples gave");
        m_expected = history;
    }

private:
    const char* m_name;
    QList<double> m_expected;
};

} // namespace orvelle::soak
