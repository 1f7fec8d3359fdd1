#include "corvane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <tuple>

#include "capi/Handles.h"
#include "corvane/client/CVNAST.h"
#include "corvane/scan/Util.h"
#include "tests/capi/Handles.h"

namespace Ondo::Test {
namespace {

using Util::utf8;

constexpr char16_t units[] = u"abc";

std::string read(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}
/// The words of each line of corvane.h.
std::vector<std::vector<std::string>> header() {
    std::vector<std::vector<std::string>> lines;
    std::istringstream text(read(CORVANE_TEST_DIR "/../capi/corvane.h"));
    for (std::string line; std::getline(text, line);) {
        std::istringstream words(line);
        lines.emplace_back(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>());
    }
    return lines;
}
std::u16string welcome() {
    return Util::utf16(read(CORVANE_TEST_DIR "/../examples/welcome.md"));
}

std::string taken(corvane_string* string) {
    const Handle<corvane_string> owner(string);
    return utf8({corvane_string_units(string), static_cast<std::size_t>(corvane_string_length(string))});
}
std::string htmlOf(const Note& note) {
    corvane_string* html = nullptr;
    EXPECT_EQ(corvane_note_html(note.get(), &html), CORVANE_OK);
    return taken(html);
}

/// "CVNStrong [2, 5) 1"
std::string show(const corvane_run& run) {
    std::string out = corvane_key_name(run.key);
    out += " [" + std::to_string(run.location) + ", " + std::to_string(run.location + run.length) + ") ";
    if (run.text) return out + utf8({run.text, static_cast<std::size_t>(run.text_length)});
    if (!run.list)
        return out + (run.kind == CORVANE_VALUE_BOOLEAN ? "true" : "") + std::to_string(run.number);
    for (const std::int64_t number :
         {run.list->list_level, run.list->item_index, run.list->list_type, run.list->list_sub_type,
          run.list->task_type, run.list->ordered_list_item_number, run.list->relative_list_level})
        out += std::to_string(number) + ' ';
    return out;
}
std::string runsOf(const Annotation& annotation, corvane_key key) {
    const corvane_run* runs = nullptr;
    std::int64_t count = -1;
    EXPECT_EQ(corvane_annotation_runs_of_key(annotation.get(), key, &runs, &count), CORVANE_OK);
    std::string out;
    for (std::int64_t i = 0; i < count; ++i)
        out += show(runs[i]) + '\n';
    return out;
}

TEST(Capi, TakesEmptyTextsAndRanges) {
    const Note note = noteOf({});
    corvane_range restyle{};
    EXPECT_EQ(corvane_note_replace(note.get(), 0, 0, nullptr, 0, &restyle), CORVANE_OK);
    EXPECT_EQ(corvane_note_copy_text(note.get(), 0, 0, nullptr), CORVANE_OK);
    EXPECT_EQ(htmlOf(note), "");
    const Annotation annotation = annotate(note, 0, 0);
    corvane_run run{};
    EXPECT_EQ(corvane_annotation_run_at(annotation.get(), CORVANE_KEY_LINK, 0, &run), CORVANE_OK);
    EXPECT_TRUE(run.kind == CORVANE_VALUE_NONE && run.location == CORVANE_NOT_FOUND && run.length == 0);
    const corvane_unit* none = nullptr;
    std::int64_t length = -1;
    EXPECT_EQ(corvane_annotation_text(annotation.get(), &none, &length), CORVANE_OK);
    EXPECT_EQ(length, 0);
}

// Notes and edits

TEST(Capi, NotesHaveTheRuleSetThatTheyWereMadeWith) {
    const std::u16string_view sample = u"==a== `b` $c$\n";
    corvane_note* made = nullptr;
    ASSERT_EQ(corvane_set_rule_set(CORVANE_RULES_SIMPLIFIED), CORVANE_OK);
    ASSERT_EQ(corvane_note_create(&made), CORVANE_OK);
    const Note simplified(made);
    ASSERT_EQ(corvane_note_create_with_rules(CORVANE_RULES_EXTENDED, &made), CORVANE_OK);
    const Note extended(made);
    ASSERT_EQ(corvane_set_rule_set(CORVANE_RULES_EXTENDED), CORVANE_OK);
    for (const Note* note : {&simplified, &extended})
        ASSERT_EQ(corvane_note_replace_all(note->get(), sample.data(), std::ssize(sample), nullptr),
                  CORVANE_OK);
    const auto html = [sample](RuleConfig::RuleSet rules) {
        return utf8(Tree(std::u16string(sample), rules).toHtml());
    };
    EXPECT_EQ(htmlOf(simplified), html(RuleConfig::Simplified));
    EXPECT_EQ(htmlOf(extended), html(RuleConfig::Extended));
    EXPECT_EQ(htmlOf(noteOf(sample, CORVANE_RULES_COMMONMARK)), html(RuleConfig::Commonmark));
}

TEST(Capi, OptionsHoldForNewNotes) {
    const Note note = noteOf({});
    EXPECT_EQ(corvane_note_disable_math(note.get()), CORVANE_OK);
    EXPECT_EQ(corvane_note_parse_inlines_only(note.get(), 1), CORVANE_OK);
    const std::u16string_view sample = u"# $a$ **b**\n";
    ASSERT_EQ(corvane_note_replace_all(note.get(), sample.data(), std::ssize(sample), nullptr), CORVANE_OK);
    const Annotation annotation = annotate(note, 0, std::ssize(sample));
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_MATH_SPAN), "");
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_HEADING), "");
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_STRONG), "CVNStrong [6, 11) true1\n");
    EXPECT_EQ(corvane_note_parse_inlines_only(note.get(), 0), CORVANE_OK);
    EXPECT_EQ(runsOf(annotate(note, 0, std::ssize(sample)), CORVANE_KEY_HEADING), "CVNHeading [0, 12) 1\n");
}

