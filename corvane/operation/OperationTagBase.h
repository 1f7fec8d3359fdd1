#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// What the commands on tags share: the text of a tag.
class CORVANE_EXPORT TagBase : public Operation {};

} // namespace CVN::Operation
