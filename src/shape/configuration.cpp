#include "shape/configuration.h"

namespace rulecanvas {
namespace {

/// An array's or object's count of elements, or a word for another value.
std::string Described(const Json::Value& value) {
    const std::string count = std::to_string(value.size()) + (value.size() == 1 ? " element" : " elements");
    switch (value.type()) {
    case Json::nullValue:
        return "nothing";
    case Json::arrayValue:
        return "an array of " + count;
    case Json::objectValue:
        return "an object of " + count;
    case Json::stringValue:
        return "a text";
    case Json::booleanValue:
        return "a boolean";
    default:
        return "a number";
    }
}

} // namespace

Refusal Loading::Refuse(const std::string& expected) const {
    return Refusal{expected, Described(geometry), place};
}

} // namespace rulecanvas