TEST(Capi, WhatIsOnAlreadyCanBeTurnedOn) {
    const Note note = noteOf({});
    EXPECT_EQ(corvane_note_parse_inlines_only(note.get(), 1), CORVANE_OK);
    ASSERT_EQ(corvane_note_replace_all(note.get(), u"# $a$\n", 6, nullptr), CORVANE_OK);
    for (const std::int32_t on : {1, 0, 1, 1})
        EXPECT_EQ(corvane_note_parse_inlines_only(note.get(), on), CORVANE_OK);
    EXPECT_EQ(corvane_note_disable_math(note.get()), CORVANE_OK);
    ASSERT_EQ(corvane_note_batch_add(note.get(), 0, 0, units, 3), CORVANE_OK);
    EXPECT_EQ(corvane_note_parse_inlines_only(note.get(), 1), CORVANE_OK);
    EXPECT_EQ(runsOf(annotate(note, 0, 6), CORVANE_KEY_HEADING), "");
}

TEST(Capi, EditsTakeTheNotesOwnText) {
    const std::u16string original = welcome();
    const Note note = noteOf(original);
    const corvane_unit* own = nullptr;
    std::int64_t length = 0;
    ASSERT_EQ(corvane_note_text(note.get(), &own, &length), CORVANE_OK);
    ASSERT_EQ(corvane_note_replace(note.get(), length / 2, 0, own, length, nullptr), CORVANE_OK);
    std::u16string expected = original;
    expected.insert(original.size() / 2, original);
    EXPECT_TRUE(textOf(note) == expected);
    ASSERT_EQ(corvane_note_text(note.get(), &own, &length), CORVANE_OK);
    ASSERT_EQ(corvane_note_replace_all(note.get(), own + 5, 400, nullptr), CORVANE_OK);
    EXPECT_TRUE(textOf(note) == expected.substr(5, 400));
}

/// Against a string that is edited in the same way.
TEST(Capi, ABatchCountsInTheTextThatWillStand) {
    std::mt19937 random(3);
    const auto below = [&random](std::int64_t limit) {
        return std::uniform_int_distribution<std::int64_t>(0, limit - 1)(random);
    };
    for (int batch = 0; batch < 300; ++batch) {
        const std::u16string before = u"# a\n\n- **b**\n> c\n";
        std::u16string after = before;
        const Note note = noteOf(before);
        for (std::int64_t edits = below(6) + 1; edits > 0; --edits) {
            const std::int64_t location = below(std::ssize(after) + 3);
            const std::int64_t length = below(9);
            const std::u16string inserted(static_cast<std::size_t>(below(4)), u"*\n- "[below(4)]);
            const bool fits = location + length <= std::ssize(after);
            ASSERT_EQ(
                corvane_note_batch_add(note.get(), location, length, inserted.data(), std::ssize(inserted)),
                fits ? CORVANE_OK : CORVANE_ERROR_RANGE);
            if (fits)
                after.replace(static_cast<std::size_t>(location), static_cast<std::size_t>(length), inserted);
        }
        ASSERT_TRUE(textOf(note) == before);
        ASSERT_EQ(corvane_note_batch_commit(note.get(), nullptr), CORVANE_OK);
        ASSERT_TRUE(textOf(note) == after) << utf8(textOf(note)) << "\nexpected:\n" << utf8(after);
    }
}

