#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "corvane/inline/FoldMarker.h"
#include "corvane/inline/LinkBase.h"
#include "tests/client/QueryLog.h"
#include "tests/support/RandomNote.h"
#include "tests/support/RealNotes.h"

namespace Ondo::Test {
namespace {

namespace Query = CVN::Query;

TEST(QueryEnumeration, CallsBack) {
    const struct {
        std::u16string note;
        std::string_view query;
        const char* calls;
    } cases[] = {
        {u"**a** x **b**__c__", "enumerateStrongInRange", "**|a|**; **|b|**; __|c|__"},
        {u"**a __b__ c**__d__", "enumerateStrongInRange", "**|a __b__ c|**; __|d|__"},
        {u"**a⟦b**__c__⟧", "enumerateStrongInRange", "-|b|**; __|c|__"},
        {u"⟦**a⟧b**", "enumerateStrongInRange", "**|a|-"},
        {u"***a******b***", "enumerateEmphasisInRange", "*|**a**|*; *|**b**|*"},
        {u"#a #b c#", "enumerateHashtagInRange", "#|a|-; #|b c|#"},
        {u"```x\na\n```\n\n~~~\n", "enumerateFencedCodeInRange", R"(```|x\na\n|```; ~~~|\n|-)"},
        {u"```", "enumerateFencedCodeInRange", "```||-"},
        {u"- ```\n  a\n```\nb", "enumerateFencedCodeInRange", R"(```|\n  a\n|-; ```|\nb|-)"},
        {u"---\na: b\n---\n```\n```", "enumerateYAMLInRange", R"(---|\na: b\n|---)"},
        {u"---\na: b\n---\n```\n```", "enumerateFencedCodeInRange", R"(---|\na: b\n|---; ```|\n|```)"},
        {u"$$\na\n$$\n$$\nb", "enumerateMathBlockInRange", R"($$|\na\n|$$; $$|\nb|-)"},
        {u"[a](x \"t\")[](<y>)[c]()", "enumerateLinkInRange",
         R"([a](x "t")|[|a|x|"t"|); [](<y>)|[|-|<y>|-|); [c]()|[|c|-|-|))"},
        {u"[![a](x)](y)![b [c](z)](w)", "enumerateImageInRange",
         "![a](x)|![|a|x|-|); ![b [c](z)](w)|![|b [c](z)|w|-|)"},
        {u"[![a](x)](y)![b [c](z)](w)", "enumerateLinkInRange",
         "[![a](x)](y)|[|![a](x)|y|-|); [c](z)|[|c|z|-|)"},
        {u"# a\n# b\nc\n===\nd\n---\n", "enumerateHeadingInRange",
         R"(# a\n|1; # b\n|1; c\n===\n|1; d\n---\n|2)"},
        {u"# a\n# ⟦b\nc\n==⟧=\n", "enumerateHeadingInRange", R"(b\n|1; c\n==|1)"},
        {u"&amp;&amp;", "enumerateHTMLEntitiesInRange", "&amp;|&; &amp;|&"},
        {u"[a][x][b][x]\n\n[x]: u\n", "enumerateReferenceInRange", "[a][x]|1; [b][x]|1"},
        {u"[^1][^2]\n\n[^1]: a [^2] b\n[^2]: c\n", "enumerateFootnotesInRange",
         R"([^1]|1; [^2]|1; [^1]: a |2; [^2]|1;  b\n|2; [^2]: c\n|2)"},
        {u"- a\n  - b\n  1. c\n     - d\n- e\n* f\n", "enumerateUnorderedListInRange",
         R"(list|- a\n  - b\n  1. c\n     - d\n- e\n; - a\n|- |0.0;   - b\n|- |1.0;      - d\n|- |2.0; )"
         R"(- e\n|- |0.1; list|* f\n; * f\n|* |0.0)"},
        {u"- a\n  - b\n  1. c\n     - d\n- e\n* f\n", "enumerateOrderedListInRange",
         R"(list|  1. c\n     - d\n;   1. c\n|1. |1.0)"},
        {u"- a\n  > - b\n  > - c\n\n  d\n", "enumerateUnorderedListInRange",
         R"(list|- a\n  > - b\n  > - c\n\n  d\n; - a\n  > |- |0.0; - b\n|- |2.0; - c\n|- |2.1; \n  d\n|-|0.0)"},
        {u"1. a\n   > - b\n   > - c\n2. d", "enumerateUnorderedListInRange",
         R"(list|- b\n   > - c\n; - b\n|- |2.0; - c\n|- |2.1)"},
        {u"> - a\n>   - ⟦b\n> - c\n>\n> * d⟧", "enumerateUnorderedListInRange",
         R"(list|b\n> - c\n; b\n|-|2.0; - c\n|- |1.1; list|* d; * d|* |1.0)"},
        {u"> a\n> > b\nlazy\n> > c\n\n> d", "enumerateBlockquoteInRange",
         R"(list|> a\n> > b\nlazy\n> > c\n; > a\n|> |0.0; > |> |0.1; > b\nlazy\n|> |1.0; > |> |0.2; )"
         R"(> c\n|> |1.1; list|> d; > d|> |0.0)"},
        {u"- > a\n  > b\n> c", "enumerateBlockquoteInRange",
         R"(list|> a\n  > b\n; > a\n|> |1.0;   > b\n|> |1.1; list|> c; > c|> |0.0)"},
        {u"| a |  |\n|:-:|--|\n", "enumerateTableInRange",
         "table|1|2;  a |a|1|cell;   |-|4|cell; :-:|:-:|1|delimiter; --|--|4|delimiter"},
        {u"==🔴a ==b====d==", "enumerateHighlighterInRange",
         "==🔴|a ==b|====; color|==🔴a |1; color|==b==|0; color|==|1; ==🔴|1|3; ==|1|4; ==|2|4; ==|2|3"},
    };
    for (const auto& c : cases) {
        const QueriedNote note = queried(c.note);
        QueryLog log(note.text);
        log.run(c.query, note.selection.location < 0 ? wholeText : note.selection, forwards);
        EXPECT_EQ(log.joined(), c.calls) << visible(c.note) << ' ' << c.query;
    }
}

/// Random notes, and real ones.
void forEachNote(const std::function<void(const std::u16string&)>& check) {
    RandomNote random(5);
    for (int i = 0; i < 1500; ++i)
        check(random.note(12));
    for (const RealNote& note : realNotes(8000))
        check(Util::utf16(note.text));
}

bool isReference(const Node* link) {
    return static_cast<const Inline::LinkBaseNode*>(link)->isReference;
}

/// Pictures in pictures, references in pictures and pictures by reference in links have no attributes.
bool hidesItself(const Node* node) {
    if (node->type == ONDO_IMAGE_NODE)
        return node->hasAncestorOfType(ONDO_IMAGE_NODE) ||
               (isReference(node) && node->hasAncestorOfType(ONDO_LINK_NODE));
    return node->type == ONDO_LINK_NODE && isReference(node) && node->hasAncestorOfType(ONDO_IMAGE_NODE);
}

bool isShown(const Node* node) {
    const bool isLink = node->type == ONDO_LINK_NODE || node->type == ONDO_IMAGE_NODE;
    return !(isLink && isReference(node)) && !hidesItself(node) && !node->hasAncestorWhere(hidesItself);
}

/// The nodes of a type that lie in no other one.
std::string outermostNodes(const Tree& tree, NodeType type) {
    std::string nodes;
    std::int64_t end = 0;
    for (auto at = tree.root->begin(); at.node; at.nextInSequence()) {
        if (at.node->type != type || !isShown(at.node) || at.offset < end) continue;
        end = at.offset + at.node->charCount;
        nodes += visible(tree.markdownIn({at.offset, at.node->charCount})) + '\n';
    }
    return nodes;
}

TEST(QueryEnumeration, FindsEveryNode) {
    const struct {
        CVNAttributeName key;
        NodeType type;
    } kinds[] = {
        {CVNStrongAttributeName, ONDO_STRONG_NODE},
        {CVNEmphasisAttributeName, ONDO_EMPHASE_NODE},
        {CVNStrikethroughAttributeName, ONDO_STRIKETHROUGH_NODE},
        {CVNUnderlineAttributeName, ONDO_UNDERLINE_NODE},
        {CVNHighlighterAttributeName, ONDO_HIGHLIGHT_NODE},
        {CVNCodeAttributeName, ONDO_CODE_SPAN_NODE},
        {CVNHashtagAttributeName, ONDO_HASHTAG_NODE},
        {CVNMathSpanAttributeName, ONDO_MATH_SPAN_NODE},
        {CVNWikiLinkAttributeName, ONDO_WIKILINK_NODE},
        {CVNHTMLEntityAttributeName, ONDO_ENTITY_NODE},
        {CVNLinkAttributeName, ONDO_LINK_NODE},
        {CVNImageAttributeName, ONDO_IMAGE_NODE},
    };
    forEachNote([&](const std::u16string& note) {
        const CVNAST ast = CVNAST::fromMarkdown(note);
        const CVNAttributedString text = ast.annotatedString();
        for (const auto& kind : kinds) {
            std::string found;
            const auto add = [&](CVNRange range, const CVNValue&, bool&) {
                found += part(text, range) + '\n';
            };
            Query::forEachConstruct(text, Query::constructKeys(kind.key), wholeText, forwards, add);
            ASSERT_EQ(found, outermostNodes(*ast.ast, kind.type)) << visible(note);
        }
    });
}

TEST(QueryEnumeration, FindsEveryHeading) {
    forEachNote([](const std::u16string& note) {
        const CVNAST ast = CVNAST::fromMarkdown(note);
        const CVNAttributedString text = ast.annotatedString();
        std::string found;
        Query::enumerateHeadingInRange(
            text, wholeText, forwards, [&](CVNRange range, const CVNValue& level, bool&) {
                found += std::to_string(range.end()) + ':' + std::to_string(level.integerValue()) + ' ';
            });
        std::string headings;
        for (auto at = ast.ast->root->begin(); at.node; at.nextInSequence())
            if (const std::int64_t level = Inline::FoldMarkerNode::headingLevel(at.node); level > 0)
                headings += std::to_string(at.end()) + ':' + std::to_string(level) + ' ';
        ASSERT_EQ(found, headings) << visible(note);
    });
}

TEST(QueryEnumeration, IsTheSameBackwardsAndInParts) {
    forEachNote([](const std::u16string& note) {
        const CVNAttributedString text = annotated(note);
        for (const std::string_view name : enumerationNames()) {
            QueryLog forth(text);
            QueryLog back(text);
            forth.run(name, wholeText, forwards);
            back.run(name, wholeText, backwards);
            ASSERT_EQ(forth.calls.size(), back.calls.size()) << name << ' ' << visible(note);
            if (Query::wrappedQuery(name) || Query::linkQuery(name) || Query::runQuery(name)) {
                std::reverse(back.calls.begin(), back.calls.end());
                ASSERT_EQ(forth.joined(), back.joined()) << name << ' ' << visible(note);
            }
            for (std::size_t limit = 1; limit <= std::min<std::size_t>(forth.calls.size(), 4); ++limit) {
                QueryLog stopped(text, limit);
                stopped.run(name, wholeText, forwards);
                ASSERT_EQ(stopped.calls.size(), limit) << name;
                ASSERT_EQ(stopped.calls.back(), forth.calls[limit - 1]) << name;
            }
        }
    });
}

} // namespace
} // namespace Ondo::Test
