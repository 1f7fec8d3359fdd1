#include "corvane/client/CVNASTTextOperations.h"

#include <cstddef>
#include <utility>

#include "corvane/client/CVNAST.h"
#include "corvane/client/FilenameMatch.h"
#include "corvane/client/OndoString.h"
#include "corvane/client/StringBuilder.h"
#include "corvane/correction/Correction.h"
#include "corvane/operation/Operation.h"

using CVN::FilenameMatch;
using CVN::StringBuilder;

using Results = CVNASTTextOperations::Results;
using Operations = CVNTextOperation::Number;
using Corrections = CVNTextCorrection::Number;

namespace {

CVNTextArgument textArgument(std::u16string_view text) {
    return {0, text};
}

} // namespace

Results CVNASTTextOperations::indent(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::indent, range, selectionRange);
}

Results CVNASTTextOperations::outdent(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::outdent, range, selectionRange);
}

Results CVNASTTextOperations::toggleInlineStyle(CVNRange range, CVNRange selectionRange,
                                                std::int64_t style) const {
    return run(Operations::toggleInlineStyle, range, selectionRange, {CVNTextArgument{style, {}}});
}

Results CVNASTTextOperations::toggleBlockStyle(CVNRange range, CVNRange selectionRange,
                                               std::int64_t style) const {
    return run(Operations::toggleBlockStyle, range, selectionRange, {CVNTextArgument{style, {}}});
}

Results CVNASTTextOperations::insertNewlineInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::insertNewlineInRange, range, selectionRange);
}

Results CVNASTTextOperations::normalizeIndentationInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::normalizeIndentationInRange, range, selectionRange);
}

Results CVNASTTextOperations::deletePrevious(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::deletePrevious, range, selectionRange);
}

Results CVNASTTextOperations::deleteNext(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::deleteNext, range, selectionRange);
}

Results CVNASTTextOperations::toggleTask(CVNRange range, CVNRange selectionRange, std::int64_t style) const {
    return run(Operations::toggleTask, range, selectionRange, {CVNTextArgument{style, {}}});
}

Results CVNASTTextOperations::normalizeCalloutInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::normalizeCalloutInRange, range, selectionRange);
}

Results CVNASTTextOperations::renumberOrderedListInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::renumberOrderedListInRange, range, selectionRange);
}

Results CVNASTTextOperations::removeStrayMetaCommentInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::removeStrayMetaCommentInRange, range, selectionRange);
}

Results CVNASTTextOperations::addTagToTop(std::u16string_view tag, CVNRange selectionRange) const {
    return run(Operations::addTagToTop, {}, selectionRange, {textArgument(tag)});
}

Results CVNASTTextOperations::addTagToBottom(std::u16string_view tag, CVNRange selectionRange) const {
    return run(Operations::addTagToBottom, {}, selectionRange, {textArgument(tag)});
}

Results CVNASTTextOperations::removeTag(std::u16string_view tag, CVNRange selectionRange) const {
    return run(Operations::removeTag, {}, selectionRange, {textArgument(tag)});
}

Results CVNASTTextOperations::renameTag(std::u16string_view tag, std::u16string_view to,
                                        CVNRange selectionRange) const {
    return run(Operations::renameTag, {}, selectionRange, {textArgument(tag), textArgument(to)});
}

Results CVNASTTextOperations::escapeTag(std::u16string_view tag, CVNRange selectionRange) const {
    return run(Operations::escapeTag, {}, selectionRange, {textArgument(tag)});
}

Results CVNASTTextOperations::appendText(std::u16string_view text, CVNRange selectionRange) const {
    return run(Operations::appendText, {}, selectionRange, {textArgument(text)});
}

Results CVNASTTextOperations::appendTextExact(std::u16string_view text, CVNRange selectionRange) const {
    return run(Operations::appendTextExact, {}, selectionRange, {textArgument(text)});
}

Results CVNASTTextOperations::prependText(std::u16string_view text, CVNRange selectionRange) const {
    return run(Operations::prependText, {}, selectionRange, {textArgument(text)});
}

Results CVNASTTextOperations::updateWikiLinks(std::u16string_view target, std::u16string_view to,
                                              bool skipInTitle, CVNRange selectionRange) const {
    return run(Operations::updateWikiLinks, {}, selectionRange,
               {textArgument(target), textArgument(to), CVNTextArgument{skipInTitle, {}}});
}

