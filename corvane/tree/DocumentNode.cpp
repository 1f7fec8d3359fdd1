#include "corvane/tree/DocumentNode.h"

namespace Ondo::Block {

void DocumentNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    childrenToHtml(out, markdown, offset);
}

} // namespace Ondo::Block
