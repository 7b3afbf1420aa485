#include "shell/start_request.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr QByteArrayView settingsText("settings");
constexpr QByteArrayView quitText("quit");
constexpr QByteArrayView openText("open ");
static_assert(openText.size() + longestRequestedModule == longestStartRequest);

bool isLetterOrDigit(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

bool isModule(QByteArrayView key) {
    return !key.isEmpty() && key.size() <= longestRequestedModule &&
           std::ranges::all_of(key, isLetterOrDigit);
}

} // namespace

QByteArray startRequestText(const StartRequest& request) {
    switch (request.kind) {
    case StartRequest::Kind::openSettings:
        return settingsText.toByteArray();
    case StartRequest::Kind::openPanel:
        return openText.toByteArray() + request.module.toLatin1();
    case StartRequest::Kind::quit:
        return quitText.toByteArray();
    case StartRequest::Kind::startAgain:
        break;
    }
    return {};
}

StartRequest parseStartRequest(QByteArrayView text) {
    if (text == settingsText)
        return {StartRequest::Kind::openSettings, {}};
    if (text == quitText)
        return {StartRequest::Kind::quit, {}};
    if (text.startsWith(openText) && isModule(text.sliced(openText.size())))
        return {StartRequest::Kind::openPanel, QString::fromLatin1(text.sliced(openText.size()))};
    return {};
}

} // namespace orvelle