Results CVNASTTextOperations::updateLinksURL(std::u16string_view url, std::u16string_view to,
                                             CVNRange selectionRange) const {
    return run(Operations::updateLinksURL, {}, selectionRange, {textArgument(url), textArgument(to)});
}

Results CVNASTTextOperations::removeLinkWithURL(std::u16string_view url, CVNRange selectionRange) const {
    return run(Operations::removeLinkWithURL, {}, selectionRange, {textArgument(url)});
}

Results CVNASTTextOperations::insertThematicBreak(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::insertThematicBreak, range, selectionRange);
}

Results CVNASTTextOperations::insertTable(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::insertTable, range, selectionRange);
}

Results CVNASTTextOperations::toggleFoldInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::toggleFoldInRange, range, selectionRange);
}

Results CVNASTTextOperations::foldAllHeadingSelectionRange(CVNRange selectionRange) const {
    return run(Operations::foldAllHeadingSelectionRange, {}, selectionRange);
}

Results CVNASTTextOperations::unfoldAllHeadingSelectionRange(CVNRange selectionRange) const {
    return run(Operations::unfoldAllHeadingSelectionRange, {}, selectionRange);
}

Results CVNASTTextOperations::unfoldAtRangeEdges(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::unfoldAtRangeEdges, range, selectionRange);
}

Results CVNASTTextOperations::escapePipesInRange(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::escapePipesInRange, range, selectionRange);
}

Results CVNASTTextOperations::insertFootnoteWithDefinitionText(std::u16string_view definitionText,
                                                               CVNRange range,
                                                               CVNRange selectionRange) const {
    return run(Operations::insertFootnoteWithDefinitionText, range, selectionRange,
               {textArgument(definitionText)});
}

Results CVNASTTextOperations::insertFootnoteDefinitionWithText(std::u16string_view definitionText,
                                                               CVNRange range,
                                                               CVNRange selectionRange) const {
    return run(Operations::insertFootnoteDefinitionWithText, range, selectionRange,
               {textArgument(definitionText)});
}

Results CVNASTTextOperations::renameUnusedFootnoteDefinitionsIn(CVNRange range,
                                                                CVNRange selectionRange) const {
    return run(Operations::renameUnusedFootnoteDefinitionsIn, range, selectionRange);
}

Results CVNASTTextOperations::renumberFootnotesIn(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::renumberFootnotesIn, range, selectionRange);
}

Results CVNASTTextOperations::reorderFootnoteDefinitionsIn(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::reorderFootnoteDefinitionsIn, range, selectionRange);
}

Results CVNASTTextOperations::moveLinesUpIn(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::moveLinesUpIn, range, selectionRange);
}

Results CVNASTTextOperations::moveLinesDownIn(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::moveLinesDownIn, range, selectionRange);
}

Results CVNASTTextOperations::selectAllTextIn(CVNRange range, CVNRange selectionRange) const {
    return run(Operations::selectAllTextIn, range, selectionRange);
}

