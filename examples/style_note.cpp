// Holds a note, styles it, types into it, styles the range that the edit gave, and asks about its list.
#include <iostream>

#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNQuery.h"
#include "corvane/scan/Util.h"

namespace {

using Ondo::Util::utf8;

void print(const CVNValue& value) {
    if (value.isString())
        std::cout << utf8(value.stringValue());
    else if (const CVNListInfo* item = value.listInfoValue())
        std::cout << utf8(item->description());
    else if (const CVNDictionary* dictionary = value.dictionaryValue())
        std::cout << dictionary->size() << " entries";
    else
        std::cout << value.integerValue();
}

/// What an editor does behind each edit.
void style(const CVNAST& note, CVNRange range) {
    const CVNAttributedString styled = note.annotatedStringForRange(range);
    std::cout << "styling " << range.length << " code units from " << range.location << "\n";
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id) {
        const CVNAttributeName key = CVNAttributeName::withId(id);
        const auto printRun = [key](const CVNValue* value, CVNRange run, bool&) {
            if (!value) return;
            std::cout << "  " << utf8(key.string()) << " {" << run.location << ", " << run.length << "} ";
            print(*value);
            std::cout << "\n";
        };
        styled.enumerateAttribute(key, {0, styled.length()}, CVNEnumerationOptions::None, printRun);
    }
}

void ask(const CVNAST& note) {
    namespace Query = CVN::Query;
    const CVNAttributedString styled = note.annotatedString();
    std::cout << "at 14 there is " << (Query::isRangeInsideTaskList(styled, {14, 1}) ? "a" : "no")
              << " task; all items:\n";
    Query::enumerateUnorderedListInRange(
        styled, {0, styled.length()}, CVNEnumerationOptions::None, [](CVNRange /*list*/, bool&) {},
        [&note](CVNRange text, CVNRange /*marker*/, const CVNListInfo&, bool&) {
            std::cout << utf8(note.markdownIn(text));
        });
}

} // namespace

int main() {
    CVNAST note =
        CVNAST::fromMarkdown(u"# Packing\n\n- [ ] a **compass**\n- [x] socks <!-- {\"pairs\":3} -->\n");
    style(note, {0, note.markdownLength()});
    style(note, note.replaceRange({9, 0}, u"s"));
    ask(note);
}
