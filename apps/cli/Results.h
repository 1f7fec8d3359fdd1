#pragma once

#include <string>

#include "Commands.h"
#include "corvane/client/CVNAST.h"

/// What `op` and `correct` have in common: a name of a table, and the results of what it names.
namespace Cli {

/// An array of {"range":[offset,length],"text":"...","selection":[offset,length]} in the order of the list.
std::string jsonText(const CVNASTTextOperations::Results& results);

/// What the options give as the value of a required option. Throws a Failure when it is missing.
template <class Value>
const Value& required(const char* option, const std::optional<Value>& value) {
    if (!value) throw Failure(std::string(option) + " is required", BadUsage);
    return *value;
}

/// The row of a table that the options name. Throws a Failure that lists the names for any other name, and
/// for none.
template <class Row>
const Row& requiredRow(const Options& options) {
    if (options.name)
        if (const Row* const row = Row::named(*options.name)) return *row;
    std::string message = options.name ? "there is no " + *options.name : "NAME is missing";
    for (const Row& row : Row::all())
        message += (&row == Row::all().data() ? "; the names are " : ", ") + std::string(row.name);
    throw Failure(message, BadUsage);
}

/// UTF-8 from the command line, which `what` calls.
std::u16string textOfArgument(const std::string& what, const std::string& bytes);

} // namespace Cli
