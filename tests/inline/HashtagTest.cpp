#include "corvane/inline/Hashtag.h"

#include <gtest/gtest.h>

#include "corvane/tree/Tree.h"

namespace Ondo::Inline {

namespace {

bool isTag(const std::u16string& text) {
    const Tree tree(text);
    return tree.root->hasDescendantWhere([](const Node* node) { return node->type == ONDO_HASHTAG_NODE; });
}

TEST(Hashtag, HasUpTo500Units) {
    for (const char16_t* const end : {u"# b", u" b"}) {
        EXPECT_TRUE(isTag(u"#" + std::u16string(500, u'a') + end));
        EXPECT_FALSE(isTag(u"#" + std::u16string(502, u'a') + end));
    }
}

} // namespace

} // namespace Ondo::Inline
