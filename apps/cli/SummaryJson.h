#pragma once

#include <string>
#include <string_view>

#include "corvane/tree/RuleConfig.h"

namespace Cli {

/// What a list of notes shows of a note with this text: one JSON object and a line ending. `file` is how to
/// call the note; bytes of it that are not UTF-8 become U+FFFD. Offsets count UTF-16 code units. May run on
/// several threads at once.
std::string summaryLine(const std::string& file, std::u16string_view text, Ondo::RuleConfig::RuleSet rules);

} // namespace Cli
