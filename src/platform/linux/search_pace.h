#pragma once

namespace orvelle::linux_platform {

/// When a source looks again for its devices. They come and go rarely and looking costs many times as much as
/// reading, so it is done at the first sample, at every tenth after it, and when something went missing.
class SearchPace {
public:
    /// Counts one sample; true when it is to begin with a search.
    [[nodiscard]] bool isSearchDue() {
        if (m_samplesLeft > 0) {
            --m_samplesLeft;
            return false;
        }
        m_samplesLeft = samplesBetweenSearches;
        return true;
    }

    /// The next sample begins with a search.
    void hasten() { m_samplesLeft = 0; }

private:
    static constexpr unsigned samplesBetweenSearches = 9;

    unsigned m_samplesLeft = 0;
};

} // namespace orvelle::linux_platform