TEST(Capi, APendingBatchKeepsOtherEditsOut) {
    const Note note = noteOf({});
    corvane_range restyle{};
    ASSERT_EQ(corvane_note_batch_add(note.get(), 0, 0, units, 3), CORVANE_OK);
    EXPECT_EQ(corvane_note_replace(note.get(), 0, 0, units, 1, nullptr), CORVANE_ERROR_PENDING);
    EXPECT_EQ(corvane_note_replace_all(note.get(), units, 1, nullptr), CORVANE_ERROR_PENDING);
    EXPECT_EQ(corvane_note_disable_math(note.get()), CORVANE_ERROR_PENDING);
    EXPECT_EQ(corvane_note_parse_inlines_only(note.get(), 1), CORVANE_ERROR_PENDING);
    EXPECT_EQ(corvane_note_batch_discard(note.get()), CORVANE_OK);
    EXPECT_EQ(corvane_note_batch_add(note.get(), 3, 0, units, 1), CORVANE_ERROR_RANGE);
    EXPECT_EQ(corvane_note_batch_commit(note.get(), &restyle), CORVANE_OK);
    EXPECT_EQ(restyle.location, CORVANE_NOT_FOUND);
    EXPECT_EQ(corvane_note_replace(note.get(), 0, 0, units, 1, &restyle), CORVANE_OK);
    EXPECT_EQ(restyle.length, 1);
}

// Attribute runs

/// The header's numbers are those of the table of keys.
TEST(Capi, KeysAreNumberedAsTheirNames) {
    int rows = 0;
    for (const std::vector<std::string>& row : header()) {
        if (row.size() < 3 || !row[0].starts_with("CORVANE_KEY_")) continue;
        std::string name = row[0];
        std::erase(name, '_');
        EXPECT_EQ(row[2], std::to_string(rows) + ',');
        EXPECT_STRCASEEQ(corvane_key_name(rows), ("CVN" + name.substr(10)).c_str());
        EXPECT_EQ(corvane_key_with_name(corvane_key_name(rows)), rows);
        ++rows;
    }
    EXPECT_EQ(corvane_key_count(), rows);
    EXPECT_EQ(corvane_key_name(rows), nullptr);
    EXPECT_EQ(corvane_key_name(-1), nullptr);
    EXPECT_EQ(corvane_key_with_name("Strong"), -1);
}

/// As show() writes the run that C gets.
std::string show(const AttributeRun& run, CVNAttributeName name) {
    corvane_run c{run.location, run.end - run.location, name.id(), CORVANE_VALUE_INTEGER, 0, nullptr, 0,
                  nullptr};
    const std::u16string_view string = run.value.stringValue();
    corvane_list_info info{};
    if (run.value.isString()) c.text = string.data(), c.text_length = std::ssize(string);
    if (run.value.kind() == CVNValue::Kind::Boolean) c.kind = CORVANE_VALUE_BOOLEAN;
    c.number = run.value.integerValue();
    if (const CVNListInfo* list = run.value.listInfoValue()) {
        info = {list->listLevel,        list->itemIndex, list->listType,
                list->listSubType,      list->taskType,  list->orderedListItemNumber,
                list->relativeListLevel};
        c.list = &info;
    }
    return show(c);
}

TEST(Capi, RunsAreThoseOfTheLibrary) {
    const std::u16string text = welcome();
    const Annotation annotation = annotate(noteOf(text), 0, std::ssize(text));
    const CVNAttributedString expected = CVNAST::fromMarkdown(text).annotatedString();
    const corvane_run* runs = nullptr;
    std::int64_t count = 0;
    ASSERT_EQ(corvane_annotation_runs(annotation.get(), &runs, &count), CORVANE_OK);
    EXPECT_GT(count, 300);
    std::int64_t at = 0;
    for (corvane_key key = 0; key < corvane_key_count(); ++key) {
        const CVNAttributeName name = CVNAttributeName::withId(key);
        const AttributeRuns& all = expected.runs(name);
        for (std::int64_t i = 0; i < all.size(); ++i, ++at) {
            ASSERT_LT(at, count);
            if (all[i].value.dictionaryValue())
                EXPECT_EQ(runs[at].kind, CORVANE_VALUE_DICTIONARY);
            else
                ASSERT_EQ(show(runs[at]), show(all[i], name));
        }
    }
    EXPECT_EQ(at, count);
}

TEST(Capi, TheRunAtAnIndexIsThatOrTheStretchWithoutOne) {
    const Note note = noteOf(u"a **b** **c** d\n");
    const Annotation annotation = annotate(note, 0, 16);
    std::string out;
    for (std::int64_t index = 0; index <= 16; ++index) {
        corvane_run run{};
        ASSERT_EQ(corvane_annotation_run_at(annotation.get(), CORVANE_KEY_STRONG, index, &run), CORVANE_OK);
        if (index == 16)
            EXPECT_EQ(run.location, CORVANE_NOT_FOUND);
        else
            out += run.kind == CORVANE_VALUE_NONE ? ' ' : 'S', out += std::to_string(run.location);
    }
    EXPECT_EQ(out, " 0 0S2S2S2S2S2 7S8S8S8S8S8 13 13 13");
}

