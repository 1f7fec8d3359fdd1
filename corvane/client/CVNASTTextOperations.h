#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/client/CVNRange.h"
#include "corvane/client/CVNTextOperation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {
class Operation;
struct Result;
} // namespace CVN::Operation

namespace CVN::Correction {
class Correction;
}

/// What an editor does to the text of a CVNAST: commands, corrections of edits, and snippets of Markdown.
///
/// Commands and corrections change nothing. They answer with the replacements that carry them out and the
/// selection to show then, or with an empty list when they have no opinion: then the editor does what it
/// would do to plain text. Ranges lie in the text: nothing checks that.
class CORVANE_EXPORT CVNASTTextOperations {
public:
    using Results = std::vector<CVNASTOperationResult>;

    // Commands. A style is a number that CVNTextOperation tells; both indent with spaces.

    Results indent(CVNRange range, CVNRange selectionRange) const;
    Results outdent(CVNRange range, CVNRange selectionRange) const;
    Results toggleInlineStyle(CVNRange range, CVNRange selectionRange, std::int64_t style) const;
    Results toggleBlockStyle(CVNRange range, CVNRange selectionRange, std::int64_t style) const;
    Results insertNewlineInRange(CVNRange range, CVNRange selectionRange) const;
    Results normalizeIndentationInRange(CVNRange range, CVNRange selectionRange) const;
    Results deletePrevious(CVNRange range, CVNRange selectionRange) const;
    Results deleteNext(CVNRange range, CVNRange selectionRange) const;
    Results toggleTask(CVNRange range, CVNRange selectionRange, std::int64_t style) const;
    Results normalizeCalloutInRange(CVNRange range, CVNRange selectionRange) const;
    Results renumberOrderedListInRange(CVNRange range, CVNRange selectionRange) const;
    Results removeStrayMetaCommentInRange(CVNRange range, CVNRange selectionRange) const;
    Results addTagToTop(std::u16string_view tag, CVNRange selectionRange) const;
    Results addTagToBottom(std::u16string_view tag, CVNRange selectionRange) const;
    Results removeTag(std::u16string_view tag, CVNRange selectionRange) const;
    Results renameTag(std::u16string_view tag, std::u16string_view to, CVNRange selectionRange) const;
    Results escapeTag(std::u16string_view tag, CVNRange selectionRange) const;
    Results appendText(std::u16string_view text, CVNRange selectionRange) const;
    Results appendTextExact(std::u16string_view text, CVNRange selectionRange) const;
    Results prependText(std::u16string_view text, CVNRange selectionRange) const;
    Results updateWikiLinks(std::u16string_view target, std::u16string_view to, bool skipInTitle,
                            CVNRange selectionRange) const;
    Results updateLinksURL(std::u16string_view url, std::u16string_view to, CVNRange selectionRange) const;
    Results removeLinkWithURL(std::u16string_view url, CVNRange selectionRange) const;
    Results insertThematicBreak(CVNRange range, CVNRange selectionRange) const;
    Results insertTable(CVNRange range, CVNRange selectionRange) const;
    Results toggleFoldInRange(CVNRange range, CVNRange selectionRange) const;
    Results foldAllHeadingSelectionRange(CVNRange selectionRange) const;
    Results unfoldAllHeadingSelectionRange(CVNRange selectionRange) const;
    Results unfoldAtRangeEdges(CVNRange range, CVNRange selectionRange) const;
    Results escapePipesInRange(CVNRange range, CVNRange selectionRange) const;
    Results insertFootnoteWithDefinitionText(std::u16string_view definitionText, CVNRange range,
                                             CVNRange selectionRange) const;
    Results insertFootnoteDefinitionWithText(std::u16string_view definitionText, CVNRange range,
                                             CVNRange selectionRange) const;
    Results renameUnusedFootnoteDefinitionsIn(CVNRange range, CVNRange selectionRange) const;
    Results renumberFootnotesIn(CVNRange range, CVNRange selectionRange) const;
    Results reorderFootnoteDefinitionsIn(CVNRange range, CVNRange selectionRange) const;
    Results moveLinesUpIn(CVNRange range, CVNRange selectionRange) const;
    Results moveLinesDownIn(CVNRange range, CVNRange selectionRange) const;
    Results selectAllTextIn(CVNRange range, CVNRange selectionRange) const;

    // Corrections, asked before the edit of `range` is made. The selection is that proposed for behind it.

    Results fencedCodeCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                   CVNRange selectionRange) const;
    Results listItemSpaceCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                      CVNRange selectionRange) const;
    Results calloutCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                CVNRange selectionRange) const;
    Results mathBlockCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                  CVNRange selectionRange) const;
    Results tableSpaceCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                   CVNRange selectionRange) const;
    Results pasteCorrectionIn(CVNRange range, std::u16string_view replacementString,
                              CVNRange selectionRange) const;
    Results selectionCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                  CVNRange selectionRange) const;
    Results invalidCharacterCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                         CVNRange selectionRange) const;
    Results deleteWhitespaceCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                         CVNRange selectionRange) const;

    // Objects that the host makes

    Results resultForTextOperation(const CVN::Operation::Operation& operation, CVNRange range,
                                   CVNRange selectionRange) const;
    Results resultForTextCorrection(const CVN::Correction::Correction& correction, CVNRange range,
                                    std::u16string_view replacementString, CVNRange selectionRange) const;
    static Results toCVNASTOperationResultArray(std::vector<CVN::Operation::Result> results);
    /// Makes the replacements of a list and answers with the range to restyle; {CVNNotFound, 0} for an empty
    /// list. The editor takes the selection from the last one. Asserts that each range lies in the text that
    /// it addresses.
    CVNRange applyTextOperationResults(const Results& results);

    // Snippets. See CVN::StringBuilder and CVN::FilenameMatch.

    static std::u16string percentEscapedURL(std::u16string_view url);
    static std::u16string percentDecodedURL(std::u16string_view url);
    static std::u16string safeLabelString(std::u16string_view label);
    static std::u16string markdownImageWithLabel(std::u16string_view label, std::u16string_view url,
                                                 std::u16string_view title);
    static std::u16string markdownFileWithLabel(std::u16string_view label, std::u16string_view url,
                                                bool preview);
    /// `preview` asks for a preview of what the link leads to.
    static std::u16string markdownLinkWithLabel(std::u16string_view label, std::u16string_view url,
                                                std::u16string_view title, bool preview);
    static std::u16string footnoteReferenceWithLabel(std::u16string_view label);
    static std::u16string referenceDefinitionWithLabel(std::u16string_view label, std::u16string_view text);
    static std::u16string codeBlockWithString(std::u16string_view code);
    static std::u16string tableStringWithRows(std::int64_t rows, std::int64_t columns);
    /// A task item, without a line ending.
    static std::u16string taskWithText(std::u16string_view text, bool completed);
    /// As FilenameMatch::filenameVariants(), in the same order.
    static std::vector<std::u16string> filenameVariantsForURL(std::u16string_view url);

protected:
    CVNASTTextOperations() = default;

private:
    Results run(CVNTextOperation::Number number, CVNRange range, CVNRange selectionRange,
                const CVNTextArguments& arguments = {}) const;
    Results run(CVNTextCorrection::Number number, CVNRange range, std::u16string_view replacementString,
                CVNRange selectionRange) const;
};
