#pragma once

#include <stdint.h>

/// Corvane from C, and from whatever can call C. This header needs no other of ours and is C11 as well as
/// C++.
///
/// An editor holds a corvane_note for each open note and tells it every edit. The answer is a range to
/// restyle; corvane_note_annotate() gives the attribute runs of that range, from which the editor paints.
///
/// Units. Text is UTF-16, in the machine's byte order. Locations, lengths and indexes count its code units
/// and are 64 bits wide. A truth is an int32_t, 1 or 0.
///
/// Text that is handed in is a pointer and a length. It needs no end mark, is copied, and is not looked at
/// after the call. The pointer may be null where the length is 0. Any code units are text, lone surrogates
/// too.
///
/// Ownership. What is given back through `corvane_something** result` is the caller's, holds all that it
/// points to, depends on nothing else, and goes by one call of corvane_something_destroy(). Every other
/// pointer that is given back belongs to the object that was asked, and lives as long as it does, or shorter
/// where that is said.
///
/// Arguments that do not fit are answered with a corvane_status and never stop the process. Such a call
/// changes nothing: neither the object nor the places for results. Functions that answer no status say what
/// they answer for null.
///
/// Threads. An object belongs to one thread at a time; several threads may work on objects of their own. The
/// library starts none, holds no locks, and never calls back but through callbacks that a function is handed,
/// and before it returns.
///
/// Exceptions. None is thrown here, and callbacks may throw none. When memory runs out, the failure of the
/// C++ library takes its course and is not to be survived.
///
/// Numbers of enumerations are fixed. Structures keep their size: a type that has to grow becomes another
/// one.

#if !defined(CORVANE_C_SHARED)
#define CORVANE_API
#elif defined(_WIN32) && defined(CORVANE_C_BUILDING)
#define CORVANE_API __declspec(dllexport)
#elif defined(_WIN32)
#define CORVANE_API __declspec(dllimport)
#else
#define CORVANE_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
/// A UTF-16 code unit.
typedef char16_t corvane_unit;
#else
/// A UTF-16 code unit: what char16_t is in C, so that u"" is an array of these.
typedef uint_least16_t corvane_unit;
#endif

// Statuses, ranges and strings

/// What became of a call. Where several errors apply, the one with the smallest number is answered.
typedef int32_t corvane_status;
enum {
    CORVANE_OK = 0,
    CORVANE_ERROR_NULL = 1,   ///< an object, a callback, a name or a place for a result is null
    CORVANE_ERROR_TEXT = 2,   ///< a text is null and has a length, or its length is negative or beyond memory
    CORVANE_ERROR_NUMBER = 3, ///< a number is none of its enumeration, or beyond what the function says
    CORVANE_ERROR_NAME = 4,   ///< there is nothing of that name
    CORVANE_ERROR_RANGE = 5,  ///< a range or an index is negative or reaches outside the text
    CORVANE_ERROR_PENDING = 6,   ///< a batch waits to be committed or discarded
    CORVANE_ERROR_NOT_EMPTY = 7, ///< the option can only be set while the note is empty
    CORVANE_ERROR_ARGUMENTS = 8, ///< the command takes others, or another number of them
};

/// The status in English, on one line, for logs. Never null; good for ever.
CORVANE_API const char* corvane_status_text(corvane_status status);

/// The version of the library, "major.minor.patch". Never null; good for ever.
CORVANE_API const char* corvane_version(void);

/// The location of what was not found.
#define CORVANE_NOT_FOUND INT64_MAX // compare it as a 64-bit integer, which a JavaScript number is not

/// A stretch of text. What was not found is {CORVANE_NOT_FOUND, 0}.
typedef struct corvane_range {
    int64_t location;
    int64_t length;
} corvane_range;

/// A text that the library made.
typedef struct corvane_string corvane_string;

/// The code units, behind which there is a 0 that does not count. Null for a null string.
CORVANE_API const corvane_unit* corvane_string_units(const corvane_string* string);
/// 0 for a null string.
CORVANE_API int64_t corvane_string_length(const corvane_string* string);
/// Null is allowed.
CORVANE_API void corvane_string_destroy(corvane_string* string);

/// A text of the caller's, as an element of a list. It is only read during the call.
typedef struct corvane_text {
    const corvane_unit* units; ///< may be null if the length is 0
    int64_t length;
} corvane_text;

/// A list of texts that the library made.
typedef struct corvane_strings corvane_strings;

/// 0 for a null list.
CORVANE_API int64_t corvane_strings_count(const corvane_strings* strings);
/// The code units of one text, behind which there is a 0 that does not count; good as long as the list. Null
/// for a null list, and outside of it. `length` may be null.
CORVANE_API const corvane_unit* corvane_strings_units(const corvane_strings* strings, int64_t index,
                                                      int64_t* length);
/// Null is allowed.
CORVANE_API void corvane_strings_destroy(corvane_strings* strings);

// Notes

/// A note: its text, and a parsed model of it that follows edits.
typedef struct corvane_note corvane_note;

/// A dialect.
typedef int32_t corvane_rule_set;
enum {
    CORVANE_RULES_COMMONMARK = 0,
    CORVANE_RULES_EXTENDED = 1,
    CORVANE_RULES_SIMPLIFIED = 2,
};

/// Sets the dialect of notes that corvane_note_create() makes from now on, in the whole process; notes that
/// are there keep theirs. It is CORVANE_RULES_EXTENDED at first. Not to be called while another thread makes
/// notes. CORVANE_ERROR_NUMBER unless `rules` is CORVANE_RULES_EXTENDED or CORVANE_RULES_SIMPLIFIED.
CORVANE_API corvane_status corvane_set_rule_set(corvane_rule_set rules);

/// Makes an empty note.
CORVANE_API corvane_status corvane_note_create(corvane_note** note);
/// Makes an empty note of any dialect. CORVANE_ERROR_NUMBER if `rules` is none.
CORVANE_API corvane_status corvane_note_create_with_rules(corvane_rule_set rules, corvane_note** note);
/// Null is allowed.
CORVANE_API void corvane_note_destroy(corvane_note* note);

/// While it is on, annotation leaves out what belongs to blocks. Turning it on also disables math, for good;
/// where that is not done yet, the answer is CORVANE_ERROR_PENDING or CORVANE_ERROR_NOT_EMPTY if the note has
/// a batch or text.
CORVANE_API corvane_status corvane_note_parse_inlines_only(corvane_note* note, int32_t inlines_only);
/// Takes dollar signs for text, for good. CORVANE_ERROR_PENDING or CORVANE_ERROR_NOT_EMPTY as above.
CORVANE_API corvane_status corvane_note_disable_math(corvane_note* note);

// The text. While a batch is pending, it is the one without the batch.

CORVANE_API corvane_status corvane_note_length(const corvane_note* note, int64_t* length);
/// The whole text, without a copy and without a 0 behind it: good until the next edit or commit. The first
/// call behind an edit moves the text behind that edit, so take corvane_note_copy_text() on the road of a
/// keystroke.
CORVANE_API corvane_status corvane_note_text(const corvane_note* note, const corvane_unit** text,
                                             int64_t* length);
/// Copies a part of the text into `buffer`, which has room for `length` units and may be null if that is 0.
/// CORVANE_ERROR_RANGE if the part does not lie in the text.
CORVANE_API corvane_status corvane_note_copy_text(const corvane_note* note, int64_t location, int64_t length,
                                                  corvane_unit* buffer);

