#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "corvane/client/Annotator.h"

/// A key that nodes of a type give, with its value and the range that it covers.
struct AnnotationRow {
    using ValueOf = std::optional<CVNValue> (*)(const Annotator&);
    using RangeOf = CVNRange (*)(const Annotator&);

    /// A constant, or what a function makes of the node; null for no attribute.
    struct Value {
        CVNValue::Kind kind = CVNValue::Kind::Boolean;
        std::int64_t number = 1;
        ValueOf function = nullptr;

        constexpr Value() = default;
        constexpr Value(std::int64_t constant) : kind(CVNValue::Kind::Integer), number(constant) {}
        constexpr Value(ValueOf valueOf) : function(valueOf) {}

        std::optional<CVNValue> of(const Annotator& at) const {
            if (function) return function(at);
            return kind == CVNValue::Kind::Integer ? CVNValue::integer(number) : CVNValue::boolean(true);
        }
    };

    Ondo::NodeType type;
    CVNAttributeName key;
    Value value;
    RangeOf range = nullptr; ///< null for the node's own
};

/// The rows of a node type, none for most markers and attributes that a reader does not see.
std::span<const AnnotationRow> annotationRows(std::uint16_t type);
