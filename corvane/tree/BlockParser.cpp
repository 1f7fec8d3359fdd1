#include "corvane/tree/BlockParser.h"

#include <utility>

#include "corvane/scan/Assert.h"

namespace Ondo {

BlockParser::BlockParser(std::u16string_view text_, Lines& lines_, const BlockRuleMap& blockRules,
                         const InlineRuleMap& inlineRules, const InlineRuleMap& attributeRules,
                         bool isDocumentHead)
    : ParserBase(text_, lines_), blockRules_(blockRules), isDocumentHead_(isDocumentHead),
      inlineParser_(text_, lines_, inlineRules, attributeRules) {
    const bool endsInEmptyEntry = lines[lines.size() - 1].isEmptyEntry();
    root_ = std::make_unique<DocumentNode>(0, static_cast<std::int64_t>(text.size()),
                                           lines.size() - (endsInEmptyEntry ? 1 : 0));
}

std::unique_ptr<Node> BlockParser::parseDocument() {
    parseBlock(0, lines.size() - 1, root_.get());
    return std::move(root_);
}

void BlockParser::noteLookBehindEnd() {
    static_cast<DocumentNode*>(root_.get())->looksBehindEnd = true;
}

std::int64_t BlockParser::parseBlock(std::int64_t first, std::int64_t last, Node* parent,
                                     Container* container) {
    frames_.push_back({parent, container, first});
    std::int64_t line = first;
    while (line <= last && hasLine(line) && !lines[line].isEmptyEntry() && !lines[line].lazy)
        line += parseLine(line, last, parent);
    frames_.pop_back();
    return line - first;
}

bool BlockParser::hasLine(std::size_t depth, std::int64_t line) {
    std::size_t lacking = depth;
    while (lacking > 0 && frames_[lacking - 1].container && frames_[lacking - 1].preparedLine < line)
        --lacking;
    for (; lacking < depth; ++lacking) {
        while (frames_[lacking].preparedLine < line) {
            const bool isEnded = frames_[lacking].isEnded ||
                                 !frames_[lacking].container->takeLine(frames_[lacking].preparedLine + 1);
            frames_[lacking].isEnded = isEnded;
            if (isEnded) return false;
            ++frames_[lacking].preparedLine;
        }
    }
    return true;
}

std::size_t BlockParser::depthOf(const Node* parent) const {
    std::size_t depth = frames_.size();
    while (depth > 0 && frames_[depth - 1].parent != parent)
        --depth;
    return depth;
}

std::int64_t BlockParser::parseLine(std::int64_t line, std::int64_t last, Node* parent) {
    const auto at = static_cast<std::size_t>(lines[line].contentStart);
    const char16_t opening = at < text.size() ? text[at] : u'\0';
    std::int64_t linesParsed = 0;
    for (const auto& rule : blockRules_.getBlockRules(opening)) {
        linesParsed = rule->match(*this, line, last, parent, BlockRule::ParseAction::Parse);
        if (linesParsed != 0) break;
    }
    CORVANE_ASSERT(linesParsed != 0, "BlockParser");
    return linesParsed;
}

Node* BlockParser::lastBlock(const Node* parent) const {
    const std::size_t depth = depthOf(parent);
    return depth > 0 ? frames_[depth - 1].lastBlock : nullptr;
}

void BlockParser::openBlock(Node* node) {
    frames_.back().lastBlock = node;
}

std::unique_ptr<Node> BlockParser::takeLastBlock(const Node* parent) {
    CORVANE_ASSERT(lastBlock(parent), "BlockParser");
    return std::exchange(frames_.back().lastBlock, nullptr)->unlinkSubtree();
}

Node* BlockParser::mergeNode(Node* parent, std::unique_ptr<Node> node) {
    Node* const merged = ParserBase::mergeNode(parent, std::move(node), parent->lastChild);
    if (frames_.back().parent == parent) frames_.back().lastBlock = merged;
    return merged;
}

void BlockParser::takePrefix(std::int64_t line, NodeType type, std::int64_t end, Node* maker) {
    Lines::Line& l = lines[line];
    pieces_.push_back({type, l.leading, l.contentStart, end, maker, l.prefix});
    l.prefix = static_cast<std::int64_t>(pieces_.size()) - 1;
    l.setLeading(end, text);
}

void BlockParser::linkPrefix(Node* node, std::int64_t line, std::int64_t end) {
    outward_.clear();
    for (std::int64_t at = lines[line].prefix; at >= 0; at = pieces_[static_cast<std::size_t>(at)].outer)
        outward_.push_back(at);
    for (auto at = outward_.rbegin(); at != outward_.rend(); ++at) {
        const PrefixPiece& piece = pieces_[static_cast<std::size_t>(*at)];
        linkSpace(node, piece.start, piece.markerStart, line);
        linkMarker(node, piece.type, piece.markerStart, piece.end, line, piece.maker);
    }
    linkSpace(node, lines[line].leading, end, line);
}

void BlockParser::linkSpacing(Node* node, std::int64_t from, std::int64_t fromLine, std::int64_t to,
                              std::int64_t toLine) {
    if (fromLine == toLine) {
        linkSpace(node, from, to, fromLine);
        return;
    }
    linkSpace(node, from, lines[fromLine].contentEnd, fromLine);
    linkCrossedLines(node, fromLine, toLine);
}

void BlockParser::linkCrossedLines(Node* node, std::int64_t first, std::int64_t last) {
    for (std::int64_t line = first; line < last; ++line) {
        linkSpace(node, lines[line].contentEnd, lines[line].end, line);
        linkLineEnding(node, lines[line].end, lines[line].next, line);
        linkPrefix(node, line + 1);
    }
}

} // namespace Ondo
