#include "parsers.h"
#include "require.h"
#include "shell/painted/request_lines.h"

#include <algorithm>

namespace orvelle::fuzz {

/// Text that other processes write to the pipe of the one that runs.
void fuzzStartRequests(std::string_view text) {
    RequestLines lines;
    const auto size = static_cast<qsizetype>(text.size());
    const std::vector<StartRequest> requests = lines.take({text.data(), size});
    require(std::ssize(requests) <= std::ranges::count(text, '\n'), "a line asks for one thing at most");
    for (const StartRequest& request : requests) {
        const QByteArray own = startRequestText(request);
        require(own.size() <= longestStartRequest, "a request fits into a message");
        require(parseStartRequest(own) == request, "a request is the same after its text has been read");
    }
    RequestLines byHalves;
    std::vector<StartRequest> again = byHalves.take({text.data(), size / 2});
    for (const StartRequest& request : byHalves.take({text.data() + size / 2, size - size / 2}))
        again.push_back(request);
    again.erase(std::unique(again.begin(), again.end()), again.end());
    require(again == requests, "it does not matter in how many parts the text comes");
}

} // namespace orvelle::fuzz
