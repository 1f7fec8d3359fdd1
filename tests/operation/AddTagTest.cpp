#include "corvane/operation/OperationAddTag.h"

#include <gtest/gtest.h>

#include "corvane/operation/OperationAddTagAtTop.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

using CVN::Operation::AddTag;
using CVN::Operation::AddTagAtTop;

TEST(AddTagTest, AtTheEndAndBeforeFootnotes) {
    expectEach(AddTag(u"n"), {
                                 {u"‸", u"#n‸"},
                                 {u"\n\n‸", u"#n\n\n‸"},
                                 {u"‸a", u"‸a\n\n#n"},
                                 {u"‸a  \n\n\n", u"‸a\n\n#n  \n\n\n"},
                                 {u"‸a\r\n", u"‸a\n\n#n\r\n"},
                                 {u"‸- a\n- \n", u"‸- a\n- \n\n#n\n"},
                                 {u"‸> a\n> ", u"‸> a\n> \n\n#n"},
                                 {u"‸| a |\n|---|\n", u"‸| a |\n|---|\n\n#n\n"},
                                 {u"‸---\na: b\n---\n", u"‸---\na: b\n---\n\n#n\n"},
                                 // tags go on in their line
                                 {u"‸a\n\n#x #y z#  \n", u"‸a\n\n#x #y z# #n  \n"},
                                 {u"‸# h #x", u"‸# h #x #n"},
                                 {u"‸#x.", u"‸#x.\n\n#n"},
                                 {u"‸**#x**", u"‸**#x**\n\n#n"},
                                 // footnotes stay last and on their own
                                 {u"‸a\n\n[^1]: b\n", u"‸a\n\n#n\n\n[^1]: b\n"},
                                 {u"‸# a\n[^1]: b\n", u"‸# a\n\n#n\n\n[^1]: b\n"},
                                 {u"‸#x\n\n[^1]: b\n\n[^2]: c", u"‸#x #n\n\n[^1]: b\n\n[^2]: c"},
                                 {u"[^1]: b‸", u"#n\n\n[^1]: b‸"},
                                 {u"\n[^1]: b‸", u"#n\n\n[^1]: b‸"},
                                 {u"\n\n[^1]: b‸", u"#n\n\n\n[^1]: b‸"},
                                 {u"‸---\na: b\n---\n[^1]: c", u"‸---\na: b\n---\n\n#n\n\n[^1]: c"},
                                 // below what is left open it would be no tag
                                 {u"‸a\n```\nb\n", u"‸a\n\n#n\n```\nb\n"},
                                 {u"```\nb‸", u"#n\n\n```\nb‸"},
                                 {u"‸<!-- b", u"#n\n\n‸<!-- b"},
                             });
    expectEach(AddTag(u"a b"), {{u"‸x", u"‸x\n\n#a b#"}, {u"‸#x", u"‸#x #a b#"}});
    expectEach(AddTag(u"b`c"), {{u"‸`x", u"‸`x\n\n#b`c"}, {u"‸`x #t", u"‸`x #t #b&grave;c"}});
    expectEach(AddTag(u"C:\\x/a\\"), {{u"‸x", u"‸x\n\n#C:\\\\x/a\\\\#"}});
    expectEach(AddTag(u"a//b"), {{u"x‸", u""}});
}

TEST(AddTagAtTopTest, BelowTheTitle) {
    expectEach(AddTagAtTop(u"n"), {
                                      {u"‸", u"‸\n#n\n"},
                                      {u"---\na: b\n---\n‸", u"---\na: b\n---\n‸\n#n\n"},
                                      {u"‸a", u"‸a\n#n"},
                                      {u"‸a\n", u"‸a\n#n\n"},
                                      {u"‸# a\n\nb\n", u"‸# a\n#n\n\nb\n"},
                                      {u"‸a\nb\n", u"‸a\n#n\nb\n"},
                                      {u"‸---\na: b\n---\n\n# a\nb\n", u"‸---\na: b\n---\n\n# a\n#n\nb\n"},
                                      {u"‸\n", u"‸\n#n\n"},
                                      {u"‸# a\n#x \nb", u"‸# a\n#x #n \nb"},
                                      {u"‸# a\r\n\r\n#x #y z#\r\nb", u"‸# a\r\n\r\n#x #y z# #n\r\nb"},
                                      {u"‸# a\n\n\n#x", u"‸# a\n#n\n\n\n#x"},
                                      // behind a block that a line would break up
                                      {u"‸a\n===\nb\n", u"‸a\n===\n#n\nb\n"},
                                      {u"‸a\n===\n#x\n", u"‸a\n===\n#x #n\n"},
                                      {u"‸- a\n- b\n\nc", u"‸- a\n- b\n\n#n\n\nc"},
                                      {u"‸> a", u"‸> a\n\n#n"},
                                      {u"‸| a |\n|---|\n| b |\n", u"‸| a |\n|---|\n| b |\n\n#n\n"},
                                      {u"‸```\na\n```\nb", u"‸```\na\n```\n#n\nb"},
                                      {u"```\na‸", u"\n#n\n```\na‸"},
                                      // above what would not stay what it is
                                      {u"‸# a\n    b\n", u"‸# a\n#n\n\n    b\n"},
                                      {u"‸# a\n---\n", u"‸# a\n#n\n\n---\n"},
                                      {u"‸# a\n===\n", u"‸# a\n#n\n\n===\n"},
                                      {u"‸# a\n[b]: c\n", u"‸# a\n#n\n\n[b]: c\n"},
                                      {u"‸# a\n- b\n", u"‸# a\n#n\n- b\n"},
                                      {u"[^1]: b‸", u"#n\n\n[^1]: b‸"},
                                      {u"‸<!-- a -->\n# b\n", u"‸<!-- a -->\n#n\n# b\n"},
                                      {u"‸<p>\n\nb\n", u"‸<p>\n\n#n\n\nb\n"},
                                  });
    expectEach(AddTagAtTop(u"us$"), {{u"‸$5\nx", u"‸$5\n#us$#\nx"}, {u"‸5\n$x #t", u"‸5\n$x #t #us\\$#"}});
}

/// One paragraph more, or none: then the tag has joined a block.
bool isOnlyBlockAdded(const Tree& before, const Tree& after) {
    const auto next = [](const Node* block) {
        while (block && block->type == ONDO_BLANK_LINE_NODE)
            block = block->nextSibling;
        return block;
    };
    const Node* old = next(before.root->firstChild);
    bool isAdded = false;
    for (const Node* now = next(after.root->firstChild); now; now = next(now->nextSibling)) {
        const bool isSame = old && old->type == now->type;
        if (!isSame && (isAdded || now->type != ONDO_PARAGRAPH_NODE)) return false;
        if (isSame)
            old = next(old->nextSibling);
        else
            isAdded = true;
    }
    return !old;
}

TEST(AddTagTest, NoOtherBlockChanges) {
    RandomNote random(613);
    for (int round = 0; round < 1500; ++round) {
        const std::u16string text = random.note(6);
        const Tree before(text);
        const Drawn after = applied(Drawn(text, Range{0, 0}), AddTag(u"n m").run(before, 0, 0, 0, 0));
        ASSERT_TRUE(isOnlyBlockAdded(before, Tree(after.text))) << visible(text) << '\n'
                                                                << visible(after.text);
    }
}

} // namespace

} // namespace Ondo::Test