/// The note as HTML.
CORVANE_API corvane_status corvane_note_html(const corvane_note* note, corvane_string** html);
/// The tree of the note, one node a line, indented by depth: for looking at.
CORVANE_API corvane_status corvane_note_tree(const corvane_note* note, corvane_string** tree);

// Edits. `restyle` becomes the range to annotate and paint anew, in the text as it is after the edit; null if
// that is of no interest. The text may be that of corvane_note_text().

/// Replaces a range of the text. CORVANE_ERROR_RANGE if it does not lie in the text, CORVANE_ERROR_PENDING
/// while a batch is pending.
CORVANE_API corvane_status corvane_note_replace(corvane_note* note, int64_t location, int64_t length,
                                                const corvane_unit* text, int64_t text_length,
                                                corvane_range* restyle);
/// Replaces the whole text, for instance to load one. CORVANE_ERROR_PENDING while a batch is pending.
CORVANE_API corvane_status corvane_note_replace_all(corvane_note* note, const corvane_unit* text,
                                                    int64_t text_length, corvane_range* restyle);

/// Adds a replacement to the note's batch. Its range counts in the text as it will stand after the earlier
/// ones of the batch, and CORVANE_ERROR_RANGE is the answer if it does not lie in that. The note stays as it
/// is.
CORVANE_API corvane_status corvane_note_batch_add(corvane_note* note, int64_t location, int64_t length,
                                                  const corvane_unit* text, int64_t text_length);
/// Makes all replacements of the batch, which is then empty. An empty batch changes nothing, and there is
/// nothing to restyle: {CORVANE_NOT_FOUND, 0}.
CORVANE_API corvane_status corvane_note_batch_commit(corvane_note* note, corvane_range* restyle);
/// Empties the batch without making its replacements.
CORVANE_API corvane_status corvane_note_batch_discard(corvane_note* note);

// Attribute runs

/// A key of attribute runs. Each comment tells the value that it has; without one it is the boolean 1.
/// A marker is CORVANE_MARKER_OPEN or CORVANE_MARKER_CLOSE. An alignment is 0 left, 1 centre, 2 right, 4
/// natural.
typedef int32_t corvane_key;
enum {
    CORVANE_KEY_DIRECTION = 0,      ///< 0 as around it, 1 left to right, 2 right to left
    CORVANE_KEY_INDENT_SPACE = 1,   ///< its width in columns
    CORVANE_KEY_HEADING = 2,        ///< its level
    CORVANE_KEY_HEADING_MARKER = 3, ///< 1 before the text, 2 below it
    CORVANE_KEY_FOLDABLE = 4,
    CORVANE_KEY_BLOCKQUOTE = 5,
    CORVANE_KEY_BLOCKQUOTE_ITEM = 6,   ///< list information
    CORVANE_KEY_BLOCKQUOTE_MARKER = 7, ///< 3
    CORVANE_KEY_CALLOUT = 8,           ///< 0 note, 1 tip, 2 important, 3 warning, 4 caution
    CORVANE_KEY_CALLOUT_TITLE = 9,
    CORVANE_KEY_CALLOUT_MARKER = 10,
    CORVANE_KEY_FENCED_CODE = 11,          ///< front matter, too
    CORVANE_KEY_FENCED_CODE_MARKER = 12,   ///< a marker
    CORVANE_KEY_FENCED_CODE_LANGUAGE = 13, ///< the language, a string
    CORVANE_KEY_YAML = 14,
    CORVANE_KEY_YAML_MARKER = 15, ///< never set by the library
    CORVANE_KEY_INDENTED_CODE = 16,
    CORVANE_KEY_MATH_BLOCK = 17,         ///< the formula, a string
    CORVANE_KEY_MATH_BLOCK_MARKER = 18,  ///< a marker
    CORVANE_KEY_MATH_BLOCK_FORMULA = 19, ///< 2
    CORVANE_KEY_HTML_BLOCK = 20,
    CORVANE_KEY_THEMATIC_BREAK = 21,
    CORVANE_KEY_LIST = 22,
    CORVANE_KEY_LIST_ITEM = 23,   ///< list information
    CORVANE_KEY_LIST_MARKER = 24, ///< 1 unordered, 2 ordered
    CORVANE_KEY_TABLE = 25,       ///< a dictionary: the numbers "ColumnCount" and "RowCount"
    CORVANE_KEY_TABLE_MARKER = 26,
    CORVANE_KEY_TABLE_CELL = 27,         ///< an alignment; the boolean 1 in the delimiter row
    CORVANE_KEY_TABLE_CELL_CONTENT = 28, ///< an alignment
    CORVANE_KEY_FOOT_NOTE = 29,          ///< 1 reference, 2 definition
    CORVANE_KEY_FOOT_NOTE_MARKER = 30,   ///< a marker
    CORVANE_KEY_FOOT_NOTE_LABEL = 31,    ///< the label, a string
    CORVANE_KEY_FOOT_NOTE_TEXT = 32,
    CORVANE_KEY_REFERENCE_DEFINITION = 33, ///< how many references there are to it
    CORVANE_KEY_REFERENCE_MARKER = 34,     ///< a marker
    CORVANE_KEY_REFERENCE_DEFINITION_LABEL = 35,
    CORVANE_KEY_REFERENCE_DEFINITION_LINK = 36,
    CORVANE_KEY_REFERENCE_DEFINITION_TITLE = 37,
    CORVANE_KEY_REFERENCE = 38, ///< how many definitions there are of its label
    CORVANE_KEY_REFERENCE_TEXT = 39,
    CORVANE_KEY_REFERENCE_LABEL = 40,
    CORVANE_KEY_STRONG = 41,
    CORVANE_KEY_STRONG_MARKER = 42, ///< a marker
    CORVANE_KEY_EMPHASIS = 43,
    CORVANE_KEY_EMPHASIS_MARKER = 44, ///< a marker
    CORVANE_KEY_STRIKETHROUGH = 45,
    CORVANE_KEY_STRIKETHROUGH_MARKER = 46, ///< a marker
    CORVANE_KEY_UNDERLINE = 47,
    CORVANE_KEY_UNDERLINE_MARKER = 48, ///< a marker
    CORVANE_KEY_CODE = 49,
    CORVANE_KEY_CODE_MARKER = 50, ///< a marker
    CORVANE_KEY_HIGHLIGHTER = 51,
    CORVANE_KEY_HIGHLIGHTER_COLOR = 52,          ///< 0 none, 1 red, 2 blue, 3 green, 4 yellow, 5 purple
    CORVANE_KEY_HIGHLIGHTER_MARKER = 53,         ///< a marker
    CORVANE_KEY_HIGHLIGHTER_MARKER_NESTING = 54, ///< its depth in the tree
    CORVANE_KEY_COLOR = 55,
    CORVANE_KEY_COLOR_MARKER = 56,
    CORVANE_KEY_ARROW = 57,          ///< which one, from 1, of those that touch
    CORVANE_KEY_HASHTAG = 58,        ///< the tag's path, encoded, a string
    CORVANE_KEY_HASHTAG_MARKER = 59, ///< a marker
    CORVANE_KEY_HASHTAG_SEGMENT = 60,
    CORVANE_KEY_HASHTAG_SEPARATOR = 61,
    CORVANE_KEY_ESCAPE = 62,
    CORVANE_KEY_HARD_LINEBREAK = 63,
    CORVANE_KEY_HTML_ENTITY = 64,        ///< what it stands for, a string
    CORVANE_KEY_HTML_ENTITY_MARKER = 65, ///< a marker
    CORVANE_KEY_AUTO_LINK_URL = 66,      ///< the address, a string; the boolean 1 where it stands in <>
    CORVANE_KEY_AUTO_LINK_EMAIL = 67,    ///< the same
    CORVANE_KEY_AUTO_LINK_MARKER = 68,   ///< a marker
    CORVANE_KEY_HTML_INLINE = 69,
    CORVANE_KEY_METADATA = 70, ///< the JSON object of a comment, a dictionary
    CORVANE_KEY_FOLD_MARKER = 71,
    CORVANE_KEY_FOLD = 72,
    CORVANE_KEY_MATH_SPAN = 73, ///< the formula, a string
    CORVANE_KEY_MATH_SPAN_FORMULA = 74,
    CORVANE_KEY_MATH_SPAN_MARKER = 75, ///< a marker
    CORVANE_KEY_WIKI_LINK = 76,        ///< the link's path, encoded, a string
    CORVANE_KEY_WIKI_LINK_MARKER = 77, ///< a marker
    CORVANE_KEY_WIKI_LINK_SEGMENT = 78,
    CORVANE_KEY_WIKI_LINK_SEPARATOR = 79,
    CORVANE_KEY_WIKI_LINK_ALIAS = 80, ///< the alias, a string
    CORVANE_KEY_WIKI_LINK_ALIAS_SEPARATOR = 81,
    CORVANE_KEY_LINK = 82,
    CORVANE_KEY_LINK_MARKER = 83, ///< a marker
    CORVANE_KEY_LINK_URL = 84,    ///< the destination, a string
    CORVANE_KEY_LINK_TITLE = 85,
    CORVANE_KEY_LINK_LABEL = 86,
    CORVANE_KEY_IMAGE = 87,
    CORVANE_KEY_IMAGE_MARKER = 88, ///< a marker
    CORVANE_KEY_IMAGE_URL = 89,    ///< the destination, a string
    CORVANE_KEY_IMAGE_TITLE = 90,
    CORVANE_KEY_IMAGE_LABEL = 91,
};

