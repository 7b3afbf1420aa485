#pragma once

#include "darwin/simulated/machine.h"

#include <iosfwd>
#include <set>

namespace orvelle::simulated {

/// How much of what the system lent has not been given back.
struct Live {
    std::size_t ports = 0;
    std::size_t pages = 0; ///< answers in pages of their own
    std::size_t interfaceLists = 0;
    std::size_t registryObjects = 0;
    std::size_t connections = 0;
    std::size_t coreFoundationObjects = 0;
    std::size_t foundationObjects = 0;

    bool operator==(const Live&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Live& live);

/// What a name that the kernel handed out stands for.
struct NamedObject {
    enum class Kind { hostPort, service, iterator, connection };

    Kind kind = Kind::hostPort;
    std::string className{};  ///< of a service, or of those that an iterator goes through
    std::size_t position = 0; ///< which service of the class, or the iterator's next
};

enum class Call {
    system, ///< into the kernel or a system service
    library ///< answered within the process
};

/// The scripted kernel behind the simulated declarations. It answers from `machine`, writes down every call,
/// lets the chosen ones fail and keeps account of what has to be given back.
class Kernel {
public:
    using WireBlock = std::array<std::uint8_t, 80>;

    Machine machine{};

    /// Calls into the system in their order, each with the arguments that matter.
    [[nodiscard]] const std::vector<std::string>& systemCalls() const { return m_systemCalls; }
    /// Every call that can fail, those within the process included.
    [[nodiscard]] const std::vector<std::string>& calls() const { return m_calls; }
    void forgetCalls();

    /// The call of this number, counted from 0 since the last `forgetCalls`, fails.
    void failCall(std::size_t number) { m_failingCall = number; }
    /// Every call whose text begins so fails.
    void failCallsTo(std::string prefix) { m_failingPrefix = std::move(prefix); }

    [[nodiscard]] Live live() const;
    /// Everything that a real system would have punished or that no documentation allows.
    [[nodiscard]] const std::vector<std::string>& complaints() const { return m_complaints; }
    /// What the user client was given, in order.
    [[nodiscard]] const std::vector<WireBlock>& wireBlocks() const { return m_wireBlocks; }

    // For the simulated calls.
    /// Writes the call down; false when it is to fail.
    [[nodiscard]] bool arrives(std::string call, Call kind = Call::system);
    void expect(bool isTrue, const std::string& otherwise);
    void keepWireBlock(const WireBlock& block) { m_wireBlocks.push_back(block); }

    [[nodiscard]] std::uint32_t lendName(NamedObject object);
    /// Null when the name stands for nothing.
    [[nodiscard]] NamedObject* named(std::uint32_t name);
    void takeBackName(std::uint32_t name, bool isKindRight);

    std::map<std::uintptr_t, std::size_t> lentPages{}; ///< address and size in bytes
    std::set<const void*> lentInterfaceLists{};
    std::set<const void*> coreFoundationObjects{};
    std::set<const void*> foundationObjects{};

private:
    std::vector<std::string> m_systemCalls;
    std::vector<std::string> m_calls;
    std::vector<std::string> m_complaints;
    std::vector<WireBlock> m_wireBlocks;
    std::optional<std::size_t> m_failingCall;
    std::optional<std::string> m_failingPrefix;
    std::map<std::uint32_t, NamedObject> m_names;
    std::uint32_t m_nextName = 0x1003;
};

/// The one kernel of the test process.
[[nodiscard]] Kernel& kernel();

} // namespace orvelle::simulated
