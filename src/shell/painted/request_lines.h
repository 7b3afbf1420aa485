#pragma once

#include "shell/start_request.h"

#include <QByteArray>

#include <vector>

namespace orvelle {

/// Reads requests from a pipe, one a line. Whoever owns the pipe may write anything to it. Main thread only.
class RequestLines {
public:
    /// The requests whose lines end in these bytes, in their order. A line that ends in later ones is waited
    /// for. Of equal requests one after another only the first is there, so that a flood asks for little.
    [[nodiscard]] std::vector<StartRequest> take(QByteArrayView bytes);

private:
    QByteArray m_begun; ///< the line that has not ended yet, as far as it matters
};

} // namespace orvelle
