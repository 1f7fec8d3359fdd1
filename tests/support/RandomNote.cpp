#include "tests/support/RandomNote.h"

#include <iterator>

namespace Ondo::Test {

namespace {

constexpr std::u16string_view prefixes[] = {u"> ",  u">",   u"- ",   u"* ",  u"1. ",  u"2) ",
                                            u"  ",  u"   ", u"    ", u"\t",  u" ",    u"- [ ] ",
                                            u">\t", u"-\t", u"10. ", u"-  ", u"> > ", u"      "};

/// What makes, ends or changes a block.
constexpr std::u16string_view lines[] = {
    u"",
    u"",
    u"",
    u"",
    u"",
    // headings, breaks, code, quotes, lists
    u"# h",
    u"## h ##",
    u"#",
    u"### i",
    u"===",
    u"---",
    u"--",
    u"-",
    u"=",
    u"***",
    u"```",
    u"````",
    u"~~~",
    u"``` x",
    u"$$",
    u"$$$",
    u"2. x",
    u"1. x",
    u"- b",
    u"+",
    u"[!NOTE]",
    u"[!tip] *t*",
    u"[ ] t",
    // HTML
    u"<div>",
    u"</div>",
    u"<!--",
    u"-->",
    u"<pre>",
    u"</pre>",
    u"<?a",
    u"?>",
    u"<a b=\"c\">",
    u"<!A",
    u"<![CDATA[",
    u"]]>",
    // folds
    u"# f <!-- {\"fold\":true} -->",
    u"## g <!-- {\"fold\":true} -->",
    u"- i <!-- {\"fold\":true} -->",
    u"j <!-- {\"fold\":true} -->",
    // front matter
    u"---",
    u"...",
    u"k: v",
    // definitions
    u"[a]: /u",
    u"[b]: <u v> 't'",
    u"[a]:",
    u"/u",
    u"'t",
    u"t'",
    u"[A\tB]: u \"v",
    u"v\"",
    u"[^a]: *n* [b]",
    u"[^a]:",
    u"[^b]: \u05D0",
    u"[c",
    u"d]: x",
    // tables
    u"| a |",
    u"|---|",
    u"| a | *b* |",
    u"| - | :-: |",
    u"|c||",
    u"| `d\\|e` | [a](f) |",
    u"| [[g\\|h]] | ==i== |",
    u"| \u05D0 | #j k# |",
    u"| l/| m |",
    // right to left
    u"\u05D0\u05D1",
    u"\u0627 b",
    u"12",
};

/// What stands in a line, whole and in parts.
constexpr std::u16string_view inlines[] = {
    u"a",
    u"text",
    u" ",
    u"  ",
    u"\u5B57",
    u"\u05D0",
    u".",
    // emphasis, highlights and their colours
    u"*",
    u"**",
    u"***",
    u"_",
    u"__",
    u"~",
    u"~~",
    u"==",
    u"===",
    u"*a*",
    u"**b**",
    u"_c_",
    u"~d~",
    u"~~e~~",
    u"==f==",
    u"==\U0001F534g==",
    u"==\U0001F7E2",
    u"\U0001F535",
    u"\U0001F7E0",
    u"*a **b*",
    u"**\u300Ch\u300D**\u306E",
    // literals
    u"`",
    u"``",
    u"`a`",
    u"`` ` ``",
    u"\\",
    u"\\*",
    u"\\\\",
    u"&amp;",
    u"&#35;",
    u"&#x41;",
    u"&am",
    u";",
    u"$",
    u"$x$",
    u"$5",
    u"$$",
    u"$a [b",
    // links, images, footnotes
    u"[",
    u"]",
    u"![",
    u"](",
    u"(",
    u")",
    u"[a]",
    u"[b][]",
    u"[c][a]",
    u"![a]",
    u"![d][b]",
    u"[e](f)",
    u"[g](<h i> \"j\")",
    u"![k](l 'm')",
    u"![n](<o>)",
    u"[*n](o*)",
    u"[A b]",
    u"[^a]",
    u"[^b]",
    u"[^",
    // addresses
    u"<a:b>",
    u"<c@d.e>",
    u"a.com",
    u"www.a.zz",
    u"http://b.c/d?e=f",
    u"http://g:80/",
    u"u:p@h.net",
    u"://",
    u"i@j.kl.m",
    u"@",
    u"(http://n.o/(p))",
    // tags and wikilinks
    u"#",
    u"#t",
    u"#t/u.",
    u"#v w#",
    u"#x\\/y",
    u"[[",
    u"]]",
    u"[[a]]",
    u"[[b/c|d]]",
    u"[[e|",
    u"|",
    u"/",
    // HTML, folds and metadata
    u"<",
    u">",
    u"<b>",
    u"</b>",
    u"<b c='d",
    u"<!-- e -->",
    u"<!--",
    u"-->",
    u"<!-- {\"fold\":true} -->",
    u"[f](g)<!-- {\"preview\":\"true\"} -->",
    u"<br>",
    u"<?h?>",
    // colours and arrows
    u"#A1B2C3",
    u"rgb(1, 2, 3)",
    u"hsl(1,2%,3%)",
    u" -> ",
    u" <- ",
    u"->",
    u"<-",
    // names of definitions
    u"[a]: ",
    u"[^a]: ",
};

constexpr std::u16string_view pieces[] = {
    u"a",     u"x",      u" ",          u"\n", u"\n\n", u"\r",      u"\r\n", u"\t", u"    ",
    u"- ",    u"-",      u"> ",         u">",  u"#",    u"# ",      u"`",    u"``", u"```",
    u"~",     u"$",      u"$$",         u"=",  u"*",    u"1.",      u"1. ",  u"|",  u"[",
    u"+ ",    u"\u05D0", u"2",          u"_",  u"[ ] ", u"]",       u"(",    u")",  u"<",
    u"!",     u":",      u"^",          u"\\", u"---",  u"[!NOTE]", u"&",    u"/",  u"{\"fold\":true}",
    u"<div>", u"<!--",   u"\U0001F534",
};

/// Blocks of several lines that seldom come together by chance.
constexpr std::u16string_view blocks[] = {
    u"---\nk: v\n---\n",
    u"---\n...\n",
    u"```\na\n```\n",
    u"$$\na\n\n$$\n",
    u"| a | b |\n|--:|---|\n| *c* | d |\n",
    u"# f <!-- {\"fold\":true} -->\na\n\n## g\n",
    u"- f <!-- {\"fold\":true} -->\n\n  a\n  - b\n",
    u"1. a\n   - f <!-- {\"fold\":true} -->\n     b\n",
    u"[a]: /u\n'two\nlines'\n[b]: v\n",
    u"[a\nb]:\n<c>\n",
    u"> [!NOTE] *t*\n> a\n",
    u"<div>\n*a*\n\n",
    u"<!-- a\n\nb -->\n",
    u"\u05D0 b\n- c\n- [x] \u05D1\n",
    u"*a\nb* ==c\nd==\n",
    u"[a\nb](c\n'd\ne')\n",
    u"`a\nb`\\\nc  \nd\n",
    u"<a\nb='c\nd'>e\n",
};

} // namespace

std::u16string_view construct(std::size_t number) {
    constexpr std::size_t count = std::size(inlines) + std::size(lines) + std::size(blocks);
    number %= count;
    if (number < std::size(inlines)) return inlines[number];
    number -= std::size(inlines);
    return number < std::size(lines) ? lines[number] : blocks[number - std::size(lines)];
}

std::u16string RandomNote::note(std::size_t count) {
    std::u16string text;
    for (std::size_t i = below(count + 1); i > 0; --i) {
        if (below(12) == 0)
            text += blocks[below(std::size(blocks))];
        else
            text += line() + lineEnding();
    }
    if (below(3) == 0) text += line();
    return text;
}

std::u16string RandomNote::piece() {
    switch (below(10)) {
    case 0:
        return {};
    case 1:
        return line();
    case 2:
        return line() + lineEnding();
    case 3:
        return lineEnding() + line();
    case 4:
        return note(5);
    case 5:
    case 6:
        return std::u16string(construct(below(1000)));
    default:
        return std::u16string(pieces[below(std::size(pieces))]);
    }
}

std::u16string RandomNote::slice(std::u16string_view text, std::size_t least) {
    const std::size_t from = text.find(u'\n', below(text.size() - std::min(least, text.size()) + 1));
    const std::size_t start = from == std::u16string_view::npos ? 0 : from + 1;
    const std::size_t end = text.find(u'\n', std::min(start + least + below(least), text.size()));
    return std::u16string(text.substr(start, end == std::u16string_view::npos ? end : end + 1 - start));
}

std::u16string RandomNote::lineEnding() {
    const std::size_t kind = below(16);
    return kind == 0 ? u"\r" : kind == 1 ? u"\r\n" : u"\n";
}

std::u16string RandomNote::line() {
    std::u16string line;
    while (below(3) == 0)
        line += prefixes[below(std::size(prefixes))];
    line += content();
    if (below(12) == 0) line += u"  ";
    return line;
}

std::u16string RandomNote::content() {
    if (below(2) == 0) return std::u16string(lines[below(std::size(lines))]);
    std::u16string text;
    for (std::size_t i = 1 + below(5); i > 0; --i)
        text += inlines[below(std::size(inlines))];
    return text;
}

} // namespace Ondo::Test
