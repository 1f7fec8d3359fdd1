#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "corvane/client/CVNASTOperationResult.h"
#include "corvane/scan/Export.h"

class CVNAST;

/// The commands and corrections of CVNASTTextOperations as tables, for hosts that offer them by name.

/// What a command takes besides range and selection. A command looks at the member that its parameter is of.
struct CVNTextArgument {
    std::int64_t number = 0;
    std::u16string_view text;
};

using CVNTextArguments = std::array<CVNTextArgument, 3>;

struct CVNTextParameter {
    enum class Kind : std::uint8_t { None, Number, Text, Flag };

    const char* name = nullptr;
    Kind kind = Kind::None;
    const char* about = nullptr; ///< what its values mean, in a few words
};

/// A command: a method of CVNASTTextOperations, or an operation that hosts make themselves.
struct CORVANE_EXPORT CVNTextOperation {
    /// Fixed: later commands are added behind.
    enum class Number : std::uint8_t {
        indent,
        outdent,
        toggleInlineStyle,
        toggleBlockStyle,
        insertNewlineInRange,
        normalizeIndentationInRange,
        deletePrevious,
        deleteNext,
        toggleTask,
        normalizeCalloutInRange,
        renumberOrderedListInRange,
        removeStrayMetaCommentInRange,
        addTagToTop,
        addTagToBottom,
        removeTag,
        renameTag,
        escapeTag,
        appendText,
        appendTextExact,
        prependText,
        updateWikiLinks,
        updateLinksURL,
        removeLinkWithURL,
        insertThematicBreak,
        insertTable,
        toggleFoldInRange,
        foldAllHeadingSelectionRange,
        unfoldAllHeadingSelectionRange,
        unfoldAtRangeEdges,
        escapePipesInRange,
        insertFootnoteWithDefinitionText,
        insertFootnoteDefinitionWithText,
        renameUnusedFootnoteDefinitionsIn,
        renumberFootnotesIn,
        reorderFootnoteDefinitionsIn,
        moveLinesUpIn,
        moveLinesDownIn,
        selectAllTextIn,
        mutateTable,
        jumpTableCell,
        normalizeTables
    };
    using Results = std::vector<CVNASTOperationResult>;

    Number number;
    const char* name;  ///< of the method
    const char* about; ///< a sentence
    std::array<CVNTextParameter, 3> parameters;
    Results (*run)(const CVNAST& note, CVNRange range, CVNRange selectionRange,
                   const CVNTextArguments& arguments);
    /// It works on the whole note, and does not look at the range.
    bool ignoresRange = false;

    /// All commands, each at the index of its number.
    static std::span<const CVNTextOperation> all();
    /// Null when there is none of that name.
    static const CVNTextOperation* named(std::string_view name);
};

/// A correction of an edit, or of a change of the selection: a method of CVNASTTextOperations.
struct CORVANE_EXPORT CVNTextCorrection {
    /// Fixed: later corrections are added behind.
    enum class Number : std::uint8_t {
        fencedCodeCorrectionIn,
        listItemSpaceCorrectionIn,
        calloutCorrectionIn,
        mathBlockCorrectionIn,
        tableSpaceCorrectionIn,
        pasteCorrectionIn,
        selectionCorrectionIn,
        invalidCharacterCorrectionIn,
        deleteWhitespaceCorrectionIn
    };
    using Results = std::vector<CVNASTOperationResult>;

    Number number;
    const char* name;  ///< of the method
    const char* about; ///< a sentence
    Results (*run)(const CVNAST& note, CVNRange range, std::u16string_view replacement,
                   CVNRange selectionRange);
    /// Nothing is to be replaced: the range is the selection as it was, the text is empty.
    bool isOfSelection = false;

    /// All corrections, each at the index of its number.
    static std::span<const CVNTextCorrection> all();
    /// Null when there is none of that name.
    static const CVNTextCorrection* named(std::string_view name);
};
