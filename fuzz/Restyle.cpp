// Any bytes as a note and edits of it through the façade: the attribute runs of the range that an edit
// returned equal those of a fresh object, and any other range can be annotated, too.
//
// The first byte chooses the rule set, the second how much of what follows is the note. The rest is read as
// edits: offset, length removed, the construct inserted, and a range.

#include "corvane/client/CVNAST.h"
#include "fuzz/Bytes.h"
#include "tests/support/Painted.h"
#include "tests/support/RandomNote.h"

using namespace Ondo;

namespace {

std::int64_t share(Fuzz::Bytes& bytes, std::int64_t length) {
    return bytes.next() * length / 255;
}

std::string difference(const CVNAST& note, CVNRange range) {
    const CVNAST fresh = CVNAST::fromMarkdown(note.markdown());
    const std::string styled = Test::showRuns(note.annotatedStringForRange(range), true);
    const std::string wanted = Test::showRuns(fresh.annotatedStringForRange(range), true);
    return styled == wanted ? "" : "styled " + styled + "fresh " + wanted;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Bytes bytes(data, size);
    CVNAST::ruleSet = bytes.ruleSet();
    const std::size_t noteShare = bytes.next();
    CVNAST note = CVNAST::fromMarkdown(bytes.text(bytes.size() * noteShare / 255));
    for (int edit = 0; edit < 16 && !bytes.isEmpty(); ++edit) {
        const std::int64_t offset = share(bytes, note.markdownLength());
        const std::int64_t removed =
            std::min<std::int64_t>(bytes.next() % 16, note.markdownLength() - offset);
        const CVNRange redraw = note.replaceRange({offset, removed}, Test::construct(bytes.next()));
        Fuzz::stopIf(*note.ast, difference(note, redraw));
        const std::int64_t start = share(bytes, note.markdownLength());
        note.annotatedStringForRange({start, share(bytes, note.markdownLength() - start)});
    }
    return 0;
}
