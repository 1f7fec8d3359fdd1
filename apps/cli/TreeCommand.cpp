#include "Commands.h"
#include "Input.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Cli {

Outcome tree(const Options& options) {
    return {Ondo::Util::utf8(Ondo::Tree(readText(options.file), options.rules).toIndentedTree())};
}

} // namespace Cli
