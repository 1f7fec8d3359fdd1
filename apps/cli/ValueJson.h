#pragma once

#include <string>

#include "corvane/client/CVNValue.h"

namespace Cli {

/// The value of an attribute run as JSON on one line, in UTF-8. List information is an object of its seven
/// coding keys. Lone surrogates become U+FFFD.
std::string jsonText(const CVNValue& value);

} // namespace Cli
