#pragma once

#include "shape/types.h"

#include <json/value.h>

#include <optional>
#include <string>

namespace rulecanvas {

/// Why a configuration is not taken: what should stand there, what does, and where.
struct Refusal {
    std::string expected;
    std::string found;
    /// "$" is the configuration text, "$.gate" a part of it, "type" and "option" are the other texts of the call.
    std::string place;
};

using Refused = std::optional<Refusal>;

/// What a shape is made of. Each text may be null.
struct Configuration {
    const char* shapeName;
    const char* shapeData;
    const char* styleOrMode;
    /// The client rectangle of the shape's view.
    ClientRect view;
};

/// A configuration text that is being read.
struct Loading {
    const Json::Value& root;
    /// The member that holds the geometry; null when it is missing.
    const Json::Value& geometry;
    /// The client rectangle of the shape's view.
    ClientRect view;
    /// Where the geometry stands in the text.
    std::string place;
    /// Whether paints show the shape from now on.
    bool isDrawn = true;

    Refusal Refuse(const std::string& expected) const;
};

} // namespace rulecanvas
