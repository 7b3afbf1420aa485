#include "shell/x11/pointer_presses.h"

#include "shell/x11/x11_connection.h"

#include <QGuiApplication>
#include <xcb/xcbext.h>

namespace orvelle {
namespace {

// Two records of the XInput 2 protocol do not merit its library.
constexpr std::uint8_t selectEventsRequest = 46;
constexpr std::uint16_t rawButtonPressEvent = 15;
constexpr std::uint16_t allMasterDevices = 1;

struct SelectEvents {
    std::uint8_t majorOpcode = 0; // this field and the next two are filled by the connection
    std::uint8_t minorOpcode = 0;
    std::uint16_t length = 0;
    std::uint32_t window = 0;
    std::uint16_t maskCount = 1;
    std::uint16_t padding = 0;
    std::uint16_t device = allMasterDevices;
    std::uint16_t maskWords = 1;
    std::uint32_t mask = 0;
};
static_assert(sizeof(SelectEvents) == 20);

struct RawButtonPress {
    std::uint8_t type;
    std::uint8_t extension;
    std::uint16_t sequence;
    std::uint32_t length;
    std::uint16_t eventType;
    std::uint16_t device;
    std::uint32_t time;
    std::uint32_t button;
};
static_assert(sizeof(RawButtonPress) == 20);

xcb_extension_t inputExtension{"XInputExtension", 0};

/// Asks for the events in `mask`, on the root window, in place of those that were asked for before. Qt asks
/// there too, but for the devices of another group.
void selectEvents(xcb_connection_t* connection, std::uint32_t mask) {
    SelectEvents request;
    request.window = rootWindow(connection);
    request.mask = mask;
    // The connection wants two entries of its own in front.
    iovec parts[3]{};
    parts[2] = {&request, sizeof(request)};
    const xcb_protocol_request_t protocol{
        .count = 1, .ext = &inputExtension, .opcode = selectEventsRequest, .isvoid = 1};
    xcb_send_request(connection, 0, parts + 2, &protocol);
    xcb_flush(connection);
}

/// One selection serves all that listen.
int listenerCount = 0;

bool isWheel(std::uint32_t button) {
    return button >= 4 && button <= 7;
}

} // namespace

PointerPresses::PointerPresses() {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return;
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &inputExtension);
    if (extension == nullptr || extension->present == 0)
        return;
    m_extension = extension->major_opcode;
    if (++listenerCount == 1)
        selectEvents(connection, 1U << rawButtonPressEvent);
    qGuiApp->installNativeEventFilter(this);
}

PointerPresses::~PointerPresses() {
    if (m_extension == 0)
        return;
    qGuiApp->removeNativeEventFilter(this);
    xcb_connection_t* connection = xcbConnection();
    if (--listenerCount == 0 && connection != nullptr)
        selectEvents(connection, 0);
}

bool PointerPresses::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto& event = *static_cast<const RawButtonPress*>(message);
    if (event.type == XCB_GE_GENERIC && event.extension == m_extension &&
        event.eventType == rawButtonPressEvent && !isWheel(event.button))
        Q_EMIT pressed();
    return false;
}

} // namespace orvelle