/// Values of marker keys.
enum {
    CORVANE_MARKER_OPEN = 1,
    CORVANE_MARKER_CLOSE = 2,
};

/// How many keys there are; they are numbered from 0.
CORVANE_API int32_t corvane_key_count(void);
/// The name of a key in ASCII, such as "CVNStrong": the same in every version and language. Good for ever;
/// null for what is no key.
CORVANE_API const char* corvane_key_name(corvane_key key);
/// The key of a name, -1 if there is none or the name is null.
CORVANE_API corvane_key corvane_key_with_name(const char* name);

/// Which members of a corvane_run hold its value.
typedef int32_t corvane_value_kind;
enum {
    CORVANE_VALUE_NONE = 0,    ///< there is none
    CORVANE_VALUE_INTEGER = 1, ///< `number`
    CORVANE_VALUE_BOOLEAN = 2, ///< `number`, 1 or 0
    CORVANE_VALUE_STRING = 3,  ///< `text`
    CORVANE_VALUE_DICTIONARY =
        4, ///< `text`, a JSON object: names in order, no blanks, all beyond ASCII as it is
    CORVANE_VALUE_LIST_INFO = 5, ///< `list`
};

/// Values of corvane_list_info::list_type.
enum {
    CORVANE_LIST_UNORDERED = 1,
    CORVANE_LIST_ORDERED = 2,
    CORVANE_LIST_BLOCK_QUOTE = 3,
};
/// Values of corvane_list_info::list_sub_type.
enum {
    CORVANE_LIST_NO_SUB_TYPE = 0,
    CORVANE_LIST_DASH = 1,
    CORVANE_LIST_ASTERISK = 2,
    CORVANE_LIST_PLUS = 3,
    CORVANE_LIST_ORDERED_DOT = 4,
    CORVANE_LIST_ORDERED_PARENTHESIS = 5,
    CORVANE_LIST_CALLOUT = 6,
};
/// Values of corvane_list_info::task_type.
enum {
    CORVANE_TASK_NONE = 0,
    CORVANE_TASK_OPEN = 1,
    CORVANE_TASK_DONE = 2,
};

/// The list item, or the line of a block quote, that a run lies in. 56 bytes.
typedef struct corvane_list_info {
    int64_t list_level; ///< lists and block quotes around the item's own list or quote
    int64_t item_index; ///< from 0; in a quote the count of lines with a marker
    int64_t list_type;
    int64_t list_sub_type;
    int64_t task_type;
    int64_t ordered_list_item_number; ///< 0 in a quote
    int64_t relative_list_level;      ///< as list_level, in the unbroken chain of the same kind
} corvane_list_info;

/// A key's value over a stretch of text. 56 bytes on wasm32 as on 64-bit machines, with members in the same
/// places.
typedef struct corvane_run {
    int64_t location; ///< from the start of the annotated range
    int64_t length;
    corvane_key key;
    corvane_value_kind kind;
    int64_t number;                ///< of integers and booleans; 0 for other kinds
    const corvane_unit* text;      ///< of strings and dictionaries; null for other kinds
    int64_t text_length;           ///< 0 for other kinds
    const corvane_list_info* list; ///< null for other kinds
} corvane_run;

/// The attribute runs of a range of a note as it was when it was annotated. Its runs, texts and list
/// information live as long as it does; the note may change or go meanwhile.
typedef struct corvane_annotation corvane_annotation;

/// Styles a range: one that an edit gave, or the whole text. A construct that begins before the range is not
/// seen. CORVANE_ERROR_RANGE if it does not lie in the text.
CORVANE_API corvane_status corvane_note_annotate(const corvane_note* note, int64_t location, int64_t length,
                                                 corvane_annotation** annotation);
/// Null is allowed.
CORVANE_API void corvane_annotation_destroy(corvane_annotation* annotation);

/// A copy of the text of the range.
CORVANE_API corvane_status corvane_annotation_text(const corvane_annotation* annotation,
                                                   const corvane_unit** text, int64_t* length);
/// All runs, sorted by key and then by location. Those of one key do not overlap, and those that touch have
/// unequal values. `runs` may become null when there are none.
CORVANE_API corvane_status corvane_annotation_runs(const corvane_annotation* annotation,
                                                   const corvane_run** runs, int64_t* count);
/// The runs of one key: a part of the array above. CORVANE_ERROR_NUMBER for what is no key.
CORVANE_API corvane_status corvane_annotation_runs_of_key(const corvane_annotation* annotation,
                                                          corvane_key key, const corvane_run** runs,
                                                          int64_t* count);
/// The key's run at an index. Where it has none: CORVANE_VALUE_NONE and the stretch without a value, which at
/// the end of the text is {CORVANE_NOT_FOUND, 0}. CORVANE_ERROR_NUMBER for what is no key,
/// CORVANE_ERROR_RANGE for an index that is negative or behind the end of the text.
CORVANE_API corvane_status corvane_annotation_run_at(const corvane_annotation* annotation, corvane_key key,
                                                     int64_t index, corvane_run* run);

// Questions to the runs of an annotation, as C++ has them under the same names in corvane/client/CVNQuery.h,
// where each is described: is the caret inside a link, which range is this list item, where are the markers
// of this bold text. Annotate enough: whole blocks, or the whole text.
//
// `name` is ASCII. Null is CORVANE_ERROR_NULL, and a name that is not listed at the function
// CORVANE_ERROR_NAME. A location or index counts from the start of the annotated range. CORVANE_ERROR_RANGE
// if the range does not lie in that text, or the index is negative or behind its end; at the end nothing is
// found.

