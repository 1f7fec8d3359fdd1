#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"
#include "corvane/tree/Tree.h"

namespace Ondo::Test {

/// A text with a selection. It is drawn with marks that the dialect does not use: `‸` is a caret, `⟦…⟧` a
/// selection.
struct Drawn {
    std::u16string text;
    Range selection;

    /// Stops the process for a drawing without a caret or selection, or with more than one.
    explicit Drawn(std::u16string_view drawing);
    Drawn(std::u16string text_, Range selection_) : text(std::move(text_)), selection(selection_) {}
    std::u16string drawing() const;
};

/// A text behind results, each applied to what the ones before it left, and the selection of the last one.
/// Stops the process when a range or the selection does not lie in its text.
Drawn applied(Drawn note, const std::vector<CVN::Operation::Result>& results);

/// What a command makes of a drawn note, whose caret or selection is its range as well; empty when the
/// command has no opinion. Stops the process when the command changes the tree.
std::u16string afterOperation(const CVN::Operation::Operation& operation, std::u16string_view drawing,
                              RuleConfig::RuleSet rules = RuleConfig::Extended);

/// What a correction makes of an edit that replaces the caret or selection of a drawn note; empty when it has
/// no opinion. The selection proposed is a caret behind the new text. Stops the process when the results do
/// not come from the end of the text to its start.
std::u16string afterCorrection(const CVN::Correction::Correction& correction, std::u16string_view drawing,
                               std::u16string_view replacement,
                               RuleConfig::RuleSet rules = RuleConfig::Extended);

/// A row of a table of commands.
struct CommandCase {
    std::u16string_view before;
    std::u16string_view after; ///< empty for no opinion
};

/// Checks each row, and shows drawings of those that fail.
void expectEach(const CVN::Operation::Operation& operation, const std::vector<CommandCase>& cases,
                RuleConfig::RuleSet rules = RuleConfig::Extended);

} // namespace Ondo::Test
