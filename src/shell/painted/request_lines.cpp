#include "shell/painted/request_lines.h"

#include <algorithm>

namespace orvelle {

std::vector<StartRequest> RequestLines::take(QByteArrayView bytes) {
    std::vector<StartRequest> requests;
    for (const char byte : bytes) {
        if (byte != '\n') {
            // One byte more than a request has tells that the line is none.
            if (m_begun.size() <= longestStartRequest)
                m_begun.append(byte);
            continue;
        }
        const StartRequest request = parseStartRequest(m_begun);
        m_begun.clear();
        if (requests.empty() || requests.back() != request)
            requests.push_back(request);
    }
    return requests;
}

} // namespace orvelle