/// Whether something is so of a range:
///     rangeContainsLink, isRangeInsideColor, isRangeInsideArrow, isRangeInsideHashtag, isRangeInsideLink,
///     isRangeInsideWikiLink, isRangeInsideAutoLinkEmail, isRangeInsideAutoLinkURL, isRangeInsideImage,
///     isRangeInsideHeader, isRangeInsideList, isRangeInsideBlockquote, isRangeInsideFootnote,
///     isRangeInsideReference, isRangeInsideReferenceDefinition, isRangeInsideTable,
///     isRangeInsideBlockMath, isRangeInsideInlineCode, isRangeInsideHTML, isRangeInsideBlockCode,
///     isRangeInsideCode, isRangeInsideMath, isRangeInsideAutoLink, isRangeInsideReferenceOrDefinition,
///     isRangeInsideFootnoteLabel, isRangeInsideTaskList
CORVANE_API corvane_status corvane_query_range_test(const corvane_annotation* annotation, const char* name,
                                                    int64_t location, int64_t length, int32_t* holds);
/// Whether the key has a value in the range, or, of an empty one, at its location. CORVANE_ERROR_NUMBER for
/// what is no key.
CORVANE_API corvane_status corvane_query_contains(const corvane_annotation* annotation, corvane_key key,
                                                  int64_t location, int64_t length, int32_t* contains);
/// Whether something is so of the character at an index:
///     isFencedCodeEmptyAtIndex, hasMarkerAtIndex, hasBeginOfSentenceMarkerAtIndex, hasHeaderMarkerAtIndex,
///     hasListMarkerAtIndex, hasBlockquoteMarkerAtIndex, hasTableAtIndex, hasFootnoteDefinitionAtIndex,
///     hasYamlAtIndex, hasFoldAtIndex, hasHighlightAtIndex, hasHTMLBlockAtIndex, hasIndentSpaceAtIndex,
///     hasTaskListMarkerAtIndex, hasListWithSublistAtIndex, hasOpeningMarkerAtIndex,
///     hasClosingMarkerAtIndex, hasOpeningTagMarkerAtIndex, hasClosingTagMarkerAtIndex,
///     hasClosingHighlightMarkerAtIndex, isListOrBlockquoteParagraphEmptyAtIndex
CORVANE_API corvane_status corvane_query_index_test(const corvane_annotation* annotation, const char* name,
                                                    int64_t index, int32_t* holds);
/// A number that belongs to the character at an index: the level of the heading, 0 outside one; the
/// direction, which is 0 left to right, 1 right to left and -1 neither, not as with CORVANE_KEY_DIRECTION;
/// how many callouts stand around it.
///     headerLevelAtIndex, writingDirectionAtIndex, calloutNestLevelAtIndex
CORVANE_API corvane_status corvane_query_number(const corvane_annotation* annotation, const char* name,
                                                int64_t index, int64_t* number);
/// The range of something around the character at an index, and of its marker, which may be null; each
/// {CORVANE_NOT_FOUND, 0} if there is none:
///     headerRangeAtIndex, linkRangeAtIndex, autoLinkRangeAtIndex, autoLinkEmailRangeAtIndex,
///     autoLinkURLRangeAtIndex, colorRangeAtIndex, arrowRangeAtIndex, footnoteRangeAtIndex,
///     codeRangeAtIndex, codeBlockRangeAtIndex, indentedCodeRangeAtIndex, metadataRangeAtIndex,
///     hashTagRangeAtIndex, wikiLinkRangeAtIndex, highlighterRangeAtIndex, mathRangeAtIndex,
///     inlineClosingMarkerRangeAtIndex, referenceLabelRangeForReferenceAtIndex,
///     rangeOfBlockquoteItemAtIndex, rangeOfListItemAtIndex, rangeOfListItemWithoutSublistsAtIndex,
///     rangeOfNextSiblingListItemAtIndex, rangeOfSublistsForListItemAtIndex,
///     rangeOfIndentForListItemAtIndex
CORVANE_API corvane_status corvane_query_range_at(const corvane_annotation* annotation, const char* name,
                                                  int64_t index, corvane_range* range, corvane_range* marker);
/// The same for something of a given list type or level. Any number will do.
///     rangeOfBlockquoteLevel, rangeOfParentListItemOfType, rangeOfListLevel
CORVANE_API corvane_status corvane_query_numbered_range(const corvane_annotation* annotation,
                                                        const char* name, int64_t number, int64_t index,
                                                        corvane_range* range);
/// A range that is made from a range:
///     extendRangeToFullyContainBlockquote, rangeOfListMarkerForListItemRange,
///     extendRangeToFullyContainListItems, extendRangeToFullyContainLists
CORVANE_API corvane_status corvane_query_range(const corvane_annotation* annotation, const char* name,
                                               int64_t location, int64_t length, corvane_range* range);
/// The list item or the line of a quote at an index; with a `list_type` of 0 if there is none. `item` and
/// `marker`, which may be null, become its range and that of its marker.
///     blockquoteItemInfoAtIndex, listOrBlockquoteItemInfoAtIndex, listItemInfoAtIndex
CORVANE_API corvane_status corvane_query_item_info(const corvane_annotation* annotation, const char* name,
                                                   int64_t index, corvane_list_info* info,
                                                   corvane_range* item, corvane_range* marker);
/// The code at an index as its author meant it, without fences, markers and the indentation of its block;
/// null if there is none. Tabs stay, which HTML has as spaces.
CORVANE_API corvane_status corvane_query_code(const corvane_annotation* annotation, int64_t index,
                                              corvane_string** code);

/// A construct, as far as it lies in the range that is enumerated. What it does not have is
/// {CORVANE_NOT_FOUND, 0}. 104 bytes on wasm32 as on 64-bit machines.
typedef struct corvane_construct {
    corvane_range range;
    corvane_range text;            ///< between its markers, or a link's label
    corvane_range opening;         ///< its first marker, or a list item's one
    corvane_range closing;         ///< its last marker
    corvane_range url;             ///< of a link, with angle brackets
    corvane_range title;           ///< of a link, with its quotes
    const corvane_list_info* list; ///< of a list item, until the callback returns; null for all else
} corvane_construct;

/// Gets one construct after the other, with the pointer that was handed in for it. The construct is there
/// until it returns, which it does with 0 to see the next one. It may ask the annotation, but not destroy it.
typedef int32_t (*corvane_construct_callback)(void* user, const corvane_construct* construct);