Results CVNASTTextOperations::fencedCodeCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                     CVNRange selectionRange) const {
    return run(Corrections::fencedCodeCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::listItemSpaceCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                        CVNRange selectionRange) const {
    return run(Corrections::listItemSpaceCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::calloutCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                  CVNRange selectionRange) const {
    return run(Corrections::calloutCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::mathBlockCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                    CVNRange selectionRange) const {
    return run(Corrections::mathBlockCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::tableSpaceCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                     CVNRange selectionRange) const {
    return run(Corrections::tableSpaceCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::pasteCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                CVNRange selectionRange) const {
    return run(Corrections::pasteCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::selectionCorrectionIn(CVNRange range, std::u16string_view replacementString,
                                                    CVNRange selectionRange) const {
    return run(Corrections::selectionCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::invalidCharacterCorrectionIn(CVNRange range,
                                                           std::u16string_view replacementString,
                                                           CVNRange selectionRange) const {
    return run(Corrections::invalidCharacterCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::deleteWhitespaceCorrectionIn(CVNRange range,
                                                           std::u16string_view replacementString,
                                                           CVNRange selectionRange) const {
    return run(Corrections::deleteWhitespaceCorrectionIn, range, replacementString, selectionRange);
}

Results CVNASTTextOperations::resultForTextOperation(const CVN::Operation::Operation& operation,
                                                     CVNRange range, CVNRange selectionRange) const {
    const Ondo::Tree& tree = *static_cast<const CVNAST&>(*this).ast;
    return toCVNASTOperationResultArray(
        operation.run(tree, range.location, range.length, selectionRange.location, selectionRange.length));
}

Results CVNASTTextOperations::resultForTextCorrection(const CVN::Correction::Correction& correction,
                                                      CVNRange range, std::u16string_view replacementString,
                                                      CVNRange selectionRange) const {
    const Ondo::Tree& tree = *static_cast<const CVNAST&>(*this).ast;
    return toCVNASTOperationResultArray(correction.run(tree, range.location, range.length,
                                                       ondoString(replacementString), selectionRange.location,
                                                       selectionRange.length));
}

Results CVNASTTextOperations::toCVNASTOperationResultArray(std::vector<CVN::Operation::Result> results) {
    Results array;
    array.reserve(results.size());
    for (CVN::Operation::Result& result : results)
        array.push_back({{result.replaceOffset, result.replaceLength},
                         stringWithOndoString(std::move(result.replacementString)),
                         {result.selectionOffset, result.selectionLength}});
    return array;
}

CVNRange CVNASTTextOperations::applyTextOperationResults(const Results& results) {
    CVNAST& note = static_cast<CVNAST&>(*this);
    for (const CVNASTOperationResult& result : results)
        note.batchReplaceRange(result.replacementRange, result.replacementString);
    return results.empty() ? CVNRange::notFound() : note.batchReplaceCommit();
}

Results CVNASTTextOperations::run(CVNTextOperation::Number number, CVNRange range, CVNRange selectionRange,
                                  const CVNTextArguments& arguments) const {
    const auto& row = CVNTextOperation::all()[static_cast<std::size_t>(number)];
    return row.run(static_cast<const CVNAST&>(*this), range, selectionRange, arguments);
}

Results CVNASTTextOperations::run(CVNTextCorrection::Number number, CVNRange range,
                                  std::u16string_view replacementString, CVNRange selectionRange) const {
    const auto& row = CVNTextCorrection::all()[static_cast<std::size_t>(number)];
    return row.run(static_cast<const CVNAST&>(*this), range, replacementString, selectionRange);
}

std::u16string CVNASTTextOperations::percentEscapedURL(std::u16string_view url) {
    return StringBuilder::safeURLString(url);
}

std::u16string CVNASTTextOperations::percentDecodedURL(std::u16string_view url) {
    return FilenameMatch::percentDecode(url);
}

std::u16string CVNASTTextOperations::safeLabelString(std::u16string_view label) {
    return StringBuilder::safeLabelString(label);
}

std::u16string CVNASTTextOperations::markdownImageWithLabel(std::u16string_view label,
                                                            std::u16string_view url,
                                                            std::u16string_view title) {
    return StringBuilder::markdownImage(label, url, title);
}

std::u16string CVNASTTextOperations::markdownFileWithLabel(std::u16string_view label, std::u16string_view url,
                                                           bool preview) {
    return StringBuilder::markdownFile(label, url, preview);
}

std::u16string CVNASTTextOperations::markdownLinkWithLabel(std::u16string_view label, std::u16string_view url,
                                                           std::u16string_view title, bool preview) {
    constexpr StringBuilder::MetadataPair pairs[] = {{u"preview", u"true"}};
    return StringBuilder::markdownLink(label, url, title,
                                       StringBuilder::Metadata(pairs).first(preview ? 1 : 0));
}

std::u16string CVNASTTextOperations::footnoteReferenceWithLabel(std::u16string_view label) {
    return StringBuilder::footnoteReference(label);
}

std::u16string CVNASTTextOperations::referenceDefinitionWithLabel(std::u16string_view label,
                                                                  std::u16string_view text) {
    return StringBuilder::referenceDefinition(label, text);
}

std::u16string CVNASTTextOperations::codeBlockWithString(std::u16string_view code) {
    return StringBuilder::codeBlock(code);
}

std::u16string CVNASTTextOperations::tableStringWithRows(std::int64_t rows, std::int64_t columns) {
    return StringBuilder::table(rows, columns);
}

std::u16string CVNASTTextOperations::taskWithText(std::u16string_view text, bool completed) {
    return std::u16string(completed ? u"- [x] " : u"- [ ] ").append(text);
}

std::vector<std::u16string> CVNASTTextOperations::filenameVariantsForURL(std::u16string_view url) {
    const auto variants = FilenameMatch::filenameVariants(url);
    return {variants.begin(), variants.end()};
}
