#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// The return key inside structure: it continues a list item or quote with the prefix of the next line, ends
/// an empty one, pushes a heading down and passes over folded content. An empty answer leaves the editor to
/// insert a plain line feed.
///
/// As a secondary row it answers the line break for another line of the same item or quote instead, without a
/// new marker.
class CORVANE_EXPORT InsertNewline : public Operation {
public:
    InsertNewline(InsertNewlineListItemOption option, IndentStyle style) : option_(option), style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// One result that puts a line feed and the prefix of a further line in the place of the range. The
    /// prefix is empty outside items and quotes, and for an offset where a line starts.
    std::vector<Result> newSecondaryRow(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                        std::int64_t selectionOffset, std::int64_t selectionLength) const;

private:
    struct Place;

    std::vector<Result> inContainer(Place& at) const;
    std::vector<Result> emptyLine(const Place& at) const;
    std::u16string endOfContainer(const Place& at, std::u16string_view line) const;
    std::u16string prefixOfFrame(const Place& at, const Ondo::Node::Iterator& frame) const;
    std::u16string secondaryPrefix(const Ondo::Tree& tree, std::int64_t offset) const;
    static bool isOnUnmarkedBlankLine(const Place& at);
    static bool isAtStartOfSecondaryLineOfListItem(const Place& at);
    static bool leavesQuote(const Place& at, const Ondo::Node::Iterator& frame);

    InsertNewlineListItemOption option_;
    IndentStyle style_;
};

} // namespace CVN::Operation
