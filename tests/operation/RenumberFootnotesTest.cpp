#include "corvane/operation/OperationRenumberFootnotes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "corvane/operation/FootnoteLabels.h"
#include "corvane/scan/Util.h"
#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace CVN::Operation {
namespace {

using Ondo::LabelEntry;
using Ondo::RuleConfig;
using Ondo::Tree;
using Ondo::Test::Drawn;
using Ondo::Test::expectEach;
using Ondo::Test::visible;

const RenumberFootnotes renumber;

TEST(RenumberFootnotes, InTheOrderOfReferences) {
    expectEach(renumber,
               {
                   {u"[^7] [^x] [^7] [^2]‸", u"[^1] [^x] [^1] [^2]‸"},
                   {u"‸[^7] [^2]\n\n[^2]: b\n[^7]: a\n[^7]: c", u"‸[^1] [^2]\n\n[^2]: b\n[^1]: a\n[^1]: c"},
                   {u"[^2] [^1]⟦[^3]⟧\n\n[^1]: a", u"[^1] [^2]⟦[^3]⟧\n\n[^2]: a"},
                   {u"# [^2‸0]\r\n> - [^02]\r\n\r\n| [^2] |\r\n|---|",
                    u"# [^1‸]\r\n> - [^2]\r\n\r\n| [^3] |\r\n|---|"},
                   {u"a[^9]\n\n[^9]: b [^8]\n[^8]: c‸", u"a[^1]\n\n[^1]: b [^2]\n[^2]: c‸"},
                   {u"a[^9]\n\n> [^9]: b\n>\n> - [^8]‸", u"a[^1]\n\n> [^1]: b\n>\n> - [^2]‸"},
                   {u"[^1] [^2]‸", u""},
                   {u"[^a] `[^3]` [x][^3]‸", u"[^a] `[^3]` [x][^1]‸"},
                   {u"‸", u""},
                   // What stands beside the number stays.
                   {u"> ‸[^\n> 7] [^ &#56; ]\n\n[^7]: a\n[^8]: b", u"> ‸[^\n> 1] [^ 2 ]\n\n[^1]: a\n[^2]: b"},
               });
    expectEach(renumber, {{u"[^7]‸\n\n[^7]: /u", u""}}, RuleConfig::Commonmark);
}

/// Otherwise the reference would come to mean it.
TEST(RenumberFootnotes, PushesOutWhatNothingRefersTo) {
    expectEach(renumber, {
                             {u"[^7]‸\n\n[^1]: a\n[^7]: b\n[^2]: c", u"[^1]‸\n\n[^1?]: a\n[^1]: b\n[^2]: c"},
                             {u"[^1?] [^7]‸\n\n[^1]: a\n[^1?]: b", u"[^1?] [^1]‸\n\n[^1??]: a\n[^1?]: b"},
                         });
}

/// For each reference the number of the definition that it means, and for each definition whether one does.
std::vector<std::ptrdiff_t> pairing(const Tree& tree) {
    const Ondo::LabeledConnections& footnotes = *footnotesOf(tree);
    const std::vector<LabelEntry> definitions = footnotes.definitions();
    std::vector<std::ptrdiff_t> pairs;
    for (const LabelEntry& reference : footnotes.references()) {
        const LabelEntry* const meant = footnotes.lookupFirstDefinition(reference.node->label);
        const auto at = std::find_if(definitions.begin(), definitions.end(), [meant](const LabelEntry& each) {
            return meant && each.node == meant->node;
        });
        pairs.push_back(at - definitions.begin());
    }
    for (const LabelEntry& definition : definitions)
        pairs.push_back(definition.node->connections() > 0 ? 1 : 0);
    return pairs;
}

void expectAscending(const Tree& tree) {
    std::map<std::u16string, std::size_t> seen;
    for (const LabelEntry& reference : footnotesOf(tree)->references()) {
        const std::u16string& label = reference.node->label;
        if (!isNumericLabel(label)) continue;
        const std::size_t number = seen.try_emplace(label, seen.size() + 1).first->second;
        EXPECT_EQ(label, Ondo::Util::toString(static_cast<std::int64_t>(number)));
    }
}

TEST(RenumberFootnotes, KeepsTogetherWhatBelongsTogether) {
    constexpr std::u16string_view labels[] = {u"[^1",  u"[^2",  u"[^3",    u"[^7",
                                              u"[^1?", u"[^ 2", u"[^\n10", u"[^02"};
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        Ondo::Test::RandomNote random(seed);
        std::u16string text = random.note(12);
        for (auto at = text.find(u"[^"); at != text.npos; at = text.find(u"[^", at + 2))
            text.replace(at, 3, labels[random.below(std::size(labels))]);
        const Tree tree(text, seed % 2 ? RuleConfig::Extended : RuleConfig::Simplified);
        const Drawn after = Ondo::Test::applied(Drawn(text, {0, 0}), renumber.run(tree, 0, 0, 0, 0));
        const Tree made(after.text, tree.ruleSet);
        EXPECT_EQ(pairing(made), pairing(tree)) << visible(text) << " to " << visible(after.text);
        expectAscending(made);
        EXPECT_TRUE(renumber.run(made, 0, 0, 0, 0).empty()) << visible(after.text);
    }
}

} // namespace
} // namespace CVN::Operation
