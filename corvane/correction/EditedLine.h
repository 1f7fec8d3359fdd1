#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/operation/OperationResult.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

/// What the corrections of typing share: the edit, the line in which it begins, and answers that keep it.

namespace CVN::Correction {

/// An edit that is about to be made: the text doesn't hold it yet. Views, good for one call.
struct PendingEdit {
    const Ondo::Tree& tree;
    std::int64_t offset;
    std::int64_t length;
    std::u16string_view replacement;
    std::int64_t selectionOffset; ///< proposed for behind the edit
    std::int64_t selectionLength;

    std::int64_t end() const { return offset + length; }
    bool isInsertion() const { return length == 0 && !replacement.empty(); }
    std::int64_t growth() const { return static_cast<std::int64_t>(replacement.size()) - length; }
};

/// A change that goes along with an edit, in the text before it.
struct Change {
    std::int64_t offset;
    std::int64_t length;
    std::u16string text;
};

/// The edit as it stands, between a change behind it and one before it. The selection keeps its place.
std::vector<Operation::Result> keepingEdit(const PendingEdit& edit, const std::optional<Change>& behind,
                                           const std::optional<Change>& before);

/// The edit with another text, which is the old one with so many units more before and behind it. The
/// selection keeps to the old one.
PendingEdit padded(const PendingEdit& edit, std::u16string_view text, std::int64_t before,
                   std::int64_t behind);

/// Whether text in such a block may begin a fence; null stands for a line that belongs to none.
bool canBecomeFence(const Ondo::Node* block);

/// Whether the edit deletes a line ending and nothing else. The commands of the delete keys know best how to
/// join two lines: what goes along is the prefix of the second one.
bool isDeletionOfLineEnding(const PendingEdit& edit);

/// The line in which an edit begins: what its containers write, and its content.
///
/// A content is given without trailing blanks, and of an overlong line only the first thousands of units.
class EditedLine {
public:
    explicit EditedLine(const PendingEdit& edit);

    std::int64_t start() const { return start_; }
    /// Behind the markers of quotes and items and all blanks, as far as they stand before the edit.
    std::int64_t contentStart() const { return contentStart_; }
    /// The block whose line it is; null on an empty line at the end of the text, unless an open block goes on
    /// there.
    Ondo::Node* block() const { return block_; }

    /// The block behind which a fence on this line would stand: the same one, or, where the line carries on a
    /// paragraph from outside of its container ("> a" and then "b"), the one around it with a block below.
    Ondo::Node* blockBeforeFence() const;

    /// The leaf behind the markers of quotes and items and all blanks.
    Ondo::Node::Iterator contentLeaf() const;

    /// Where the line ending behind the edit stands, or the end of the text.
    std::int64_t endBehindEdit() const;

    std::u16string contentBefore() const;
    /// With the edit made. It ends where the line ends then.
    std::u16string contentBehind() const;

    /// The same without blanks in front; empty where those move it too far to the right for a fence.
    std::u16string fenceBehind() const;

    /// Whether the content, behind further blanks, stands far enough to the left for a fence.
    bool isFenceIndentation(std::u16string_view blanks = {}) const;

    /// Whether the edit takes and leaves no line break, so that the lines stay what they are.
    bool isInsideLine() const;

    /// The removal of all from the end of the line to the closing fence of its block; nothing unless the two
    /// have only blank lines between them.
    std::optional<Change> removalOfClosingFence() const;

    /// What a further line of the same block begins with: quote markers and blanks as they stand, and blanks
    /// in the place of an item's marker. With the style Tabs the latter are tabs, as many as the item takes.
    std::u16string furtherPrefix(Operation::IndentStyle style) const;

private:
    bool isLazy() const;
    std::int64_t contentColumn() const;
    std::int64_t quoteColumn() const;
    std::int64_t itemColumn() const;

    const PendingEdit& edit_;
    std::int64_t start_ = 0;
    std::int64_t contentStart_ = 0;
    Ondo::Node* block_ = nullptr;
};

} // namespace CVN::Correction