/// Calls back for all constructs of a kind that reach into a range, in order or, `backward`, the last one
/// first. Those with markers:
///     enumerateStrongInRange, enumerateEmphasisInRange, enumerateStrikethroughInRange,
///     enumerateUnderlineInRange, enumerateCodeInRange, enumerateHashtagInRange,
///     enumerateInlineMathInRange, enumerateFencedCodeInRange, enumerateYAMLInRange,
///     enumerateMathBlockInRange
/// Links with all their parts:
///     enumerateLinkInRange, enumerateImageInRange
/// Stretches that have nothing but a range; corvane_annotation_run_at() tells their value:
///     enumerateColorInRange, enumerateArrowInRange, enumerateEscapeInRange, enumerateHTMLInlineInRange,
///     enumerateAutoLinkEmailInRange, enumerateAutoLinkURLInRange, enumerateReferenceInRange,
///     enumerateReferenceDefinitionInRange, enumerateFootnotesInRange, enumerateWikiLinkInRange,
///     enumerateMetadataInRange, enumerateFoldInRange, enumerateHTMLEntitiesInRange,
///     enumerateHardLinebreakInRange, enumerateThematicBreakInRange, enumerateHeadingInRange,
///     enumerateIndentedCodeInRange, enumerateHTMLBlockInRange, enumerateCalloutInRange
/// Lists or quotes, each followed by its items or lines:
///     enumerateBlockquoteInRange, enumerateUnorderedListInRange, enumerateOrderedListInRange
CORVANE_API corvane_status corvane_query_enumerate(const corvane_annotation* annotation, const char* name,
                                                   int64_t location, int64_t length, int32_t backward,
                                                   corvane_construct_callback callback, void* user);

// Questions to the tree of a note

/// From the first marker of the first "#" heading with that title to the heading's end, with no regard to
/// case; {CORVANE_NOT_FOUND, 0} if there is none.
CORVANE_API corvane_status corvane_note_heading_range(const corvane_note* note, const corvane_unit* title,
                                                      int64_t title_length, corvane_range* range);
/// The first definition of a footnote label, and the first reference with it; {CORVANE_NOT_FOUND, 0} if there
/// is none, as in a dialect without footnotes.
CORVANE_API corvane_status corvane_note_footnote_definition_range(const corvane_note* note,
                                                                  const corvane_unit* label,
                                                                  int64_t label_length, corvane_range* range);
CORVANE_API corvane_status corvane_note_footnote_reference_range(const corvane_note* note,
                                                                 const corvane_unit* label,
                                                                 int64_t label_length, corvane_range* range);
/// Whether the block at an index is a heading, or the head of a list item, with something to fold behind it.
/// CORVANE_ERROR_RANGE for an index that is negative or behind the end of the text.
CORVANE_API corvane_status corvane_note_is_foldable(const corvane_note* note, int64_t index,
                                                    int32_t* is_foldable);

// Summary: what a list of notes shows of one

/// What a note was about when it was asked; the note may change or go meanwhile. Its texts and arrays live as
/// long as it does.
typedef struct corvane_summary corvane_summary;

/// A wikilink. A target is its segments with "/" between them, and with a backslash before a "/" or "\" in
/// one. 40 bytes on wasm32 as on 64-bit machines.
typedef struct corvane_wikilink {
    const corvane_unit* target;
    int64_t target_length;
    const corvane_unit* title; ///< the first segment as it reads: another note's title; may be empty
    int64_t title_length;
    int64_t location; ///< of its "[[", in the text of the note
} corvane_wikilink;

/// What a note has how many of. 40 bytes.
typedef struct corvane_summary_counts {
    int64_t code_blocks; ///< fenced or indented
    int64_t open_tasks;
    int64_t done_tasks;
    /// Stretches of blanks that indent a line inside a list item or quote, with spaces only and with a tab.
    int64_t space_indented_lines;
    int64_t tab_indented_lines;
} corvane_summary_counts;

/// Walks over the whole note.
CORVANE_API corvane_status corvane_note_summary(const corvane_note* note, corvane_summary** summary);
/// Null is allowed.
CORVANE_API void corvane_summary_destroy(corvane_summary* summary);

/// The plain text of the first line that is neither front matter nor blank: at most 500 code units, and empty
/// if there is none.
CORVANE_API corvane_status corvane_summary_title(const corvane_summary* summary, const corvane_unit** text,
                                                 int64_t* length);
/// The plain text of what follows it, with white space merged and without lines of nothing but tags: at most
/// 200 code units.
CORVANE_API corvane_status corvane_summary_subtitle(const corvane_summary* summary, const corvane_unit** text,
                                                    int64_t* length);
/// The tags, sorted by code units, each once and with all that it lies in: with "a/b" there is "a". The list
/// is the summary's: do not destroy it.
CORVANE_API corvane_status corvane_summary_tags(const corvane_summary* summary, const corvane_strings** tags);
/// Where links and images lead, in order, each once. The list is the summary's: do not destroy it.
CORVANE_API corvane_status corvane_summary_links(const corvane_summary* summary,
                                                 const corvane_strings** links);
/// All wikilinks, in order. `wikilinks` may become null when there are none.
CORVANE_API corvane_status corvane_summary_wikilinks(const corvane_summary* summary,
                                                     const corvane_wikilink** wikilinks, int64_t* count);
CORVANE_API corvane_status corvane_summary_count(const corvane_summary* summary,
                                                 corvane_summary_counts* counts);

// Commands and corrections: what keys, menus and buttons of an editor do to a note, of which C++ has the
// methods in corvane/client/CVNASTTextOperations.h. They change nothing, but answer with replacements and the
// selection to show then: apply these to the note and to the view. When there are none, they have no opinion,
// and the editor does what it would do to plain text.

/// Replaces `range` by `text` and shows `selection`, which counts in the text behind it. 48 bytes on wasm32
/// as on 64-bit machines.
typedef struct corvane_replacement {
    corvane_range range;      ///< empty for an insertion
    const corvane_unit* text; ///< empty for a deletion; null never
    int64_t text_length;
    corvane_range selection; ///< empty for a caret
} corvane_replacement;

/// What a command or correction answered with, for the text of the note as it was then.
typedef struct corvane_results corvane_results;

/// The replacements, which are to be made in this order, each in the text that the ones before it left. The
/// selection to show is that of the last one. `replacements` may become null when there are none.
CORVANE_API corvane_status corvane_results_replacements(const corvane_results* results,
                                                        const corvane_replacement** replacements,
                                                        int64_t* count);
/// Null is allowed.
CORVANE_API void corvane_results_destroy(corvane_results* results);

/// Makes all replacements. `restyle` becomes the range to annotate and paint anew, and `selection` the one to
/// show, both in the text behind all of them, or {CORVANE_NOT_FOUND, 0} when there are none; each may be
/// null. CORVANE_ERROR_RANGE, and no replacement is made, if one of the ranges or the last selection does not
/// lie in its text, as may be with results for another text. CORVANE_ERROR_PENDING while a batch is pending.
CORVANE_API corvane_status corvane_note_apply_results(corvane_note* note, const corvane_results* results,
                                                      corvane_range* restyle, corvane_range* selection);

