#include "darwin/simulated/kernel.h"

#include <algorithm>
#include <ostream>

namespace orvelle::simulated {

std::ostream& operator<<(std::ostream& stream, const Live& live) {
    return stream << live.ports << " ports, " << live.pages << " answers in pages, " << live.interfaceLists
                  << " interface lists, " << live.registryObjects << " registry objects, " << live.connections
                  << " connections, " << live.coreFoundationObjects << " Core Foundation objects, "
                  << live.foundationObjects << " Foundation objects";
}

void Kernel::forgetCalls() {
    m_systemCalls.clear();
    m_calls.clear();
    m_wireBlocks.clear();
}

Live Kernel::live() const {
    const auto count = [this](auto... kinds) {
        return static_cast<std::size_t>(std::ranges::count_if(
            m_names, [kinds...](const auto& name) { return ((name.second.kind == kinds) || ...); }));
    };
    using enum NamedObject::Kind;
    return {.ports = count(hostPort),
            .pages = lentPages.size(),
            .interfaceLists = lentInterfaceLists.size(),
            .registryObjects = count(service, iterator),
            .connections = count(connection),
            .coreFoundationObjects = coreFoundationObjects.size(),
            .foundationObjects = foundationObjects.size()};
}

bool Kernel::arrives(std::string call, Call kind) {
    const bool fails =
        m_failingCall == m_calls.size() || (m_failingPrefix && call.starts_with(*m_failingPrefix));
    if (kind == Call::system)
        m_systemCalls.push_back(call);
    m_calls.push_back(std::move(call));
    return !fails;
}

void Kernel::expect(bool isTrue, const std::string& otherwise) {
    if (!isTrue)
        m_complaints.push_back(otherwise);
}

std::uint32_t Kernel::lendName(NamedObject object) {
    m_names.emplace(m_nextName, std::move(object));
    return m_nextName++;
}

NamedObject* Kernel::named(std::uint32_t name) {
    const auto position = m_names.find(name);
    return position != m_names.end() ? &position->second : nullptr;
}

void Kernel::takeBackName(std::uint32_t name, bool isKindRight) {
    expect(isKindRight, "a name was given back that is not lent, or to the wrong call");
    if (isKindRight)
        m_names.erase(name);
}

Kernel& kernel() {
    static Kernel theKernel;
    return theKernel;
}

} // namespace orvelle::simulated
