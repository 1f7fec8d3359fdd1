#pragma once

#include <string>

#include "corvane/client/CVNValue.h"

namespace CApi {

/// The dictionary as a JSON object: names in the order of their code units, no blanks, what JSON needs
/// escaped and lone surrogates as escapes, and everything else as it is. What is no JSON, such as list
/// information, is null.
std::u16string toJson(const CVNDictionary& dictionary);

} // namespace CApi