TEST(Capi, ValuesOfEveryKind) {
    const std::u16string_view sample =
        u"#a/b\n\n3) x\n   - [x] y\n\n| h | i |\n|---|---|\n"
        u"<i> <!-- {\"z\":[1.5,null,true],\"a\":\"\\\"\\\\\\u0001\u00e9\"} -->\n";
    const Annotation annotation = annotate(noteOf(sample), 0, std::ssize(sample));
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_HASHTAG), "CVNHashtag [0, 4) a/b\n");
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_LIST_ITEM), "CVNListItem [6, 11) 0 0 2 5 0 3 0 \n"
                                                         "CVNListItem [11, 22) 1 0 1 1 2 1 1 \n");
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_TABLE),
              "CVNTable [23, 42) {\"ColumnCount\":2,\"RowCount\":1}\n");
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_METADATA),
              "CVNMetadata [47, 95) {\"a\":\"\\\"\\\\\\u0001\u00e9\",\"z\":[1.5,null,true]}\n");
}

TEST(Capi, AnAnnotationOutlivesItsNote) {
    Note note = noteOf(u"- a #tag <!-- {\"k\":1} -->\n");
    const Annotation annotation = annotate(note, 0, 26);
    const std::string before = runsOf(annotation, CORVANE_KEY_HASHTAG) +
                               runsOf(annotation, CORVANE_KEY_METADATA) +
                               runsOf(annotation, CORVANE_KEY_LIST_ITEM);
    ASSERT_EQ(corvane_note_replace_all(note.get(), units, 3, nullptr), CORVANE_OK);
    note.reset();
    EXPECT_EQ(runsOf(annotation, CORVANE_KEY_HASHTAG) + runsOf(annotation, CORVANE_KEY_METADATA) +
                  runsOf(annotation, CORVANE_KEY_LIST_ITEM),
              before);
    const corvane_unit* copy = nullptr;
    std::int64_t length = 0;
    ASSERT_EQ(corvane_annotation_text(annotation.get(), &copy, &length), CORVANE_OK);
    EXPECT_EQ(std::u16string_view(copy, static_cast<std::size_t>(length)), u"- a #tag <!-- {\"k\":1} -->\n");
}

// Questions to the runs

/// Counts the constructs in the std::int64_t that `user` points to.
std::int32_t count(void* user, const corvane_construct*) {
    ++*static_cast<std::int64_t*>(user);
    return 0;
}

/// Calls the function that the header declares under that name, with the name of a query, at an index.
corvane_status ask(const std::string& function, const char* name, const corvane_annotation* runs,
                   std::int64_t index) {
    std::int64_t number = 0;
    std::int32_t truth = 0;
    corvane_range range{};
    corvane_range marker{};
    corvane_list_info info{};
    if (function == "range_test") return corvane_query_range_test(runs, name, index, 0, &truth);
    if (function == "index_test") return corvane_query_index_test(runs, name, index, &truth);
    if (function == "number") return corvane_query_number(runs, name, index, &number);
    if (function == "range_at") return corvane_query_range_at(runs, name, index, &range, &marker);
    if (function == "numbered_range") return corvane_query_numbered_range(runs, name, 1, index, &range);
    if (function == "range") return corvane_query_range(runs, name, index, 0, &range);
    if (function == "item_info") return corvane_query_item_info(runs, name, index, &info, &range, &marker);
    if (function == "enumerate") return corvane_query_enumerate(runs, name, 0, index, 1, count, &number);
    return CORVANE_ERROR_NUMBER;
}

/// Of the words in the header's comments only these have capitals inside.
bool isQueryName(const std::string& word) {
    return std::islower(word.front()) &&
           std::any_of(word.begin(), word.end(), [](char c) { return std::isupper(c); });
}

/// The names stand above the functions that take them.
TEST(Capi, QueriesAreThereUnderTheNamesOfTheHeader) {
    const std::u16string_view sample = u"# a\n\n- [ ] **b**\n  > [!NOTE] `c`\n\n```\n```\n[d](e) #f\n";
    const Annotation annotation = annotate(noteOf(sample), 0, std::ssize(sample));
    std::vector<std::string> names;
    int asked = 0;
    for (const std::vector<std::string>& line : header()) {
        for (const std::string& word : line)
            if (line[0] == "///" && isQueryName(word)) names.push_back(word.substr(0, word.find(',')));
        if (line.size() < 3 || !line[2].starts_with("corvane_query_")) continue;
        const std::string function = line[2].substr(14, line[2].find('(') - 14);
        for (const std::string& name : names)
            for (std::int64_t index = 0; index <= std::ssize(sample); ++index)
                ASSERT_EQ(ask(function, name.c_str(), annotation.get(), index), CORVANE_OK)
                    << function << ' ' << name;
        asked += static_cast<int>(names.size());
        names.clear();
    }
    EXPECT_GT(asked, 100);
}

