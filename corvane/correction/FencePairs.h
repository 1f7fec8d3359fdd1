#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/tree/Node.h"

/// How the fences of backticks in a container pair up.
///
/// An edit of one fence can turn all fences below it around: closing ones open, opening ones close. Whether
/// that is a fault or mends one shows in what it leaves behind. A fence that nothing closes, and an opening
/// one such as "```js" inside of code that it could be the fence of, weigh 2; a closing fence longer than the
/// opening one weighs 1, since it is allowed but odd. Of two ways to pair the fences up, the one that weighs
/// less is what was meant.
///
/// Containers inside of the container, and blocks of tildes, math or HTML, are passed over. Of a long note
/// the next 64 blocks tell: fences that are turned around stay so to its end.

namespace CVN::Correction {

/// The marker of a block's closing fence; null when it is open.
const Ondo::Node* closingFence(const Ondo::Node& codeBlock);

/// What the blocks behind `block` in its container weigh when a fence of `open` backticks is open before
/// them; 0 stands for none. A null block has none behind it.
std::int64_t weightBehind(const Ondo::Node* block, std::int64_t open);

/// What a block of code and those behind it weigh when its opening fence has `open` backticks.
std::int64_t weightFrom(const Ondo::Node* codeBlock, std::int64_t open);

/// Whether a line of code begins with a run of `least` backticks or more, where a fence could stand.
bool holdsFence(std::u16string_view code, std::int64_t least);

} // namespace CVN::Correction
