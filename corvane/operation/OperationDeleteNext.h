#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// The forward delete key, where structure stands behind the caret: a heading drops by a level, the marker of
/// an item or quote goes whole, a table goes as one, and a line that comes up leaves its prefix behind.
///
/// Answers one result with a caret, which for indentation is the outdenting of the line and can be several.
/// An empty list for a range that is not empty, and wherever the key simply deletes a character.
class CORVANE_EXPORT DeleteNext : public Operation {
public:
    explicit DeleteNext(IndentStyle style) : style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    using Answer = std::vector<Result>;
    /// The node starts at the caret.
    using Handler = Answer (DeleteNext::*)(const Ondo::Tree& tree, const Ondo::Node::Iterator& at) const;
    static Handler handlerFor(std::uint16_t type);

    Answer deleteIndentation(const Ondo::Tree& tree, const Ondo::Node::Iterator& space) const;
    Answer deleteLineEnding(const Ondo::Tree& tree, const Ondo::Node::Iterator& lineEnding) const;
    Answer lowerHeading(const Ondo::Tree& tree, const Ondo::Node::Iterator& marker) const;
    Answer deleteTable(const Ondo::Tree& tree, const Ondo::Node::Iterator& pipe) const;
    Answer deleteNode(const Ondo::Tree& tree, const Ondo::Node::Iterator& at) const;

    IndentStyle style_;
};

} // namespace CVN::Operation
