#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "corvane/client/CVNASTAnnotation.h"
#include "corvane/client/CVNASTNode.h"
#include "corvane/client/CVNASTQuery.h"
#include "corvane/client/CVNASTStyling.h"
#include "corvane/client/CVNASTSummary.h"
#include "corvane/client/CVNASTTextOperations.h"
#include "corvane/client/CVNRange.h"
#include "corvane/tree/ReplaceBatch.h"
#include "corvane/tree/Tree.h"

/// What an editor holds for one note: the text with its tree, edits that answer with one range to restyle,
/// and all that is built on top.
///
/// Offsets and lengths count UTF-16 code units. One object belongs to one thread at a time. What is built on
/// top comes in families, each a base class with a header of its own that has no data: CVNASTAnnotation
/// styles a range, CVNASTQuery asks the tree, CVNASTStyling widens ranges, CVNASTSummary tells what a list of
/// notes shows, CVNASTTextOperations has the commands and makes snippets.
class CORVANE_EXPORT CVNAST : public CVNASTAnnotation,
                              public CVNASTQuery,
                              public CVNASTStyling,
                              public CVNASTSummary,
                              public CVNASTTextOperations {
public:
    /// Set it with setParseInlinesOnly().
    bool parseInlinesOnly = false;
    /// The note. Owned; never null but in an object that was moved from, which can only be destroyed or
    /// assigned to.
    std::unique_ptr<Ondo::Tree> ast;
    /// The replacements that batchReplaceCommit() will make; empty between commits.
    std::unique_ptr<Ondo::ReplaceBatch> replaceBatch;

    /// The rule set of objects that are made from now on.
    static Ondo::RuleConfig::RuleSet ruleSet;
    /// `Simplified` or `Extended`. Objects that are there keep theirs.
    static void setUsesSimplifiedRuleSet(bool usesSimplifiedRuleSet);

    /// Is told each range that was parsed or annotated, as a line of text; null, as it starts, costs nothing.
    static void (*log)(std::u16string_view text);
    /// Tells `log` of a range, as "what {location, length}".
    static void logRange(std::u16string_view what, CVNRange range);

    /// An empty note with the current `ruleSet`.
    CVNAST();
    /// A note with that text.
    static CVNAST fromMarkdown(std::u16string_view markdown);
    CVNAST(CVNAST&& other) noexcept;
    CVNAST& operator=(CVNAST&& other) noexcept;
    ~CVNAST();

    // Text

    /// The whole text. The view is good until the next edit, but the first call behind an edit moves the text
    /// behind that edit: on the road of a keystroke take markdownIn().
    std::u16string_view markdown() const { return ast->markdown(); }
    /// A part of the text. The range must lie in it: nothing checks that.
    std::u16string_view markdownIn(CVNRange range) const { return ast->markdownIn(range.coreRange()); }
    /// The text of a node of this note.
    std::u16string_view markdownForNode(const CVNASTNode& node) const;
    std::int64_t markdownLength() const { return ast->length(); }
    CVNASTNode rootNode() const;
    /// Address, text and indented tree, for debugging.
    std::u16string description() const;

    // Edits. Each answers with the range to restyle, in the new text. They assert that the range lies in the
    // text.

    CVNRange replaceAllWithMarkdown(std::u16string_view markdown);
    CVNRange replaceRange(CVNRange range, std::u16string_view markdown);
    /// Notes a replacement for batchReplaceCommit(): its range counts in the text as it will stand after all
    /// earlier ones of the batch. Until then nothing changes. Edits of another kind wait until the commit.
    void batchReplaceRange(CVNRange range, std::u16string_view markdown);
    /// Makes the replacements of the batch. Of an empty batch: {CVNNotFound, 0}, and nothing changes.
    CVNRange batchReplaceCommit();

    // Options

    /// While it is on, annotation leaves out what belongs to blocks. Turning it on drops the rules for math,
    /// for good, and asserts that the text is empty.
    void setParseInlinesOnly(bool inlinesOnly);
    /// Asserts that the text is empty.
    void disableMath();
};