/// "range text opening closing url title", each as what stands there.
std::int32_t write(void* user, const corvane_construct* construct) {
    auto& [sample, out, most] = *static_cast<std::tuple<std::u16string_view, std::string, int>*>(user);
    for (const corvane_range& part : {construct->range, construct->text, construct->opening,
                                      construct->closing, construct->url, construct->title}) {
        const bool isFound = part.location != CORVANE_NOT_FOUND;
        out += isFound ? utf8(sample.substr(static_cast<std::size_t>(part.location),
                                            static_cast<std::size_t>(part.length)))
                       : "-";
        out += '|';
    }
    if (construct->list) out += "item " + std::to_string(construct->list->item_index);
    out += ' ';
    return --most == 0;
}

TEST(Capi, EnumeratesConstructsWithTheirParts) {
    const std::u16string_view sample = u"**a** [b](<c> \"d\")[e](f) **g** #h\n\n* i\n* j\n";
    const Annotation annotation = annotate(noteOf(sample), 0, std::ssize(sample));
    const auto written = [&](const char* name, std::int32_t backward, int most) {
        std::tuple<std::u16string_view, std::string, int> user(sample, "", most);
        EXPECT_EQ(
            corvane_query_enumerate(annotation.get(), name, 0, std::ssize(sample), backward, write, &user),
            CORVANE_OK);
        return std::get<std::string>(user);
    };
    EXPECT_EQ(written("enumerateStrongInRange", 0, 9), "**a**|a|**|**|-|-| **g**|g|**|**|-|-| ");
    EXPECT_EQ(written("enumerateStrongInRange", 1, 1), "**g**|g|**|**|-|-| ");
    EXPECT_EQ(written("enumerateHashtagInRange", 0, 9), "#h|h|#|-|-|-| ");
    EXPECT_EQ(written("enumerateLinkInRange", 0, 9), "[b](<c> \"d\")|b|[|)|<c>|\"d\"| [e](f)|e|[|)|f|-| ");
    EXPECT_EQ(written("enumerateUnorderedListInRange", 0, 9),
              "* i\n* j\n|-|-|-|-|-| * i\n|-|* |-|-|-|item 0 * j\n|-|* |-|-|-|item 1 ");
    EXPECT_EQ(written("enumerateUnorderedListInRange", 0, 1), "* i\n* j\n|-|-|-|-|-| ");
    EXPECT_EQ(written("enumerateImageInRange", 0, 9), "");

    const std::u16string_view code = u"```\na\n```  ";
    std::tuple<std::u16string_view, std::string, int> user(code, "", 9);
    EXPECT_EQ(corvane_query_enumerate(annotate(noteOf(code), 0, std::ssize(code)).get(),
                                      "enumerateFencedCodeInRange", 0, std::ssize(code), 0, write, &user),
              CORVANE_OK);
    EXPECT_EQ(std::get<std::string>(user), "```\na\n```  |\na\n|```|```|-|-| ");
}

TEST(Capi, AsksAboutItemsAndCode) {
    const std::u16string_view sample = u"1. a\n   - b `c`\n";
    const Annotation annotation = annotate(noteOf(sample), 0, std::ssize(sample));
    const corvane_annotation* const runs = annotation.get();
    corvane_list_info info{};
    corvane_range item{};
    corvane_range marker{};
    ASSERT_EQ(corvane_query_item_info(runs, "listItemInfoAtIndex", 3, &info, &item, &marker), CORVANE_OK);
    EXPECT_TRUE(info.list_type == CORVANE_LIST_ORDERED && info.ordered_list_item_number == 1);
    EXPECT_TRUE(item.location == 0 && item.length == 16 && marker.location == 0 && marker.length == 3);
    ASSERT_EQ(corvane_query_item_info(runs, "blockquoteItemInfoAtIndex", 3, &info, &item, nullptr),
              CORVANE_OK);
    EXPECT_TRUE(info.list_type == 0 && item.location == CORVANE_NOT_FOUND);
    ASSERT_EQ(corvane_query_numbered_range(runs, "rangeOfParentListItemOfType", 0, 11, &item), CORVANE_OK);
    EXPECT_TRUE(item.location == 0 && item.length == 16);
    std::int32_t contains = -1;
    ASSERT_EQ(corvane_query_contains(runs, CORVANE_KEY_CODE, 0, 16, &contains), CORVANE_OK);
    EXPECT_EQ(contains, 1);

    corvane_string* code = nullptr;
    ASSERT_EQ(corvane_query_code(runs, 13, &code), CORVANE_OK);
    EXPECT_EQ(taken(code), "c");
    ASSERT_EQ(corvane_query_code(runs, 0, &code), CORVANE_OK);
    EXPECT_EQ(code, nullptr);
}

