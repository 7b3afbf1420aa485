#include "appkit/simulated/desktop.h"

namespace orvelle::simulated {

std::map<std::string, std::size_t> Desktop::live() const {
    std::map<std::string, std::size_t> counts;
    for (const auto& [object, lent] : m_lent) {
        if (lent.isCounted)
            ++counts[lent.className];
    }
    return counts;
}

bool Desktop::arrives(std::string call) {
    const bool fails = m_failingCall == m_calls.size() || m_failingName == call;
    m_calls.push_back(std::move(call));
    return !fails;
}

void Desktop::expect(bool isTrue, const std::string& otherwise) {
    if (!isTrue)
        m_complaints.push_back(otherwise);
}

void Desktop::addReference(const void* object) {
    const auto lent = m_lent.find(object);
    expect(lent != m_lent.end(), "retain of an object that does not live");
    if (lent != m_lent.end())
        ++lent->second.references;
}

bool Desktop::dropReference(const void* object) {
    const auto lent = m_lent.find(object);
    expect(lent != m_lent.end(), "release of an object that does not live");
    if (lent == m_lent.end() || --lent->second.references > 0)
        return false;
    m_lent.erase(lent);
    return true;
}

} // namespace orvelle::simulated
