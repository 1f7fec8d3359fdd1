#include "corvane/tree/Common.h"

#include <utility>

#include "corvane/scan/Assert.h"
#include "corvane/scan/Util.h"

namespace Ondo {

LabeledNode::LabeledNode(NodeType type_, std::int64_t offset, std::int64_t end, std::int64_t line,
                         std::int64_t lineCount_, Node* maker_, std::u16string label_)
    : Node(type_, offset, end, line, lineCount_, maker_), label(std::move(label_)) {}

std::u16string LabeledNode::normalizeLabel(std::u16string_view label) {
    return Util::downcaseUnicode(Util::mergeTrimUnicodeWhitespace(label));
}

} // namespace Ondo

namespace Ondo::Inline {

namespace {

std::u16string_view slice(std::u16string_view markdown, std::int64_t offset, std::int64_t length) {
    return markdown.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
}

std::u16string_view parsedText(const Node& node, std::u16string_view markdown) {
    return slice(markdown, node.offsetWhenParsed, node.charCount);
}

} // namespace

void MarkerNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

AttributeNode::AttributeNode(NodeType type_, std::int64_t offset, std::int64_t end, std::int64_t line,
                             std::int64_t lineCount_, Node* maker_)
    : Node(type_, offset, end, line, lineCount_, maker_) {
    CORVANE_ASSERT(maker, "Common");
}

void AttributeNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

void TextNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    Util::addHtmlEscaped(slice(markdown, offset, charCount), out);
}

void TextNode::appendValue(std::u16string& out, std::u16string_view markdown) const {
    out += parsedText(*this, markdown);
}

void SpaceNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

void SpaceNode::appendValue(std::u16string& out, std::u16string_view markdown) const {
    if (nextSibling && nextSibling->type == ONDO_LINE_ENDING_NODE) out += parsedText(*this, markdown);
}

void LineEndingNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    if (previousSibling && nextSibling) out += u'\n';
}

void LineEndingNode::appendValue(std::u16string& out, std::u16string_view markdown) const {
    out += parsedText(*this, markdown);
}

} // namespace Ondo::Inline
