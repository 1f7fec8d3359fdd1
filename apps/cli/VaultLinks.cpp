#include <map>
#include <span>
#include <tuple>

#include "Canvas.h"
#include "Coloring.h"
#include "NoteNames.h"
#include "Output.h"
#include "ValueJson.h"
#include "Vault.h"
#include "corvane/analysis/CVNWikiLink.h"
#include "corvane/inline/Segments.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

/// The color of what is broken.
constexpr int red = 1;

/// What is kept of a note.
struct NoteLinks {
    std::size_t number; ///< in the listing
    std::u16string title;
    std::vector<CVN::TreeSummary::WikiLink> links;
};

/// A wikilink, and the notes that it leads to.
struct Link {
    std::u16string title;
    std::u16string header;                ///< empty for none
    std::span<const std::size_t> targets; ///< their numbers, ascending; none: it is broken

    bool isBroken() const { return targets.empty(); }
};

/// Links that lead to the same place, in one note.
struct Target {
    Link link; ///< the first one
    std::int64_t count = 0;
};

/// The wikilinks of all notes.
class Links {
public:
    explicit Links(VaultRun& run) : run_(run), notes_(run.listing.files.size()) {}

    void gather();
    void print();
    /// The last line, for people.
    std::string totals() const;

private:
    VaultRun& run_;
    std::vector<NoteLinks> notes_; ///< in order of the listing
    NoteNames names_;
    bool isColored_ = isColored(run_.options.colors);
    std::int64_t linkCount_ = 0;
    std::int64_t brokenCount_ = 0;
    std::int64_t linkingCount_ = 0; ///< notes

    Link linkOf(std::size_t note, const CVN::TreeSummary::WikiLink& link) const;
    void count(const Link& link);
    std::vector<Target> targetsIn(std::size_t note);
    void printText(std::size_t note);
    std::string jsonLine(std::size_t note, const CVN::TreeSummary::WikiLink& wikiLink) const;
    void printJson(std::size_t note);
    std::u16string nameOf(std::size_t note) const { return Ondo::Util::utf16(run_.listing.files[note].name); }
};

/// A note that is skipped still has its file's name: a link to it is not broken.
void Links::gather() {
    const std::vector<VaultFile>& files = run_.listing.files;
    forEachNote<NoteLinks>(
        run_,
        [&](const VaultFile& file, const VaultNote& note) {
            CVN::TreeSummary summary = summaryOf(run_, note);
            const auto number = static_cast<std::size_t>(&file - files.data());
            return NoteLinks{number, std::move(summary.title), std::move(summary.wikiLinks)};
        },
        [&](const VaultFile&, NoteLinks links) {
            const std::size_t number = links.number;
            notes_[number] = std::move(links);
        });
    for (std::size_t note = 0; note < files.size(); ++note) {
        names_.add(note, notes_[note].title);
        names_.add(note, Ondo::Segments::normalizeSegment(titleOfFile(files[note])));
    }
}

/// A link with nothing but a header leads into its own note.
Link Links::linkOf(std::size_t note, const CVN::TreeSummary::WikiLink& link) const {
    std::vector<std::u16string> parts = CVNWikiLink::componentsForWikiLink(link.title);
    parts.resize(2);
    const std::span<const std::size_t> targets =
        parts[0].empty() ? std::span(&notes_[note].number, 1) : std::span(names_.notesOf(parts[0]));
    return {std::move(parts[0]), std::move(parts[1]), targets};
}

void Links::count(const Link& link) {
    ++linkCount_;
    if (link.isBroken()) ++brokenCount_;
}

std::vector<Target> Links::targetsIn(std::size_t note) {
    // A note may be called by its title and by its file's name.
    using Place = std::tuple<std::size_t, std::u16string, std::u16string>;
    const std::size_t several = notes_.size();
    std::map<Place, std::size_t> places;
    std::vector<Target> targets;
    for (const CVN::TreeSummary::WikiLink& wikiLink : notes_[note].links) {
        Link link = linkOf(note, wikiLink);
        count(link);
        const bool isOne = link.targets.size() == 1;
        Place place{isOne ? link.targets[0] : several,
                    isOne ? std::u16string() : Ondo::Util::downcaseUnicode(link.title),
                    Ondo::Util::downcaseUnicode(link.header)};
        const auto [entry, isNew] = places.try_emplace(std::move(place), targets.size());
        if (isNew) targets.push_back({std::move(link)});
        ++targets[entry->second].count;
    }
    return targets;
}

void Links::printText(std::size_t note) {
    Canvas canvas(isColored_);
    canvas.put({Bold}, nameOf(note));
    canvas.endLine(u"\n");
    for (const auto& [link, count] : targetsIn(note)) {
        if (link.isBroken()) canvas.put({Bold, red}, u"  broken ");
        canvas.put({}, link.isBroken() ? u"-> " + link.title : u"  -> ");
        for (const std::size_t target : link.targets)
            canvas.put({}, (target == link.targets[0] ? u"" : u", ") + nameOf(target));
        if (!link.header.empty()) canvas.put({}, u" / " + link.header);
        if (count > 1) canvas.put({Dim}, u" (" + Ondo::Util::toString(count) + u")");
        canvas.endLine(u"\n");
    }
    writePart(canvas.text());
}

std::string Links::jsonLine(std::size_t note, const CVN::TreeSummary::WikiLink& wikiLink) const {
    const Link link = linkOf(note, wikiLink);
    std::string targets;
    for (const std::size_t target : link.targets)
        targets.append(targets.empty() ? "" : ",").append(jsonText(nameOf(target)));
    const std::string header = link.header.empty() ? "" : R"(,"header":)" + jsonText(link.header);
    return R"({"file":)" + jsonText(nameOf(note)) + R"(,"offset":)" + std::to_string(wikiLink.offset) +
           R"(,"title":)" + jsonText(link.title) + header + R"(,"targets":[)" + targets + "]}\n";
}

void Links::printJson(std::size_t note) {
    for (const CVN::TreeSummary::WikiLink& wikiLink : notes_[note].links)
        writePart(jsonLine(note, wikiLink));
}

void Links::print() {
    for (std::size_t note = 0; note < notes_.size(); ++note) {
        if (notes_[note].links.empty()) continue;
        ++linkingCount_;
        if (run_.options.json)
            printJson(note);
        else
            printText(note);
    }
}

std::string Links::totals() const {
    if (run_.options.json) return {};
    return countOf(linkCount_, "link") + " in " + countOf(linkingCount_, "note") + ", " +
           std::to_string(brokenCount_) + " broken\n";
}

} // namespace

Outcome vaultLinks(VaultRun& run) {
    Links links(run);
    links.gather();
    links.print();
    return finished(run, links.totals());
}

} // namespace Cli
