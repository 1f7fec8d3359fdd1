#include "VaultChange.h"

#include <atomic>
#include <cstdio>

#include <unistd.h>

#include "Canvas.h"
#include "NameArgument.h"
#include "NotePatch.h"
#include "Output.h"
#include "corvane/analysis/CVNHashtag.h"
#include "corvane/analysis/CVNWikiLink.h"
#include "corvane/inline/Segments.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

using Ondo::Go;
using Ondo::Segments;

/// What became of a note.
struct Effect {
    bool isChanged = false;
    bool isLeft = false;    ///< the path is still there
    std::string patch = {}; ///< where nothing is to be written
};

/// A "#" that a name could follow, which those of headings are not.
bool mayHoldTag(std::u16string_view text) {
    for (std::size_t at = text.find(u'#'); at < text.size(); at = text.find(u'#', at + 1))
        if (at + 1 < text.size() && text[at + 1] != u'#' && !Go::unicodeWhitespace(text[at + 1])) return true;
    return false;
}

bool mayHoldWikilink(std::u16string_view text) {
    return text.find(u"[[") != std::u16string_view::npos;
}

/// The changes of all notes.
class Changing {
public:
    Changing(VaultRun& run, const VaultChange& change) : run_(run), change_(change) {}

    Outcome outcome();

private:
    VaultRun& run_;
    const VaultChange& change_;
    std::atomic<bool> isFound_ = false; ///< in a note that may be skipped after all
    std::int64_t changed_ = 0;
    std::string names_; ///< of those that were written, a line each

    Effect changeNote(const VaultFile& file, const VaultNote& note);
    void take(const VaultFile& file, const Effect& effect);
    std::string absence() const;
};

/// On a terminal, signs take the place of control characters.
void printPatch(const std::string& patch) {
    if (isatty(fileno(stdout)) == 0) return writePart(patch);
    const std::u16string text = Ondo::Util::utf16(patch);
    Canvas canvas(false);
    std::u16string_view rest = text;
    while (!rest.empty()) {
        const std::size_t length = rest.find(u'\n');
        canvas.put({}, rest.substr(0, length));
        canvas.endLine(u"\n");
        rest.remove_prefix(length + 1);
    }
    writePart(canvas.text());
}

Effect Changing::changeNote(const VaultFile& file, const VaultNote& note) {
    if (!change_.mayApply(note.text)) return {};
    const auto paths = [&](std::u16string_view text) {
        return pathsIn(text, run_.options.rules, change_.path.type);
    };
    const std::vector<std::u16string> had = paths(note.text);
    if (!change_.path.isAbout(had)) return {};
    isFound_ = true;
    const std::u16string text = change_.apply(note.text);
    Effect effect{text != note.text, change_.path.isLeftIn(paths(text), had)};
    if (!effect.isChanged) return effect;
    if (!run_.options.dryRun) {
        replaceVaultNote(file, note, text);
        return effect;
    }
    requireWritable(file, note);
    effect.patch = notePatch(file.name, bytesOf(note.text, note.hasMark), bytesOf(text, note.hasMark));
    return effect;
}

void Changing::take(const VaultFile& file, const Effect& effect) {
    if (effect.isLeft) run_.unfinished.push_back({file.name, change_.leftover});
    if (!effect.isChanged) return;
    ++changed_;
    if (run_.options.dryRun)
        printPatch(effect.patch);
    else
        names_ += shownName(file.name) + "\n";
}

std::string Changing::absence() const {
    if (isFound_ || run_.listing.files.empty() || run_.notReached > 0) return {};
    return (run_.skipped.empty() ? "no note " : "no other note ") + change_.absence + "\n";
}

Outcome Changing::outcome() {
    forEachNote<Effect>(
        run_, [&](const VaultFile& file, const VaultNote& note) { return changeNote(file, note); },
        [&](const VaultFile& file, const Effect& effect) { take(file, effect); });
    const auto total = static_cast<std::int64_t>(run_.listing.files.size());
    return finished(run_, names_ + absence() + (run_.options.dryRun ? "would change " : "changed ") +
                              std::to_string(changed_) + " of " + countOf(total, "note") + "\n");
}

/// A tag or link as it is written, for a line of text.
std::string shown(std::u16string_view markdown) {
    return shownName(Ondo::Util::utf8(markdown));
}

std::string shownTag(std::u16string_view name) {
    const std::u16string written = CVNHashtag::hashtagStringForTagName(name);
    return shown(written.empty() ? u"#" + std::u16string(name) : written);
}

std::string shownLink(std::u16string_view title) {
    return shown(CVNWikiLink::wikiLinkStringForTitle(title));
}

std::u16string pathOfTag(std::u16string_view name) {
    return Segments::encode(Segments::decode(name));
}

std::u16string pathOfTitle(std::u16string_view title) {
    return CVNWikiLink::encodeSegment(Segments::normalizeSegment(title));
}

} // namespace

Outcome changeNotes(VaultRun& run, const VaultChange& change) {
    return Changing(run, change).outcome();
}

Outcome renameTag(VaultRun& run) {
    const std::u16string from = tagArgument("FROM", run.options.words[0]);
    const std::u16string to = newTagArgument("TO", run.options.words[1]);
    return changeNotes(run,
                       {mayHoldTag,
                        {Ondo::ONDO_HASHTAG_NODE, pathOfTag(from), pathOfTag(to)},
                        [&](std::u16string_view text) { return CVNHashtag::renameTagName(from, to, text); },
                        "has the tag " + shownTag(from),
                        shownTag(from) + " is left in it where " + shownTag(to) + " can't be written"});
}

Outcome removeTag(VaultRun& run) {
    const std::u16string tag = tagArgument("TAG", run.options.words[0]);
    return changeNotes(run, {mayHoldTag,
                             {Ondo::ONDO_HASHTAG_NODE, pathOfTag(tag), std::nullopt},
                             [&](std::u16string_view text) { return CVNHashtag::removeTagName(tag, text); },
                             "has the tag " + shownTag(tag),
                             shownTag(tag) + " is left in it where what is above can't be written"});
}

Outcome renameNote(VaultRun& run) {
    const std::u16string from = titleArgument("OLD", run.options.words[0]);
    const std::u16string to = newTitleArgument("NEW", run.options.words[1]);
    return changeNotes(run,
                       {mayHoldWikilink,
                        {Ondo::ONDO_WIKILINK_NODE, pathOfTitle(from), pathOfTitle(to)},
                        [&](std::u16string_view text) {
                            return CVNWikiLink::updateWikiLinkWithTitle(from, to, false, text);
                        },
                        "links to " + shown(from),
                        shownLink(from) + " is left in it where " + shownLink(to) + " can't be written"});
}

} // namespace Cli
