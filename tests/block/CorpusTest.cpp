#include <gtest/gtest.h>

#include <cctype>

#include "corvane/scan/Util.h"
#include "tests/support/Corpus.h"
#include "tests/support/TreeCheck.h"

// Every case of every file under corpus/ gives the expected tree and HTML, however its text came about.

namespace Ondo::Test {
namespace {

std::string replaced(std::string_view text, std::u16string_view from, std::u16string_view to) {
    return Util::utf8(Util::replaceAll(Util::utf16(text), from, to));
}

class Corpus : public testing::TestWithParam<std::filesystem::path> {
protected:
    /// Calls `check` with every case of the file in every rule set.
    template <class Check>
    static void forEachCase(Check check) {
        for (const CorpusCase& c : readCorpus(GetParam())) {
            for (const RuleConfig::RuleSet set : allRuleSets) {
                SCOPED_TRACE(c.place + " in " + nameOf(set));
                check(c, set);
            }
        }
    }
};

TEST_P(Corpus, TreeAndHtml) {
    forEachCase([](const CorpusCase& c, RuleConfig::RuleSet set) {
        const Tree tree(c.text, set);
        EXPECT_EQ(checkTree(tree), "");
        const std::string indented = Util::utf8(tree.toIndentedTree());
        const std::string html = Util::utf8(tree.toHtml());
        EXPECT_EQ(indented, c.trees[set].value_or(indented));
        EXPECT_EQ(html, c.html[set].value_or(html));
    });
}

TEST_P(Corpus, TypedAndDeletedUnitByUnit) {
    forEachCase([](const CorpusCase& c, RuleConfig::RuleSet set) {
        Tree tree(u"", set);
        for (const char16_t unit : c.text) {
            tree.replace({tree.length(), 0}, {&unit, 1});
            ASSERT_EQ(differenceFromFreshParse(tree), "") << visible(tree.markdown());
        }
        while (tree.length() > 0) {
            tree.replace({0, 1}, u"");
            ASSERT_EQ(differenceFromFreshParse(tree), "") << visible(tree.markdown());
        }
    });
}

/// A text's meaning does not depend on which line endings it has.
TEST_P(Corpus, LineEndingsOfAnyKind) {
    forEachCase([](const CorpusCase& c, RuleConfig::RuleSet set) {
        if (c.text.find(u'\r') != std::u16string::npos) return;
        for (const char16_t* const ending : {u"\r\n", u"\r"}) {
            const std::u16string text = Util::replaceAll(c.text, u"\n", ending);
            EXPECT_EQ(replaced(indentedTree(text, set), Util::escape(ending), u"\\n"),
                      indentedTree(c.text, set));
            EXPECT_EQ(replaced(html(text, set), ending, u"\n"), html(c.text, set));
        }
    });
}

TEST_P(Corpus, LastLineNeedsNoEnding) {
    forEachCase([](const CorpusCase& c, RuleConfig::RuleSet set) {
        const std::u16string_view text = c.text;
        if (!text.ends_with(u'\n') || text.ends_with(u"\n\n") || text.ends_with(u"\r\n")) return;
        std::string tree = indentedTree(text, set);
        tree.erase(tree.rfind('\n', tree.size() - 2) + 1);
        EXPECT_EQ(indentedTree(text.substr(0, text.size() - 1), set), tree);
    });
}

std::string nameOfFile(const testing::TestParamInfo<std::filesystem::path>& file) {
    return file.param.stem().string();
}

INSTANTIATE_TEST_SUITE_P(, Corpus, testing::ValuesIn(corpusFiles()), nameOfFile);

/// "AtxHeading" as "atx_heading".
std::string fileNameOf(std::string_view rule) {
    std::string name;
    for (const char c : rule) {
        if (std::isupper(c) != 0 && !name.empty()) name += '_';
        name += static_cast<char>(std::tolower(c));
    }
    return name;
}

template <class Rules>
void expectFiles(const Rules& rules, const char* folder) {
    const std::filesystem::path path = std::filesystem::path(CORVANE_TEST_DIR) / "corpus" / folder;
    for (const auto& rule : rules)
        EXPECT_TRUE(std::filesystem::exists(path / (fileNameOf(rule->type_name()) + ".txt")))
            << rule->type_name();
}

TEST(CorpusFiles, EveryRuleHasOne) {
    const RuleConfig config(RuleConfig::Extended); // has all rules
    expectFiles(config.blockRules.getAllBlockRules(), "block");
    expectFiles(config.inlineRules.getAllInlineRules(), "inline");
}

} // namespace
} // namespace Ondo::Test