/// A command. The comment tells what it takes besides range and selection. A tag and the target of a wikilink
/// are their segments with "/" between them, and with a backslash before a "/" or "\" in one, without
/// markers.
typedef int32_t corvane_command;
enum {
    CORVANE_COMMAND_INDENT = 0,
    CORVANE_COMMAND_OUTDENT = 1,
    CORVANE_COMMAND_TOGGLE_INLINE_STYLE = 2, ///< a corvane_inline_style
    CORVANE_COMMAND_TOGGLE_BLOCK_STYLE = 3,  ///< a corvane_block_style
    CORVANE_COMMAND_INSERT_NEWLINE = 4,      ///< return: leaves an inline, or goes on with the block
    CORVANE_COMMAND_NORMALIZE_INDENTATION = 5,
    CORVANE_COMMAND_DELETE_PREVIOUS = 6,   ///< backspace, with a caret
    CORVANE_COMMAND_DELETE_NEXT = 7,       ///< delete, with a caret
    CORVANE_COMMAND_TOGGLE_TASK = 8,       ///< a corvane_task_change
    CORVANE_COMMAND_NORMALIZE_CALLOUT = 9, ///< keeps one from being the title
    CORVANE_COMMAND_RENUMBER_ORDERED_LIST = 10,
    CORVANE_COMMAND_REMOVE_STRAY_META_COMMENT = 11, ///< of folds and previews
    CORVANE_COMMAND_ADD_TAG_TO_TOP = 12,            ///< a tag
    CORVANE_COMMAND_ADD_TAG_TO_BOTTOM = 13,         ///< a tag
    CORVANE_COMMAND_REMOVE_TAG = 14,                ///< a tag
    CORVANE_COMMAND_RENAME_TAG = 15,                ///< the old tag, the new one
    CORVANE_COMMAND_ESCAPE_TAG = 16,                ///< a tag
    CORVANE_COMMAND_APPEND_TEXT = 17,               ///< a text; goes before the last tags and the footnotes
    CORVANE_COMMAND_APPEND_TEXT_EXACT = 18,         ///< a text
    CORVANE_COMMAND_PREPEND_TEXT = 19,              ///< a text; goes below the title and its tags
    CORVANE_COMMAND_UPDATE_WIKI_LINKS = 20,         ///< old target, new one, whether to skip the title
    CORVANE_COMMAND_UPDATE_LINKS_URL = 21,          ///< the old URL, the new one
    CORVANE_COMMAND_REMOVE_LINK_WITH_URL = 22,      ///< a URL
    CORVANE_COMMAND_INSERT_THEMATIC_BREAK = 23,
    CORVANE_COMMAND_INSERT_TABLE = 24,
    CORVANE_COMMAND_TOGGLE_FOLD = 25,
    CORVANE_COMMAND_FOLD_ALL_HEADING = 26,
    CORVANE_COMMAND_UNFOLD_ALL_HEADING = 27,
    CORVANE_COMMAND_UNFOLD_AT_RANGE_EDGES = 28,
    CORVANE_COMMAND_ESCAPE_PIPES = 29,
    CORVANE_COMMAND_INSERT_FOOTNOTE = 30,            ///< the text of its definition
    CORVANE_COMMAND_INSERT_FOOTNOTE_DEFINITION = 31, ///< its text
    CORVANE_COMMAND_RENAME_UNUSED_FOOTNOTE_DEFINITIONS = 32,
    CORVANE_COMMAND_RENUMBER_FOOTNOTES = 33,
    CORVANE_COMMAND_REORDER_FOOTNOTE_DEFINITIONS = 34,
    CORVANE_COMMAND_MOVE_LINES_UP = 35,
    CORVANE_COMMAND_MOVE_LINES_DOWN = 36,
    CORVANE_COMMAND_SELECT_ALL_TEXT = 37,
    CORVANE_COMMAND_MUTATE_TABLE = 38,    ///< a corvane_table_change
    CORVANE_COMMAND_JUMP_TABLE_CELL = 39, ///< 1 goes to the previous cell, else to the next
    CORVANE_COMMAND_NORMALIZE_TABLES = 40,
};

/// Any other number is CORVANE_INLINE_BOLD.
typedef int64_t corvane_inline_style;
enum {
    CORVANE_INLINE_BOLD = 0,
    CORVANE_INLINE_ITALIC = 1,
    CORVANE_INLINE_STRIKETHROUGH = 2,
    CORVANE_INLINE_UNDERLINE = 3,
    CORVANE_INLINE_HIGHLIGHT = 4,
    CORVANE_INLINE_HIGHLIGHT_RED = 5,
    CORVANE_INLINE_HIGHLIGHT_BLUE = 6,
    CORVANE_INLINE_HIGHLIGHT_GREEN = 7,
    CORVANE_INLINE_HIGHLIGHT_YELLOW = 8,
    CORVANE_INLINE_HIGHLIGHT_PURPLE = 9,
    CORVANE_INLINE_CODE = 10,
    CORVANE_INLINE_MATH = 11,
};

/// Any other number is CORVANE_BLOCK_HEADING_1.
typedef int64_t corvane_block_style;
enum {
    CORVANE_BLOCK_HEADING_1 = 0,
    CORVANE_BLOCK_HEADING_2 = 1,
    CORVANE_BLOCK_HEADING_3 = 2,
    CORVANE_BLOCK_HEADING_4 = 3,
    CORVANE_BLOCK_HEADING_5 = 4,
    CORVANE_BLOCK_HEADING_6 = 5,
    CORVANE_BLOCK_BULLET_LIST = 6,
    CORVANE_BLOCK_ORDERED_LIST = 7,
    CORVANE_BLOCK_TASK_LIST = 8,
    CORVANE_BLOCK_QUOTE = 9,
    CORVANE_BLOCK_CODE = 10,
    CORVANE_BLOCK_MATH = 11,
    CORVANE_BLOCK_CALLOUT = 12,
    CORVANE_BLOCK_CALLOUT_NOTE = 13,
    CORVANE_BLOCK_CALLOUT_TIP = 14,
    CORVANE_BLOCK_CALLOUT_CAUTION = 15,
    CORVANE_BLOCK_CALLOUT_WARNING = 16,
    CORVANE_BLOCK_CALLOUT_IMPORTANT = 17,
};

/// What becomes of tasks. Any other number is CORVANE_TASK_TOGGLE.
typedef int64_t corvane_task_change;
enum {
    CORVANE_TASK_TOGGLE = 0,
    CORVANE_TASK_CHECK = 1,
    CORVANE_TASK_UNCHECK = 2,
};

/// What becomes of the table at a range. Any other number changes nothing.
typedef int64_t corvane_table_change;
enum {
    CORVANE_TABLE_ADD_ROW_ABOVE = 0,
    CORVANE_TABLE_ADD_ROW_BELOW = 1,
    CORVANE_TABLE_DELETE_ROW = 2,
    CORVANE_TABLE_MOVE_ROW_UP = 3,
    CORVANE_TABLE_MOVE_ROW_DOWN = 4,
    CORVANE_TABLE_ADD_COLUMN_BEFORE = 5,
    CORVANE_TABLE_ADD_COLUMN_AFTER = 6,
    CORVANE_TABLE_DELETE_COLUMN = 7,
    CORVANE_TABLE_MOVE_COLUMN_LEFT = 8,
    CORVANE_TABLE_MOVE_COLUMN_RIGHT = 9,
    CORVANE_TABLE_ALIGN_NONE = 10,
    CORVANE_TABLE_ALIGN_LEFT = 11,
    CORVANE_TABLE_ALIGN_CENTER = 12,
    CORVANE_TABLE_ALIGN_RIGHT = 13,
};

/// How many commands there are; they are numbered from 0.
CORVANE_API int32_t corvane_command_count(void);
/// The name of a command in ASCII, such as "indent": the same in every version and language. Good for ever;
/// null for what is no command.
CORVANE_API const char* corvane_command_name(corvane_command command);
/// The command of a name, -1 if there is none or the name is null.
CORVANE_API corvane_command corvane_command_with_name(const char* name);
/// What the argument at an index from 0 must be: CORVANE_VALUE_INTEGER, CORVANE_VALUE_BOOLEAN or
/// CORVANE_VALUE_STRING. CORVANE_VALUE_NONE if the command takes fewer, and for what is no command.
CORVANE_API corvane_value_kind corvane_command_argument_kind(corvane_command command, int32_t index);

