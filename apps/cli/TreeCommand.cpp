#include "Commands.h"
#include "Note.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Cli {

Outcome tree(const Options& options) {
    return {Ondo::Util::utf8(Ondo::Tree(readNoteText(options), options.rules).toIndentedTree())};
}

} // namespace Cli
