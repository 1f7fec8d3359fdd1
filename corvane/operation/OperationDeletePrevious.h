#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// The backspace key, where structure stands before the caret: a marker goes whole, indentation goes with
/// what made it, the rows of a table stay apart, and the last pipe takes the table along.
///
/// Answers one result with a caret, which for indentation can be the outdenting of the line, of several. An
/// empty list for a range that is not empty, and wherever the key simply deletes a character.
class CORVANE_EXPORT DeletePrevious : public Operation {
public:
    explicit DeletePrevious(IndentStyle style) : style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    using Answer = std::vector<Result>;
    /// The node ends at the caret.
    using Handler = Answer (DeletePrevious::*)(const Ondo::Tree& tree, const Ondo::Node::Iterator& at) const;
    static Handler handlerFor(std::uint16_t type);

    Answer deleteLineEnding(const Ondo::Tree& tree, const Ondo::Node::Iterator& lineEnding) const;
    Answer deleteHeadingMarker(const Ondo::Tree& tree, const Ondo::Node::Iterator& marker) const;
    Answer deleteQuoteMarker(const Ondo::Tree& tree, const Ondo::Node::Iterator& marker) const;
    Answer deleteItemMarker(const Ondo::Tree& tree, const Ondo::Node::Iterator& marker) const;
    Answer deleteTable(const Ondo::Tree& tree, const Ondo::Node::Iterator& pipe) const;
    Answer deleteNode(const Ondo::Tree& tree, const Ondo::Node::Iterator& at) const;
    Answer deleteSpace(const Ondo::Tree& tree, const Ondo::Node::Iterator& space) const;

    IndentStyle style_;
};

} // namespace CVN::Operation
