#include <iterator>

#include "capi/Handles.h"
#include "corvane/Version.h"

namespace {

/// By number.
constexpr const char* statusTexts[] = {
    "success",
    "an object, a callback, a name or a place for a result is null",
    "a text is null and has a length, or its length is negative",
    "a number is none of its enumeration or out of bounds",
    "there is nothing of that name",
    "a range or an index does not lie in the text",
    "a batch is pending",
    "the note is not empty",
    "the command takes other arguments",
};

} // namespace

const char* corvane_status_text(corvane_status status) {
    const bool isKnown = status >= 0 && status < std::ssize(statusTexts);
    return isKnown ? statusTexts[status] : "unknown status";
}

const char* corvane_version() {
    return Ondo::version.data();
}

const corvane_unit* corvane_string_units(const corvane_string* string) {
    return string ? string->text.c_str() : nullptr;
}

int64_t corvane_string_length(const corvane_string* string) {
    return string ? std::ssize(string->text) : 0;
}

void corvane_string_destroy(corvane_string* string) {
    delete string;
}

int64_t corvane_strings_count(const corvane_strings* strings) {
    return strings ? std::ssize(strings->texts) : 0;
}

const corvane_unit* corvane_strings_units(const corvane_strings* strings, int64_t index, int64_t* length) {
    const bool isThere = index >= 0 && index < corvane_strings_count(strings);
    const std::u16string* const text = isThere ? &strings->texts[static_cast<std::size_t>(index)] : nullptr;
    if (length) *length = text ? std::ssize(*text) : 0;
    return text ? text->c_str() : nullptr;
}

void corvane_strings_destroy(corvane_strings* strings) {
    delete strings;
}