/// What a command takes. 24 bytes on wasm32 as on 64-bit machines.
typedef struct corvane_argument {
    int64_t number;           ///< of integers and booleans, which are 1 or 0; 0 for strings
    const corvane_unit* text; ///< of strings; null for other kinds
    int64_t text_length;      ///< 0 for other kinds
} corvane_argument;

/// Asks a command about a range and the selection of the editor, mostly the same. `arguments` are as many as
/// it takes, and may be null for those that take none.
///
/// CORVANE_ERROR_NUMBER for what is no command, CORVANE_ERROR_RANGE if range or selection do not lie in the
/// text, CORVANE_ERROR_ARGUMENTS if there are too few or too many or one has what its kind has not.
CORVANE_API corvane_status corvane_note_run_command(const corvane_note* note, corvane_command command,
                                                    int64_t location, int64_t length,
                                                    int64_t selection_location, int64_t selection_length,
                                                    const corvane_argument* arguments, int64_t argument_count,
                                                    corvane_results** results);

/// A correction of an edit, which the editor asks for before it makes that edit.
typedef int32_t corvane_correction;
enum {
    CORVANE_CORRECTION_FENCED_CODE = 0,       ///< fences of code come in pairs
    CORVANE_CORRECTION_LIST_ITEM_SPACE = 1,   ///< no more blanks behind the marker of an item
    CORVANE_CORRECTION_CALLOUT = 2,           ///< text stays a space away from the marker of a callout
    CORVANE_CORRECTION_MATH_BLOCK = 3,        ///< "$$" does not swallow the text behind it
    CORVANE_CORRECTION_TABLE_SPACE = 4,       ///< text stays a space away from the pipes of a table
    CORVANE_CORRECTION_PASTE = 5,             ///< a paste fits where it lands
    CORVANE_CORRECTION_SELECTION = 6,         ///< a selection keeps inlines whole
    CORVANE_CORRECTION_INVALID_CHARACTER = 7, ///< carriage returns become line feeds, and NUL goes
    CORVANE_CORRECTION_DELETE_WHITESPACE = 8, ///< a deleted word takes a surplus space along
};

/// As with commands.
CORVANE_API int32_t corvane_correction_count(void);
CORVANE_API const char* corvane_correction_name(corvane_correction correction);
CORVANE_API corvane_correction corvane_correction_with_name(const char* name);

/// Asks a correction about an edit, which is still to be made, and the selection that the editor would show
/// behind it. When there are replacements, they are to be made instead of the edit.
/// CORVANE_CORRECTION_SELECTION is asked about a change of the selection: the range is the selection as it
/// was, there is no text, and what it answers replaces nothing.
///
/// CORVANE_ERROR_NUMBER for what is no correction, CORVANE_ERROR_RANGE if the range does not lie in the text,
/// or the selection not in the text behind the edit.
CORVANE_API corvane_status corvane_note_run_correction(const corvane_note* note,
                                                       corvane_correction correction, int64_t location,
                                                       int64_t length, const corvane_unit* text,
                                                       int64_t text_length, int64_t selection_location,
                                                       int64_t selection_length, corvane_results** results);

// Snippets: Markdown from values. They need no note. Only the label and the URL of a link or image are
// escaped: titles, codes, footnote labels and texts go in as they stand.

/// A label with what would end it escaped, on one line.
CORVANE_API corvane_status corvane_snippet_safe_label(const corvane_unit* label, int64_t length,
                                                      corvane_string** snippet);
/// A URL with what may not stand in a link percent-escaped, and the other way round.
CORVANE_API corvane_status corvane_snippet_escaped_url(const corvane_unit* url, int64_t length,
                                                       corvane_string** snippet);
CORVANE_API corvane_status corvane_snippet_decoded_url(const corvane_unit* url, int64_t length,
                                                       corvane_string** snippet);
/// «[label](url "title")», without the title where it is empty, and behind it, if asked for, a comment that
/// asks for a preview. In the same way an image, and a file, which is embedded.
CORVANE_API corvane_status corvane_snippet_link(const corvane_unit* label, int64_t label_length,
                                                const corvane_unit* url, int64_t url_length,
                                                const corvane_unit* title, int64_t title_length,
                                                int32_t preview, corvane_string** snippet);
CORVANE_API corvane_status corvane_snippet_image(const corvane_unit* label, int64_t label_length,
                                                 const corvane_unit* url, int64_t url_length,
                                                 const corvane_unit* title, int64_t title_length,
                                                 corvane_string** snippet);
CORVANE_API corvane_status corvane_snippet_file(const corvane_unit* label, int64_t label_length,
                                                const corvane_unit* url, int64_t url_length, int32_t preview,
                                                corvane_string** snippet);
/// «[^label]»
CORVANE_API corvane_status corvane_snippet_footnote_reference(const corvane_unit* label, int64_t length,
                                                              corvane_string** snippet);
/// «[label]: text»
CORVANE_API corvane_status corvane_snippet_reference_definition(const corvane_unit* label,
                                                                int64_t label_length,
                                                                const corvane_unit* text, int64_t text_length,
                                                                corvane_string** snippet);
/// The text between fences, with a line ending behind the last.
CORVANE_API corvane_status corvane_snippet_code_block(const corvane_unit* code, int64_t length,
                                                      corvane_string** snippet);
/// An empty table of a heading row, the delimiter row and `rows` - 1 others, without a line ending at the
/// end; for 0 rows the heading row alone, which is no table yet. CORVANE_ERROR_NUMBER unless both numbers are
/// 0 to 1000.
CORVANE_API corvane_status corvane_snippet_table(int64_t rows, int64_t columns, corvane_string** snippet);
/// «- [ ] text» or, completed, «- [x] text», without a line ending.
CORVANE_API corvane_status corvane_snippet_task(const corvane_unit* text, int64_t length, int32_t completed,
                                                corvane_string** snippet);
/// The forms that a file's name may take in a URL: as it stands, escaped and decoded. `variants` has room for
/// three strings, each of which is the caller's.
CORVANE_API corvane_status corvane_snippet_filename_variants(const corvane_unit* url, int64_t length,
                                                             corvane_string** variants);

// Texts without a note: for lists, search and work on many notes. A text that holds tags or wikilinks is
// parsed by each call, in the dialect of corvane_set_rule_set(). A byte order mark counts as text, so cut it
// off before.

/// How much there is to read in a text, markup and all. 12 bytes.
typedef struct corvane_statistics {
    uint32_t words;             ///< logograms are words of their own
    uint32_t paragraphs;        ///< lines that are not empty
    uint32_t read_time_seconds; ///< at 300 logograms or 250 other words a minute
} corvane_statistics;

CORVANE_API corvane_status corvane_text_statistics(const corvane_unit* text, int64_t length,
                                                   corvane_statistics* statistics);
/// Whether words end at the character at an index: punctuation, white space or a logogram; 0 outside the
/// text.
CORVANE_API corvane_status corvane_text_is_word_separator(const corvane_unit* text, int64_t length,
                                                          int64_t index, int32_t* is_separator);
/// Whether it is a logogram: a character of Han or kana.
CORVANE_API corvane_status corvane_text_is_single_character_word(const corvane_unit* text, int64_t length,
                                                                 int64_t index, int32_t* is_word);

// By what a code point is, words are counted. All three are 0 for a number that is no code point.