// Commands and corrections

/// That the header's enumerators are numbered as a table's rows, each with the start of the name of its row.
void expectNumbers(const std::string& prefix, std::int32_t count, const char* (*name)(std::int32_t number),
                   std::int32_t (*withName)(const char* name)) {
    std::int32_t rows = 0;
    for (const std::vector<std::string>& row : header()) {
        if (row.size() < 3 || !row[0].starts_with(prefix) || row[1] != "=") continue;
        std::string start = row[0].substr(prefix.size());
        std::erase(start, '_');
        ASSERT_LT(rows, count);
        EXPECT_EQ(row[2], std::to_string(rows) + ',');
        EXPECT_STRCASEEQ(std::string(name(rows)).substr(0, start.size()).c_str(), start.c_str());
        EXPECT_EQ(withName(name(rows)), rows);
        ++rows;
    }
    EXPECT_EQ(count, rows);
    EXPECT_EQ(name(rows), nullptr);
    EXPECT_EQ(name(-1), nullptr);
    EXPECT_EQ(withName(""), -1);
}

TEST(Capi, CommandsAndCorrectionsAreNumberedAsTheirNames) {
    expectNumbers("CORVANE_COMMAND_", corvane_command_count(), corvane_command_name,
                  corvane_command_with_name);
    expectNumbers("CORVANE_CORRECTION_", corvane_correction_count(), corvane_correction_name,
                  corvane_correction_with_name);
    const corvane_value_kind kinds[] = {CORVANE_VALUE_STRING, CORVANE_VALUE_STRING, CORVANE_VALUE_BOOLEAN,
                                        CORVANE_VALUE_NONE};
    for (std::int32_t index = 0; index < 4; ++index) {
        EXPECT_EQ(corvane_command_argument_kind(CORVANE_COMMAND_UPDATE_WIKI_LINKS, index), kinds[index]);
        EXPECT_EQ(corvane_command_argument_kind(CORVANE_COMMAND_TOGGLE_TASK, index),
                  index == 0 ? CORVANE_VALUE_INTEGER : CORVANE_VALUE_NONE);
        for (const corvane_command command :
             {corvane_command(-1), corvane_command(CORVANE_COMMAND_INDENT), corvane_command_count()})
            EXPECT_EQ(corvane_command_argument_kind(command, index), CORVANE_VALUE_NONE);
    }
    EXPECT_EQ(corvane_command_argument_kind(CORVANE_COMMAND_TOGGLE_TASK, -1), CORVANE_VALUE_NONE);
}

/// "{range}text{selection} " of each.
std::string show(const Results& results) {
    const corvane_replacement* replacements = nullptr;
    std::int64_t count = -1;
    EXPECT_EQ(corvane_results_replacements(results.get(), &replacements, &count), CORVANE_OK);
    const auto range = [](const corvane_range& each) {
        return '{' + std::to_string(each.location) + ", " + std::to_string(each.length) + '}';
    };
    std::string out;
    for (std::int64_t i = 0; i < count; ++i)
        out += range(replacements[i].range) +
               utf8({replacements[i].text, static_cast<std::size_t>(replacements[i].text_length)}) +
               range(replacements[i].selection) + ' ';
    return out;
}
std::string show(const CVNASTTextOperations::Results& results) {
    std::string out;
    for (const CVNASTOperationResult& each : results) {
        const auto range = [](CVNRange at) {
            return '{' + std::to_string(at.location) + ", " + std::to_string(at.length) + '}';
        };
        out +=
            range(each.replacementRange) + utf8(each.replacementString) + range(each.proposedSelection) + ' ';
    }
    return out;
}

/// 1 and "e", by what the command takes.
std::vector<corvane_argument> argumentsOf(const CVNTextOperation& row) {
    std::vector<corvane_argument> arguments;
    for (const CVNTextParameter& parameter : row.parameters) {
        if (parameter.kind == CVNTextParameter::Kind::None) break;
        const bool isText = parameter.kind == CVNTextParameter::Kind::Text;
        arguments.push_back(isText ? corvane_argument{0, u"e", 1} : corvane_argument{1, nullptr, 0});
    }
    return arguments;
}

