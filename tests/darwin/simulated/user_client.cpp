#include "darwin/simulated/kernel.h"

#include <IOKit/IOKitLib.h>
#include <algorithm>

// The System Management Controller's user client. It knows its wire format by offsets, not by a structure, so
// that it does not share a mistake with the program.
using namespace orvelle::simulated;

namespace {

using Kind = NamedObject::Kind;
using WireBlock = Kernel::WireBlock;

constexpr std::size_t dataSizeOffset = 28;
constexpr std::size_t dataTypeOffset = 32;
constexpr std::size_t resultOffset = 40;
constexpr std::size_t commandOffset = 42;
constexpr std::size_t bytesOffset = 48;
constexpr std::uint8_t readBytes = 5;
constexpr std::uint8_t readKeyInfo = 9;
constexpr std::uint8_t keyNotFound = 0x84;

bool isConnection(io_connect_t name) {
    const NamedObject* const object = kernel().named(name);
    return object != nullptr && object->kind == Kind::connection;
}

/// A four-character code in a block, least significant byte first there.
std::string codeAt(const WireBlock& block, std::size_t offset) {
    return {block.rbegin() + static_cast<std::ptrdiff_t>(block.size() - offset - 4),
            block.rbegin() + static_cast<std::ptrdiff_t>(block.size() - offset)};
}

WireBlock answerTo(const WireBlock& question) {
    WireBlock answer{};
    const auto& keys = kernel().machine.controllerKeys;
    const auto key = keys.find(codeAt(question, 0));
    if (key == keys.end()) {
        answer[resultOffset] = keyNotFound;
        return answer;
    }
    const auto& [type, size, bytes] = key->second;
    if (question[commandOffset] == readKeyInfo) {
        std::memcpy(answer.data() + dataSizeOffset, &size, sizeof size);
        std::copy_n(type.rbegin(), 4, answer.begin() + dataTypeOffset);
        return answer;
    }
    kernel().expect(question[commandOffset] == readBytes, "a command that does not read");
    std::ranges::copy(bytes, answer.begin() + bytesOffset);
    return answer;
}

} // namespace

kern_return_t IOServiceOpen(io_service_t service, mach_port_t task, std::uint32_t type,
                            io_connect_t* connection) {
    const NamedObject* const object = kernel().named(service);
    kernel().expect(object != nullptr && object->kind == Kind::service, "IOServiceOpen of something else");
    kernel().expect(task == mach_task_self_ && type == 0,
                    "IOServiceOpen for another task or of another type");
    if (!kernel().arrives("IOServiceOpen") || object == nullptr)
        return kIOReturnNotPermitted;
    *connection = kernel().lendName({.kind = Kind::connection, .className = object->className});
    return KERN_SUCCESS;
}

kern_return_t IOConnectCallStructMethod(mach_port_t connection, std::uint32_t selector, const void* input,
                                        std::size_t inputSize, void* output, std::size_t* outputSize) {
    kernel().expect(isConnection(connection), "IOConnectCallStructMethod without a connection");
    const bool isRightSize = inputSize == 80 && *outputSize == 80;
    kernel().expect(isRightSize, "IOConnectCallStructMethod with another size");
    if (!kernel().arrives("IOConnectCallStructMethod " + std::to_string(selector)) || !isRightSize)
        return kIOReturnBadArgument;
    WireBlock question{};
    std::memcpy(question.data(), input, question.size());
    kernel().keepWireBlock(question);
    const WireBlock answer = answerTo(question);
    std::memcpy(output, answer.data(), answer.size());
    return KERN_SUCCESS;
}

kern_return_t IOServiceClose(io_connect_t connection) {
    kernel().takeBackName(connection, isConnection(connection));
    return KERN_SUCCESS;
}
