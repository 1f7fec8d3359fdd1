#include <gtest/gtest.h>

#include <string>

#include "corvane/operation/OperationIndent.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"
#include "tests/support/Nodes.h"

namespace CVN::Operation {
namespace {

using Ondo::Tree;

/// The note with every space that is indentation written as its width, as in "- a\n{2}b".
std::u16string withWidths(const Tree& tree) {
    std::u16string out;
    for (const Ondo::Test::Placed& placed : Ondo::Test::placedNodes(tree.root.get())) {
        if (placed.node->firstChild) continue;
        const std::u16string_view text = tree.markdownIn({placed.offset, placed.node->charCount});
        const auto [isIndentation, width] = Indent::spaceAsIndentation(placed.node, text);
        if (isIndentation)
            out += u'{' + Ondo::Util::toString(width) + u'}';
        else
            out += text;
    }
    return out;
}

TEST(SpaceAsIndentation, OfSmallNotes) {
    const struct {
        std::u16string note;
        std::u16string expected;
    } cases[] = {
        // Only what stands in an item or quote is indented.
        {u"  a\n   b\n", u"  a\n   b\n"},
        {u"    a\n", u"    a\n"},
        {u"  # h\n", u"  # h\n"},
        {u"   \na\n", u"   \na\n"},
        {u"| a |\n|---|\n  | 1 |\n", u"| a |\n|---|\n  | 1 |\n"},
        // Items: before the marker, behind it, and on further lines.
        {u"  - a\n", u"{2}- a\n"},
        {u"-   a\n", u"- {2}a\n"},
        {u"1.  a\n    b\n", u"1. {1}a\n{4}b\n"},
        {u"- [ ]  a\n", u"- [ ] {1}a\n"},
        {u"- a\n  - b\n    c\nd\n   e\n", u"- a\n{2}- b\n{4}c\nd\n{3}e\n"},
        {u"- a\n\n  b\n", u"- a\n\n{2}b\n"},
        {u"- a  \n  b\\\n   c", u"- a  \n{2}b\\\n{3}c"},
        {u"- # a #  \n  ===\n", u"- # a #  \n{2}===\n"},
        {u"- a\n\n   ***\n", u"- a\n\n{3}***\n"},
        // Quotes
        {u"> a\n>  b\n", u"> a\n> {1}b\n"},
        {u"  > a\n  > b  \n  >  c\n", u"{2}> a\n{2}> b  \n{2}> {1}c\n"},
        {u"> - a\n>   - b\n>     c\n", u"> - a\n> {2}- b\n> {4}c\n"},
        {u"> -   > a\n", u"> - {2}> a\n"},
        {u"> [!note] a\n>  b\n", u"> [!note] a\n> {1}b\n"},
        // Blank lines: blanks that begin one, or stand before a marker, but not what follows the last marker.
        {u"- a\n   \n  b\n", u"- a\n{3}\n{2}b\n"},
        {u"-   \n  a\n", u"-   \n{2}a\n"},
        {u"> a\n>   \n", u"> a\n>   \n"},
        {u"> > a\n>  >  \n", u"> > a\n> {1}>  \n"},
        // Code and math, with what the first line between the fences has.
        {u"- ```\n  a\n    b\n\n  ```\n", u"- ```\n{2}a\n{2}  b\n\n{2}```\n"},
        {u"- $$\n  a\n  b\n  $$\n", u"- $$\n{2}a\n{2}b\n{2}$$\n"},
        {u"> ```\n>  a\n>  ```\n", u"> ```\n>  a\n> {1}```\n"},
        {u">  ```\n>  a\n", u"> {1}```\n> {1}a\n"},
        {u"-     a\n       b\n", u"- {4}a\n{6} b\n"},
        // Inside inlines and definitions a line begins as well, but words, cells and labels do not.
        {u"- **a\n  b** `c\n  d`\n", u"- **a\n{2}b** `c\n{2}d`\n"},
        {u"- <a\n   b>\n", u"- <a\n{3}b>\n"},
        {u"- [ a\n  b ](  c\n  \"d\n  e\"  )\n", u"- [ a\n{2}b ](  c\n{2}\"d\n{2}e\"  )\n"},
        {u"- [a]:\n    /b\n    \"c\"\n", u"- [a]:\n{4}/b\n{4}\"c\"\n"},
        {u"- [^1]:  a\n", u"- [^1]:  a\n"},
        {u"- ` a `  b  \n", u"- ` a `  b  \n"},
        // Columns from the start of the space.
        {u"-\ta\n\tb\n", u"-{4}a\n{4}b\n"},
        {u"- a\n \t b\n\t\tc\n", u"- a\n{5}b\n{8}c\n"},
    };
    for (const auto& c : cases) {
        const Tree tree(c.note);
        const std::u16string actual = withWidths(tree);
        EXPECT_EQ(actual, c.expected) << Ondo::Util::utf8(Ondo::Util::escape(c.note)) << " gives "
                                      << Ondo::Util::utf8(Ondo::Util::escape(actual)) << ", not "
                                      << Ondo::Util::utf8(Ondo::Util::escape(c.expected));
    }
}

} // namespace
} // namespace CVN::Operation