/// At every place of a note, with different range and selection.
TEST(Capi, CommandsAndCorrectionsAnswerAsThoseOfTheLibrary) {
    const std::u16string_view sample =
        u"## a *b* #e\n- [ ] c\n  - ```\n    d\n    ```\n> [!note]\n> [[e]] [^1]\n\n| e |\n|-|\n";
    const Note note = noteOf(sample);
    const CVNAST expected = CVNAST::fromMarkdown(sample);
    const std::int64_t length = std::ssize(sample);
    for (std::int64_t at = 0; at <= length; ++at) {
        const std::int64_t end = std::min(at + 3, length);
        corvane_results* results = nullptr;
        for (const CVNTextOperation& row : CVNTextOperation::all()) {
            const auto arguments = argumentsOf(row);
            ASSERT_EQ(corvane_note_run_command(note.get(), static_cast<corvane_command>(row.number), at,
                                               end - at, end, 0, arguments.data(), std::ssize(arguments),
                                               &results),
                      CORVANE_OK);
            const CVNTextArgument same{1, u"e"};
            EXPECT_EQ(show(Results(results)),
                      show(row.run(expected, {at, end - at}, {end, 0}, {same, same, same})))
                << row.name << " at " << at;
        }
        for (const CVNTextCorrection& row : CVNTextCorrection::all()) {
            const std::u16string_view typed = row.isOfSelection ? u"" : u"`";
            const CVNRange behind =
                row.isOfSelection ? CVNRange{at / 2, length - at / 2} : CVNRange{at + 1, 0};
            ASSERT_EQ(corvane_note_run_correction(note.get(), static_cast<corvane_correction>(row.number), at,
                                                  0, typed.data(), std::ssize(typed), behind.location,
                                                  behind.length, &results),
                      CORVANE_OK);
            EXPECT_EQ(show(Results(results)), show(row.run(expected, {at, 0}, typed, behind)))
                << row.name << " at " << at;
        }
    }
}

TEST(Capi, ResultsAreAppliedToTheTextTheyWereMadeFor) {
    const std::u16string_view sample = u"- one\n- two\n- three\n";
    const Note note = noteOf(sample);
    const Results results = runCommand(note, CORVANE_COMMAND_INSERT_NEWLINE, {19, 0});
    corvane_range restyle{-7, -7};
    corvane_range selection{-7, -7};

    const Note shorter = noteOf(sample.substr(0, 12));
    EXPECT_EQ(corvane_note_apply_results(shorter.get(), results.get(), &restyle, &selection),
              CORVANE_ERROR_RANGE);
    EXPECT_EQ(textOf(shorter), sample.substr(0, 12));
    ASSERT_EQ(corvane_note_batch_add(note.get(), 0, 0, units, 3), CORVANE_OK);
    EXPECT_EQ(corvane_note_apply_results(note.get(), results.get(), &restyle, &selection),
              CORVANE_ERROR_PENDING);
    EXPECT_EQ(textOf(note), sample);
    ASSERT_EQ(corvane_note_batch_discard(note.get()), CORVANE_OK);
    EXPECT_TRUE(restyle.location == -7 && selection.location == -7);

    EXPECT_EQ(corvane_note_apply_results(note.get(), results.get(), &restyle, &selection), CORVANE_OK);
    EXPECT_EQ(utf8(textOf(note)), "- one\n- two\n- three\n- \n");
    EXPECT_TRUE(selection.location == 22 && selection.length == 0);
    EXPECT_TRUE(restyle.location <= 19 && restyle.location + restyle.length == 23);
    EXPECT_EQ(corvane_note_apply_results(note.get(), results.get(), nullptr, nullptr), CORVANE_OK);
}

/// A list whose ranges lie in the text, but not once the ones before them are applied.
TEST(Capi, RangesAreCheckedInTheTextThatTheyAddress) {
    corvane_results results({{{0, 9}, u"", {0, 0}}, {{4, 6}, u"", {4, 0}}});
    const Note note = noteOf(u"0123456789");
    corvane_range restyle{};
    EXPECT_EQ(corvane_note_apply_results(note.get(), &results, &restyle, nullptr), CORVANE_ERROR_RANGE);
    const corvane_results beyond({{{0, 0}, u"ab", {12, 1}}});
    EXPECT_EQ(corvane_note_apply_results(note.get(), &beyond, &restyle, nullptr), CORVANE_ERROR_RANGE);
    EXPECT_EQ(utf8(textOf(note)), "0123456789");
    const corvane_results fitting({{{0, 10}, u"", {0, 0}}, {{0, 0}, u"ab", {2, 0}}});
    EXPECT_EQ(corvane_note_apply_results(note.get(), &fitting, &restyle, nullptr), CORVANE_OK);
    EXPECT_EQ(utf8(textOf(note)), "ab");
}

