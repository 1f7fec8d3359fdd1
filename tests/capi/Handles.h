#pragma once

#include "corvane.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

/// Handles of the C API that destroy themselves, and short ways to make them.

namespace Ondo::Test {

struct Destroy {
    void operator()(corvane_note* note) const { corvane_note_destroy(note); }
    void operator()(corvane_annotation* annotation) const { corvane_annotation_destroy(annotation); }
    void operator()(corvane_results* results) const { corvane_results_destroy(results); }
    void operator()(corvane_string* string) const { corvane_string_destroy(string); }
};
template <class T>
using Handle = std::unique_ptr<T, Destroy>;
using Note = Handle<corvane_note>;
using Annotation = Handle<corvane_annotation>;
using Results = Handle<corvane_results>;

inline Note noteOf(std::u16string_view text, corvane_rule_set rules = CORVANE_RULES_EXTENDED) {
    corvane_note* note = nullptr;
    EXPECT_EQ(corvane_note_create_with_rules(rules, &note), CORVANE_OK);
    EXPECT_EQ(corvane_note_replace_all(note, text.data(), std::ssize(text), nullptr), CORVANE_OK);
    return Note(note);
}
inline std::u16string textOf(const Note& note) {
    const corvane_unit* text = nullptr;
    std::int64_t length = -1;
    EXPECT_EQ(corvane_note_text(note.get(), &text, &length), CORVANE_OK);
    return {text, static_cast<std::size_t>(length)};
}
inline Annotation annotate(const Note& note, std::int64_t location, std::int64_t length) {
    corvane_annotation* annotation = nullptr;
    EXPECT_EQ(corvane_note_annotate(note.get(), location, length, &annotation), CORVANE_OK);
    return Annotation(annotation);
}
/// What a command that takes no arguments, or the given one, answers with about a range that is selected.
inline Results runCommand(const Note& note, corvane_command command, corvane_range at,
                          const corvane_argument* argument = nullptr) {
    corvane_results* results = nullptr;
    EXPECT_EQ(corvane_note_run_command(note.get(), command, at.location, at.length, at.location, at.length,
                                       argument, argument ? 1 : 0, &results),
              CORVANE_OK);
    return Results(results);
}

} // namespace Ondo::Test
