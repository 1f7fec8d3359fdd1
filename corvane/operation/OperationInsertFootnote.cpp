#include "corvane/operation/OperationInsertFootnote.h"

#include <optional>
#include <string>

#include "corvane/operation/FootnoteLabels.h"
#include "corvane/operation/FootnotePlace.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/OperationInsertFootnoteDefinition.h"

namespace CVN::Operation {

namespace {

constexpr std::u16string_view placeholder = u"[^0123456789]";

bool endsInLineEnding(const Ondo::Tree& tree) {
    return isLineEnding(leafAt(tree, tree.length()).node);
}

} // namespace

std::vector<Result> InsertFootnote::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                        std::int64_t, std::int64_t) const {
    if (!footnotesOf(tree)) return {};
    const std::optional<std::int64_t> place = footnotePlace(tree, offset + length, placeholder);
    if (!place) return {};
    std::vector<Result> results =
        InsertFootnoteDefinition::insertDefinition(tree, *place, placeholder, definitionText_);
    if (results.size() != 1) return results;
    std::u16string reference(placeholder);
    if (*place == tree.length() && endsInLineEnding(tree)) reference += u'\n';
    Result::addToList(results, *place, 0, reference, results.front().selectionOffset,
                      results.front().selectionLength);
    return results;
}

} // namespace CVN::Operation
