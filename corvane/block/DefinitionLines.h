#pragma once

#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

/// The lines that a definition may take in: the container has them, they carry its marker, and no rule that
/// ends a definition takes them. So what a definition is hangs on no text behind the next block.
class DefinitionLines : public LineSource {
public:
    DefinitionLines(BlockParser& parser, BlockRule& rule, std::int64_t lastLine, Node* parent)
        : parser_(parser), rule_(rule), lastLine_(lastLine), parent_(parent) {}

    bool hasLine(std::int64_t line) override {
        const bool isEnd = parser_.lines[line].isEmptyEntry();
        if (isEnd) parser_.noteLookBehindEnd();
        return !isEnd && parser_.hasLine(line) && !parser_.lines[line].lazy &&
               !rule_.hasMatchingTerminatingRule(parser_, line, lastLine_, parent_);
    }

private:
    BlockParser& parser_;
    BlockRule& rule_;
    std::int64_t lastLine_;
    Node* parent_;
};

} // namespace Ondo::Block
