// The session manager of a desktop (X Session Management Protocol), for the end-to-end tests. It prints the
// address at which programs find it, then what each of them does, one event a line:
//
//   registered            a program has joined the session
//   interacts             it wants to ask the user something
//   saved                 it has done what it had to before a logout, or cannot: "saved not"
//   property NAME VALUE   what it tells of itself; the words of a command are separated by a blank, a number
//   is decimal left                  its connection is closed
//
// For each word on its standard input it tells all programs: "logout" that the session is about to end,
// "cancelled" that it is not, "die" to end. It ends with its input.

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>

// Exported by libICE for session managers, but in none of its headers.
extern "C" int _IceTransNoListen(const char* protocol);

namespace {

std::vector<SmsConn> programs;
std::vector<IceConn> connections;
/// Whether the programs have been told that the session is about to end.
bool isLoggingOut = false;

void print(const std::string& line) {
    std::cout << line << std::endl;
}

Status registerProgram(SmsConn program, SmPointer /*data*/, char* previousId) {
    // An id that a manager does not know is refused, and the program asks again without one.
    if (previousId != nullptr) {
        std::free(previousId);
        return 0;
    }
    char* const id = SmsGenerateClientID(program);
    SmsRegisterClientReply(program, id);
    std::free(id);
    print("registered");
    // What the protocol asks for with a new program, to learn its properties.
    SmsSaveYourself(program, SmSaveLocal, False, SmInteractStyleNone, False);
    return 1;
}

void interactRequest(SmsConn program, SmPointer /*data*/, int /*dialogType*/) {
    print("interacts");
    SmsInteract(program);
}

void interactDone(SmsConn /*program*/, SmPointer /*data*/, Bool /*cancelShutdown*/) {}

void saveYourselfRequest(SmsConn /*program*/, SmPointer /*data*/, int /*type*/, Bool /*shutdown*/,
                         int /*style*/, Bool /*fast*/, Bool /*global*/) {}

void phase2Request(SmsConn program, SmPointer /*data*/) {
    SmsSaveYourselfPhase2(program);
}

/// Told "SaveComplete" a program may go on; before a logout it is "Die" that follows.
void saveYourselfDone(SmsConn program, SmPointer /*data*/, Bool success) {
    print(success != 0 ? "saved" : "saved not");
    if (!isLoggingOut)
        SmsSaveComplete(program);
}

void closeConnection(SmsConn program, SmPointer /*data*/, int count, char** reasons) {
    SmFreeReasons(count, reasons);
    std::erase(programs, program);
    const IceConn connection = SmsGetIceConnection(program);
    SmsCleanUp(program);
    IceSetShutdownNegotiation(connection, False);
    IceCloseConnection(connection);
    print("left");
}

std::string valueText(const SmProp& property) {
    std::string text;
    for (int index = 0; index < property.num_vals; ++index) {
        const SmPropValue& value = property.vals[index];
        const auto* bytes = static_cast<const char*>(value.value);
        text += ' ';
        if (std::string_view(property.type) == SmCARD8)
            text += std::to_string(static_cast<unsigned char>(*bytes));
        else
            text.append(bytes, static_cast<std::size_t>(value.length));
    }
    return text;
}

void setProperties(SmsConn /*program*/, SmPointer /*data*/, int count, SmProp** properties) {
    for (int index = 0; index < count; ++index) {
        print("property " + std::string(properties[index]->name) + valueText(*properties[index]));
        SmFreeProperty(properties[index]);
    }
    std::free(static_cast<void*>(properties));
}

void deleteProperties(SmsConn /*program*/, SmPointer /*data*/, int count, char** names) {
    for (int index = 0; index < count; ++index)
        std::free(names[index]);
    std::free(static_cast<void*>(names));
}

void getProperties(SmsConn program, SmPointer /*data*/) {
    SmsReturnProperties(program, 0, nullptr);
}

Status acceptProgram(SmsConn program, SmPointer /*data*/, unsigned long* mask, SmsCallbacks* callbacks,
                     char** /*failureReason*/) {
    programs.push_back(program);
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    *callbacks = {{&registerProgram, nullptr},     {&interactRequest, nullptr}, {&interactDone, nullptr},
                  {&saveYourselfRequest, nullptr}, {&phase2Request, nullptr},   {&saveYourselfDone, nullptr},
                  {&closeConnection, nullptr},     {&setProperties, nullptr},   {&deleteProperties, nullptr},
                  {&getProperties, nullptr}};
    return 1;
}

/// The address lies in the test's own environment; who knows it is let in.
Bool acceptHost(char* /*name*/) {
    return True;
}

void watchConnections(IceConn connection, IcePointer /*data*/, Bool opening, IcePointer* /*watchData*/) {
    if (opening != 0)
        connections.push_back(connection);
    else
        std::erase(connections, connection);
}

/// A program that has gone without a word; the connection is given up where its end is met.
void ignoreBrokenConnection(IceConn /*connection*/) {}

void obey(const std::string& word) {
    for (SmsConn program : programs) {
        if (word == "logout")
            SmsSaveYourself(program, SmSaveBoth, True, SmInteractStyleAny, False);
        else if (word == "cancelled")
            SmsShutdownCancelled(program);
        else if (word == "die")
            SmsDie(program);
    }
    isLoggingOut = word == "logout";
}

/// Accepts, and waits until the connection is ready for the protocol.
void accept(IceListenObj listener) {
    IceAcceptStatus status = IceAcceptSuccess;
    IceConn connection = IceAcceptConnection(listener, &status);
    while (connection != nullptr && IceConnectionStatus(connection) == IceConnectPending)
        IceProcessMessages(connection, nullptr, nullptr);
}

void process(IceConn connection) {
    if (IceProcessMessages(connection, nullptr, nullptr) != IceProcessMessagesIOError)
        return;
    const auto program =
        std::ranges::find_if(programs, [&](SmsConn each) { return SmsGetIceConnection(each) == connection; });
    if (program != programs.end())
        closeConnection(*program, nullptr, 0, nullptr);
}

/// Returns false at the end of the standard input.
bool handleNext(const std::vector<IceListenObj>& listeners) {
    std::vector<pollfd> waiting{{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0}};
    for (IceListenObj listener : listeners)
        waiting.push_back({.fd = IceGetListenConnectionNumber(listener), .events = POLLIN, .revents = 0});
    const std::vector<IceConn> present = connections;
    for (IceConn connection : present)
        waiting.push_back({.fd = IceConnectionNumber(connection), .events = POLLIN, .revents = 0});
    ::poll(waiting.data(), waiting.size(), -1);

    const auto isReady = [&](std::size_t index) { return waiting[index].revents != 0; };
    for (std::size_t index = 0; index < listeners.size(); ++index) {
        if (isReady(1 + index))
            accept(listeners[index]);
    }
    for (std::size_t index = 0; index < present.size(); ++index) {
        if (isReady(1 + listeners.size() + index))
            process(present[index]);
    }
    std::string word;
    if (isReady(0) && std::getline(std::cin, word))
        obey(word);
    return !std::cin.eof();
}

} // namespace

int main() {
    std::setvbuf(stdin, nullptr, _IONBF, 0); // what has been read ahead would not be waited for
    std::array<char, 256> error{};
    if (SmsInitialize("Test", "1", &acceptProgram, nullptr, &acceptHost, error.size(), error.data()) == 0)
        return EXIT_FAILURE;
    IceSetIOErrorHandler(&ignoreBrokenConnection);
    IceAddConnectionWatch(&watchConnections, nullptr);
    _IceTransNoListen("tcp");
    int count = 0;
    IceListenObj* listeners = nullptr;
    if (IceListenForConnections(&count, &listeners, error.size(), error.data()) == 0)
        return EXIT_FAILURE;
    for (int index = 0; index < count; ++index)
        IceSetHostBasedAuthProc(listeners[index], &acceptHost);
    char* const addresses = IceComposeNetworkIdList(count, listeners);
    print(addresses);
    std::free(addresses);
    while (handleNext({listeners, listeners + count}))
        continue;
    IceFreeListenObjs(count, listeners);
    return EXIT_SUCCESS;
}
