#pragma once

#include "Model.h"

namespace Generator {

struct Parameter {
    std::string type;
    std::string name;
};

/// A virtual operation that a class adds for one of its fields: its signature, and the statement that is its body.
struct Operation {
    std::string result;
    std::string name;
    std::vector<Parameter> parameters;
    std::string body;
};

/// Get and Set and their kin of a field, in slot order. `row` is the position of the field in its class.
std::vector<Operation> Accessors(const Field& field, std::size_t row);

/// Add and Clear of a list, in slot order; nothing for other fields.
std::vector<Operation> ListOperations(const Field& field, std::size_t row);

/// All virtual operations that a class adds behind those of its base, in slot order.
std::vector<Operation> AddedOperations(const Container& container);

struct Member {
    std::string type;
    std::string name;
    std::string initializer; ///< as written behind the name: " = 5", "{0}"; empty when the type needs none
};

/// The members that hold a field: one, or map and list.
std::vector<Member> Members(const Field& field);

} // namespace Generator
