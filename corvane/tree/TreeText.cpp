#include "corvane/tree/TreeText.h"

#include "corvane/scan/Util.h"

namespace Ondo::Util {

std::u16string toHtml(const Node* node, std::u16string_view markdown) {
    std::u16string out;
    node->toHtml(out, markdown, node->startOffset());
    return out;
}

std::u16string toIndentedTree(Node* node, std::u16string_view markdown) {
    std::u16string out;
    const Node* const end = node->nextInSequenceSkippingSubtree();
    for (Node::Iterator at = node->begin(); at.node != end; ++at) {
        out.append(static_cast<std::size_t>(2 * at.level), u' ');
        out += at->toIndentedTree();
        if (!at->firstChild) {
            const std::u16string_view text =
                markdown.substr(static_cast<std::size_t>(at.offset), static_cast<std::size_t>(at->charCount));
            out += u'(';
            out += escape(text);
            out += u')';
        }
        out += u'\n';
    }
    return out;
}

} // namespace Ondo::Util
