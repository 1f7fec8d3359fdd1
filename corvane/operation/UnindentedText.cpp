#include "corvane/operation/UnindentedText.h"

#include <algorithm>

#include "corvane/operation/IndentInfo.h"
#include "corvane/operation/LinePrefix.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TrialParse.h"

namespace CVN::Operation {

using Ondo::Node;

std::u16string restOfLine(const Ondo::Tree& tree, std::int64_t offset) {
    std::u16string rest;
    for (char16_t unit = unitAt(tree, offset); unit && unit != u'\n' && unit != u'\r';
         unit = unitAt(tree, ++offset))
        rest += unit;
    return rest;
}

namespace {

/// Whether a text of its own is one block of a type, by the rules of a tree.
bool isOneBlock(const Ondo::Tree& tree, std::u16string_view text, std::uint16_t type) {
    const Ondo::Tree trial = trialParse(tree, text);
    const Node* const block = trial.root->firstChild;
    return isOfType(block, type) && !block->nextSibling;
}

} // namespace

bool continuesParagraph(const Ondo::Tree& tree, std::int64_t textOffset) {
    const char16_t first = unitAt(tree, textOffset);
    if (first > 0x7f || (first >= u'a' && first <= u'z') || (first >= u'A' && first <= u'Z')) return true;
    return isOneBlock(tree, u"x\n" + restOfLine(tree, textOffset), Ondo::ONDO_PARAGRAPH_NODE);
}

bool mayBeItem(char16_t first) {
    return std::u16string_view(u"*-+0123456789").find(first) != std::u16string_view::npos;
}

bool mayBeFence(char16_t first) {
    return std::u16string_view(u"`~$").find(first) != std::u16string_view::npos;
}

bool staysBlock(const Ondo::Tree& tree, const Node::Iterator& block) {
    std::u16string text;
    const std::int64_t end = block.end();
    for (Node::Iterator line = block; line.node && line.offset < end; toNextLine(line)) {
        const LinePrefix prefix(tree, line);
        text += restOfLine(tree, prefix.textOffset()) + u'\n';
    }
    return isOneBlock(tree, text, block->type);
}

bool holdsFenceLikeLines(std::u16string_view block) {
    int count = 0;
    for (auto at = block.find(u'\n'); at != std::u16string_view::npos; at = block.find(u'\n', at)) {
        at = std::min(block.find_first_not_of(u" \t>\n\r", at), block.size());
        for (const std::u16string_view fence : {u"```", u"~~~", u"$$"})
            count += block.substr(at, fence.size()) == fence ? 1 : 0;
    }
    return count > 1;
}

bool holdsUnderline(std::u16string_view text) {
    for (auto at = text.find_first_of(u"\n\r"); at < text.size(); at = text.find_first_of(u"\n\r", at)) {
        at = text.find_first_not_of(u" \t>\n\r", at);
        if (at >= text.size()) return false;
        if (text[at] != u'=' && text[at] != u'-') continue;
        at = text.find_first_not_of(text[at], at);
        at = text.find_first_not_of(u" \t", at);
        if (at >= text.size() || text[at] == u'\n' || text[at] == u'\r') return true;
    }
    return false;
}

} // namespace CVN::Operation