TEST(Capi, NoOpinionIsAnEmptyListThatChangesNothing) {
    const Note note = noteOf(u"a\n");
    const Results results = runCommand(note, CORVANE_COMMAND_DELETE_PREVIOUS, {0, 1});
    EXPECT_EQ(show(results), "");
    corvane_range restyle{};
    corvane_range selection{};
    EXPECT_EQ(corvane_note_apply_results(note.get(), results.get(), &restyle, &selection), CORVANE_OK);
    EXPECT_TRUE(restyle.location == CORVANE_NOT_FOUND && restyle.length == 0);
    EXPECT_TRUE(selection.location == CORVANE_NOT_FOUND && selection.length == 0);
    EXPECT_EQ(utf8(textOf(note)), "a\n");
}

TEST(Capi, ResultsOutliveTheirNote) {
    Note note = noteOf(u"a\n");
    const corvane_argument code{CORVANE_BLOCK_CODE, nullptr, 0};
    const Results results = runCommand(note, CORVANE_COMMAND_TOGGLE_BLOCK_STYLE, {0, 1}, &code);
    const std::string before = show(results);
    EXPECT_NE(before, "");
    note.reset();
    EXPECT_EQ(show(results), before);
}

// The tree, and snippets

TEST(Capi, FindsHeadingsAndFootnotes) {
    const std::u16string_view sample = u"a[^1]\n\n> # Über #\n\n- b\n  - c\n\n[^1]: d\n";
    const auto found = [sample](auto ask, std::u16string_view what, corvane_rule_set rules) {
        corvane_range range{};
        EXPECT_EQ(ask(noteOf(sample, rules).get(), what.data(), std::ssize(what), &range), CORVANE_OK);
        if (range.location == CORVANE_NOT_FOUND) return std::string("none");
        return std::to_string(range.location) + '+' + std::to_string(range.length);
    };
    const auto extended = CORVANE_RULES_EXTENDED;
    EXPECT_EQ(found(corvane_note_heading_range, u"über", extended), "9+9");
    EXPECT_EQ(found(corvane_note_heading_range, u"", extended), "none");
    EXPECT_EQ(found(corvane_note_footnote_definition_range, u"1", extended), "30+8");
    EXPECT_EQ(found(corvane_note_footnote_reference_range, u"1", extended), "1+4");
    EXPECT_EQ(found(corvane_note_footnote_reference_range, u"2", extended), "none");
    EXPECT_EQ(found(corvane_note_footnote_definition_range, u"1", CORVANE_RULES_COMMONMARK), "none");
    std::int32_t isFoldable = -1;
    for (const auto& [index, expected] :
         {std::pair(0, 0), std::pair(21, 1), std::pair(27, 0), std::pair(38, 0)}) {
        EXPECT_EQ(corvane_note_is_foldable(noteOf(sample).get(), index, &isFoldable), CORVANE_OK);
        EXPECT_EQ(isFoldable, expected) << index;
    }
}

TEST(Capi, GivesSnippets) {
    const std::u16string_view a = u"a]";
    const std::u16string_view b = u"b c";
    corvane_string* all[13] = {};
    corvane_string** next = all;
    const auto label = a.data(), url = b.data();
    for (const corvane_status status : {
             corvane_snippet_safe_label(label, 2, next++),
             corvane_snippet_escaped_url(url, 3, next++),
             corvane_snippet_decoded_url(u"%62", 3, next++),
             corvane_snippet_link(label, 2, url, 3, u"t", 1, 1, next++),
             corvane_snippet_image(label, 2, url, 3, nullptr, 0, next++),
             corvane_snippet_file(label, 2, url, 3, 0, next++),
             corvane_snippet_footnote_reference(u"1", 1, next++),
             corvane_snippet_reference_definition(u"1", 1, url, 3, next++),
             corvane_snippet_code_block(url, 3, next++),
             corvane_snippet_table(1, 1, next++),
             corvane_snippet_filename_variants(url, 3, next),
         })
        EXPECT_EQ(status, CORVANE_OK);
    std::string out;
    for (corvane_string* each : all)
        out += taken(each) + '|';
    EXPECT_EQ(out, "a\\]|b%20c|b|[a\\]](b%20c \"t\")<!-- {\"preview\":\"true\"} -->|![a\\]](b%20c)|"
                   "[a\\]](b%20c)<!-- {\"embed\":\"true\"} -->|[^1]|[1]: b c|```\nb c\n```\n||   |\n|---||"
                   "b c|b%20c|b c|");
    corvane_string* task = nullptr;
    EXPECT_EQ(corvane_snippet_task(url, 3, 1, &task), CORVANE_OK);
    EXPECT_EQ(taken(task), "- [x] b c");
}

} // namespace
} // namespace Ondo::Test