/// White space, "-" or U+2213: a word ends there.
CORVANE_API corvane_status corvane_code_point_is_word_delimiter(uint32_t code_point, int32_t* is_delimiter);
/// A logogram, CJK punctuation or a full-width form: a word of its own.
CORVANE_API corvane_status corvane_code_point_is_word_character(uint32_t code_point, int32_t* is_word);
/// Punctuation: it neither starts nor ends a word.
CORVANE_API corvane_status corvane_code_point_is_ignorable(uint32_t code_point, int32_t* is_ignorable);

/// How well a text fits a pattern. 16 bytes.
typedef struct corvane_fuzzy_match {
    int32_t matched;     ///< a truth: the text has the characters of the pattern in their order
    int32_t score;       ///< not negative: high for tight and early matches, 0 without one
    int64_t index_count; ///< without a match: of the characters in front of the missing one
} corvane_fuzzy_match;

/// Looks for a pattern, as corvane/analysis/FuzzySearch.h describes it. Case counts. `indexes` becomes where
/// the characters of the pattern stand, ascending; it has room for `pattern_length` numbers, and may be null.
CORVANE_API corvane_status corvane_fuzzy_search(const corvane_unit* pattern, int64_t pattern_length,
                                                const corvane_unit* text, int64_t text_length,
                                                corvane_fuzzy_match* match, int64_t* indexes);

// Tags. The name of a tag is a path as commands take it: its components with "/" between them, and "\" before
// a "/" or "\" in one.

/// A tag as it is written in text; empty for a name that no tag can have.
CORVANE_API corvane_status corvane_tag_markdown(const corvane_unit* name, int64_t name_length,
                                                corvane_string** markdown);
/// The same for each of a list.
CORVANE_API corvane_status corvane_tag_markdowns(const corvane_text* names, int64_t name_count,
                                                 corvane_strings** markdowns);
/// A name for comparison: without case, diacritics and widths.
CORVANE_API corvane_status corvane_tag_normalized_name(const corvane_unit* name, int64_t name_length,
                                                       corvane_string** normalized);
/// What somebody typed as a name, without what no tag can hold.
CORVANE_API corvane_status corvane_tag_sanitized_name(const corvane_unit* typed, int64_t typed_length,
                                                      corvane_string** name);
CORVANE_API corvane_status corvane_tag_name_from_components(const corvane_text* components,
                                                            int64_t component_count, corvane_string** name);
/// Without empty ones.
CORVANE_API corvane_status corvane_tag_components(const corvane_unit* name, int64_t name_length,
                                                  corvane_strings** components);
/// The text with tags added one after the other below its first line, where a line of tags may be already.
CORVANE_API corvane_status corvane_tag_add_to_top(const corvane_text* names, int64_t name_count,
                                                  const corvane_unit* text, int64_t text_length,
                                                  corvane_string** changed);
/// In the same way at its end, but before its footnotes.
CORVANE_API corvane_status corvane_tag_add_to_bottom(const corvane_text* names, int64_t name_count,
                                                     const corvane_unit* text, int64_t text_length,
                                                     corvane_string** changed);
/// The text without a component: without "a/b", the tags "#a/b" and "#a/b/c" are "#a". A tag of which nothing
/// is left goes with the blanks behind it.
CORVANE_API corvane_status corvane_tag_remove(const corvane_unit* name, int64_t name_length,
                                              const corvane_unit* text, int64_t text_length,
                                              corvane_string** changed);
/// The text with a tag and those below it under another name.
CORVANE_API corvane_status corvane_tag_rename(const corvane_unit* name, int64_t name_length,
                                              const corvane_unit* new_name, int64_t new_name_length,
                                              const corvane_unit* text, int64_t text_length,
                                              corvane_string** changed);
/// The text with tags and those below them as plain text.
CORVANE_API corvane_status corvane_tag_escape(const corvane_text* names, int64_t name_count,
                                              const corvane_unit* text, int64_t text_length,
                                              corvane_string** changed);

// Wikilinks. A link's target is a path like a tag's: the title of a note, and behind "/" a header in it.

/// A title as a target.
CORVANE_API corvane_status corvane_wikilink_encoded_segment(const corvane_unit* title, int64_t title_length,
                                                            corvane_string** target);
/// A title as it may stand in "[[...]]".
CORVANE_API corvane_status corvane_wikilink_encoded_title(const corvane_unit* title, int64_t title_length,
                                                          corvane_string** encoded);
/// «[[title|alias]]»; without the pipe where the alias is empty.
CORVANE_API corvane_status corvane_wikilink_markdown(const corvane_unit* title, int64_t title_length,
                                                     const corvane_unit* alias, int64_t alias_length,
                                                     corvane_string** markdown);
/// «[[title/header]]»
CORVANE_API corvane_status corvane_wikilink_markdown_with_header(const corvane_unit* title,
                                                                 int64_t title_length,
                                                                 const corvane_unit* header,
                                                                 int64_t header_length,
                                                                 corvane_string** markdown);
/// The title of a target, and, if there is one, the header.
CORVANE_API corvane_status corvane_wikilink_components(const corvane_unit* target, int64_t target_length,
                                                       corvane_strings** components);
/// The title of a target; null for an empty target.
CORVANE_API corvane_status corvane_wikilink_title(const corvane_unit* target, int64_t target_length,
                                                  corvane_string** title);
/// Those of a list of targets, of which empty ones have empty titles.
CORVANE_API corvane_status corvane_wikilink_titles(const corvane_text* targets, int64_t target_count,
                                                   corvane_strings** titles);
/// What is written in "[[...]]" without its escapes, in two steps: those of a path, and then those of
/// brackets, pipes, backslashes and ampersands in what is left. So corvane_wikilink_encoded_title() is not
/// undone for a title with two backslashes side by side: one comes back.
CORVANE_API corvane_status corvane_wikilink_decoded(const corvane_unit* written, int64_t written_length,
                                                    corvane_string** decoded);
/// The text with the links to a note leading to another, but for those in its title line if `skip_title`.
CORVANE_API corvane_status corvane_wikilink_update(const corvane_unit* title, int64_t title_length,
                                                   const corvane_unit* new_title, int64_t new_title_length,
                                                   int32_t skip_title, const corvane_unit* text,
                                                   int64_t text_length, corvane_string** changed);
/// Whether a note's title, found in a text, may be offered as a link: it stands apart from the words around
/// it, and begins in no tag, link, image, wikilink or "<...>". 0 for a range that is empty or outside the
/// text. The dialect is always CORVANE_RULES_EXTENDED.
CORVANE_API corvane_status corvane_wikilink_is_valid_backlink(int64_t location, int64_t length,
                                                              const corvane_unit* text, int64_t text_length,
                                                              int32_t* is_valid);

/// Tells how long stretches of work took, one behind the other.
typedef struct corvane_time_logger corvane_time_logger;

/// Gets a line for a log, which is there until it returns, with the pointer that was handed in for it.
typedef void (*corvane_line_callback)(void* user, const corvane_unit* line, int64_t length);

/// The first stretch begins now.
CORVANE_API corvane_status corvane_time_logger_create(corvane_time_logger** logger);
/// Calls back with "TEXT in Nms", where N has six decimals: how long the stretch took. The next one begins
/// behind that. The callback must not destroy the logger.
CORVANE_API corvane_status corvane_time_logger_log(corvane_time_logger* logger, const corvane_unit* text,
                                                   int64_t length, corvane_line_callback callback,
                                                   void* user);
/// Null is allowed.
CORVANE_API void corvane_time_logger_destroy(corvane_time_logger* logger);

#ifdef __cplusplus
}
#endif
