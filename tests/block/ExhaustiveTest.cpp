#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <tuple>

#include "tests/support/TreeCheck.h"

// All short texts over a small alphabet, and every insertion and deletion of one character in them.
// CORVANE_EXHAUSTIVE=long makes the texts one character longer.

namespace Ondo::Test {
namespace {

constexpr std::u16string_view alphabet = u"*->`#a \t\n";

std::size_t extraLength() {
    const char* const mode = std::getenv("CORVANE_EXHAUSTIVE");
    return mode && std::string(mode) == "long" ? 1 : 0;
}

/// Calls `visit` with each text of at most `length` characters that starts with `prefix`.
template <class Visit>
void visitTexts(std::u16string& prefix, std::size_t length, const Visit& visit) {
    visit(prefix);
    if (prefix.size() >= length) return;
    for (const char16_t c : alphabet) {
        prefix += c;
        visitTexts(prefix, length, visit);
        prefix.pop_back();
    }
}

class Hash {
public:
    void add(std::int64_t number) {
        value_ = (value_ ^ static_cast<std::uint64_t>(number)) * 0x100000001B3;
        value_ ^= value_ >> 32;
    }
    void addText(std::u16string_view text) {
        for (const char16_t unit : text)
            add(unit);
    }
    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

/// One number for all that two equal trees have in common: shape, lengths, makers, data, HTML.
std::uint64_t fingerprint(const Tree& tree) {
    Hash hash;
    for (Node::Iterator at = tree.root->begin(); at.node; ++at) {
        hash.add(at.level);
        hash.add(at->type);
        hash.add(at->charCount);
        hash.add(at->lineCount);
        hash.add(static_cast<std::int64_t>(at->direction));
        hash.add(at->maker ? at->maker->treeLevel() * 1000 + at->maker->type : -1);
        if (at->isBlock()) hash.addText(at->toIndentedTree());
    }
    hash.addText(tree.toHtml());
    return hash.value();
}

/// A tree that holds one text after the other. From an empty text every text is parsed afresh.
class FreshTree {
public:
    explicit FreshTree(RuleConfig::RuleSet set) : tree_(u"", set) {}

    Tree& of(std::u16string_view text) {
        tree_.replaceAll(u"");
        tree_.replaceAll(text);
        return tree_;
    }

private:
    Tree tree_;
};

using Parameter = std::tuple<RuleConfig::RuleSet, std::size_t>; ///< the latter is a first character's number

class Exhaustive : public testing::TestWithParam<Parameter> {
protected:
    /// The empty text comes with the first character.
    template <class Visit>
    static void forEachText(std::size_t length, const Visit& visit) {
        const std::size_t first = std::get<1>(GetParam());
        if (first == 0) visit(u"");
        std::u16string text(1, alphabet[first]);
        visitTexts(text, length, visit);
    }
};

TEST_P(Exhaustive, TextsAreTiled) {
    FreshTree fresh(std::get<0>(GetParam()));
    forEachText(5 + extraLength(), [&](std::u16string_view text) {
        if (HasFailure()) return;
        ASSERT_EQ(checkTree(fresh.of(text)), "") << '"' << visible(text) << '"';
    });
}

/// Deletions are insertions taken back.
TEST_P(Exhaustive, EditsGiveTheTreeOfAFreshParse) {
    const RuleConfig::RuleSet set = std::get<0>(GetParam());
    FreshTree edited(set);
    FreshTree fresh(set);
    const auto expectFresh = [&](const Tree& tree, const std::string& edit) {
        ASSERT_EQ(checkTree(tree), "") << edit;
        ASSERT_EQ(fingerprint(tree), fingerprint(fresh.of(tree.markdown())))
            << edit << ": " << differenceFromFreshParse(tree);
    };
    forEachText(4 + extraLength(), [&](std::u16string_view text) {
        if (HasFailure()) return;
        Tree& tree = edited.of(text);
        for (std::int64_t at = 0; at <= tree.length(); ++at) {
            for (const char16_t& c : alphabet) {
                const std::string edit =
                    visible(text) + ", " + visible({&c, 1}) + " at " + std::to_string(at);
                tree.replace({at, 0}, {&c, 1});
                expectFresh(tree, edit);
                tree.replace({at, 1}, u"");
                expectFresh(tree, edit + ", deleted");
            }
        }
    });
}

std::string nameOfParameter(const testing::TestParamInfo<Parameter>& parameter) {
    constexpr const char* names[] = {"asterisk", "dash",  "angle", "backtick", "hash",
                                     "a",        "space", "tab",   "newline"};
    return std::string(nameOf(std::get<0>(parameter.param))) + "_" + names[std::get<1>(parameter.param)];
}

INSTANTIATE_TEST_SUITE_P(, Exhaustive,
                         testing::Combine(testing::ValuesIn(allRuleSets),
                                          testing::Range(std::size_t{0}, alphabet.size())),
                         nameOfParameter);

} // namespace
} // namespace Ondo::Test
