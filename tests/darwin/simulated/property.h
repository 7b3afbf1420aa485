#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace orvelle::simulated {

struct Property;
using PropertyList = std::vector<Property>;
using Properties = std::map<std::string, Property>;

/// A value of the system's property dictionaries, as a test writes it.
struct Property : std::variant<bool, std::int64_t, double, std::string, PropertyList, Properties> {
    using variant::variant;
};

} // namespace orvelle::simulated
