#include "corvane/client/QueryConstructs.h"

#include <algorithm>

namespace CVN::Query {

namespace {

constexpr ConstructKeys rows[] = {
    {CVNHeadingAttributeName, CVNHeadingMarkerAttributeName, Neighbours::Heading},
    {CVNFencedCodeAttributeName, CVNFencedCodeMarkerAttributeName, Neighbours::Flat},
    {CVNYamlAttributeName, CVNFencedCodeMarkerAttributeName, Neighbours::Flat},
    {CVNMathBlockAttributeName, CVNMathBlockMarkerAttributeName, Neighbours::Flat},
    {CVNFootNoteAttributeName, CVNFootNoteMarkerAttributeName, Neighbours::Flat},
    {CVNReferenceAttributeName, CVNReferenceMarkerAttributeName, Neighbours::Reference},
    {CVNStrongAttributeName, CVNStrongMarkerAttributeName, Neighbours::Nested},
    {CVNEmphasisAttributeName, CVNEmphasisMarkerAttributeName, Neighbours::Nested},
    {CVNStrikethroughAttributeName, CVNStrikethroughMarkerAttributeName, Neighbours::Nested},
    {CVNUnderlineAttributeName, CVNUnderlineMarkerAttributeName, Neighbours::Nested},
    {CVNCodeAttributeName, CVNCodeMarkerAttributeName, Neighbours::Flat},
    {CVNColorAttributeName, CVNColorMarkerAttributeName, Neighbours::Marked},
    {CVNHighlighterAttributeName, CVNHighlighterMarkerAttributeName, Neighbours::Nested},
    {CVNHashtagAttributeName, CVNHashtagMarkerAttributeName, Neighbours::Flat},
    {CVNHTMLEntityAttributeName, CVNHTMLEntityMarkerAttributeName, Neighbours::Flat},
    {CVNAutoLinkURLAttributeName, CVNAutoLinkMarkerAttributeName, Neighbours::Flat},
    {CVNAutoLinkEmailAttributeName, CVNAutoLinkMarkerAttributeName, Neighbours::Flat},
    {CVNMathSpanAttributeName, CVNMathSpanMarkerAttributeName, Neighbours::Flat},
    {CVNWikiLinkAttributeName, CVNWikiLinkMarkerAttributeName, Neighbours::Flat},
    {CVNLinkAttributeName, CVNLinkMarkerAttributeName, Neighbours::Link},
    {CVNImageAttributeName, CVNImageMarkerAttributeName, Neighbours::Link},
};

const ConstructKeys* rowOf(CVNAttributeName key) {
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&](const ConstructKeys& each) { return each.key == key; });
    return row == std::end(rows) ? nullptr : row;
}

} // namespace

ConstructKeys constructKeys(CVNAttributeName key) {
    const ConstructKeys* const row = rowOf(key);
    return row ? *row : ConstructKeys{key, key, Neighbours::Merged};
}

ConstructKeys constructKeys(CVNAttributeName key, CVNAttributeName markerKey) {
    const ConstructKeys* const row = rowOf(key);
    return {key, markerKey, row ? row->neighbours : Neighbours::Nested};
}

CVNRange constructAt(const CVNAttributedString& text, const ConstructKeys& keys, std::int64_t index) {
    ConstructWalk walk(text, keys, {index, 1}, CVNEnumerationOptions::None);
    return walk.next() ? walk.construct() : CVNRange::notFound();
}

ConstructWalk::ConstructWalk(const CVNAttributedString& text, const ConstructKeys& keys, CVNRange range,
                             CVNEnumerationOptions options)
    : text_(text), runs_(text.runs(keys.key)), markers_(text.runs(keys.markerKey)),
      neighbours_(keys.neighbours), range_(clippedRange(text, range)),
      isReverse_(options == CVNEnumerationOptions::Reverse),
      run_(runs_.firstEndingBehind(isReverse_ ? range_.end() - 1 : range_.location)) {
    if (isReverse_ && (run_ == runs_.size() || runs_[run_].location >= range_.end())) --run_;
    enterRun();
}

bool ConstructWalk::hasRun() const {
    return run_ >= 0 && run_ < runs_.size() && runs_[run_].location < range_.end() &&
           runs_[run_].end > range_.location;
}

/// Constructs that don't nest begin at markers that one can tell at sight, so those outside the range are
/// skipped.
void ConstructWalk::enterRun() {
    rest_ = {};
    if (!hasRun()) return;
    rest_ = CVNRange::between(runs_[run_].location, runs_[run_].end);
    if (neighbours_ == Neighbours::Nested) return;
    if (!isReverse_ && rest_.location < range_.location)
        rest_ = CVNRange::between(startOfConstruct(range_.location), rest_.end());
    if (isReverse_ && rest_.end() > range_.end()) {
        const std::int64_t last = startOfConstruct(range_.end() - 1);
        rest_.length = boundaryBehind(CVNRange::between(last, rest_.end())) - rest_.location;
    }
}

bool ConstructWalk::next() {
    while (hasRun()) {
        if (rest_.length == 0) {
            run_ += isReverse_ ? -1 : 1;
            enterRun();
            continue;
        }
        takeConstruct();
        if (constructInRange().length > 0) return true;
        if (isReverse_ ? construct_.end() <= range_.location : construct_.location >= range_.end()) break;
    }
    return false;
}

void ConstructWalk::takeConstruct() {
    const std::int64_t cut = isReverse_ ? boundaryBefore(rest_) : boundaryBehind(rest_);
    const CVNRange before = CVNRange::between(rest_.location, cut);
    const CVNRange behind = CVNRange::between(cut, rest_.end());
    construct_ = isReverse_ ? behind : before;
    rest_ = isReverse_ ? before : behind;
}

std::int64_t ConstructWalk::startOfConstruct(std::int64_t index) const {
    const AttributeRun& run = runs_[run_];
    if (neighbours_ == Neighbours::Merged) return run.location;
    const std::int64_t first = firstMarkerOfNext(run.location);
    std::int64_t marker = markers_.firstEndingBehind(index);
    if (marker == markers_.size() || markers_[marker].location >= run.end) --marker;
    for (; marker >= first; --marker) {
        const std::int64_t start = boundary(marker, 0);
        if (start <= index) return start;
    }
    return run.location;
}

/// The first marker that could be another construct's than the one at a location. What is left of a footnote
/// definition behind a reference has no marker of its own, and neither has «rgb(1, 2, 3)».
std::int64_t ConstructWalk::firstMarkerOfNext(std::int64_t location) const {
    const bool isUnmarked = neighbours_ == Neighbours::Flat || neighbours_ == Neighbours::Marked;
    return markers_.firstEndingBehind(location) + (isUnmarked ? 0 : 1);
}

/// Where the construct ends that begins at the start of `rest`.
std::int64_t ConstructWalk::boundaryBehind(CVNRange rest) const {
    if (neighbours_ == Neighbours::Merged) return rest.end();
    const std::int64_t first = firstMarkerOfNext(rest.location);
    std::int64_t depth = 0;
    for (std::int64_t marker = markers_.firstEndingBehind(rest.location); marker < markers_.size();
         ++marker) {
        if (markers_[marker].location >= rest.end()) break;
        const std::int64_t cut = marker >= first ? boundary(marker, depth) : CVNNotFound;
        if (cut > rest.location && cut < rest.end()) return cut;
        depth = depthBehind(marker, depth, false);
    }
    return rest.end();
}

/// Where the construct begins that ends at the end of `rest`.
std::int64_t ConstructWalk::boundaryBefore(CVNRange rest) const {
    if (neighbours_ == Neighbours::Merged) return rest.location;
    const std::int64_t first = firstMarkerOfNext(rest.location);
    std::int64_t marker = markers_.firstEndingBehind(rest.end() - 1);
    if (marker == markers_.size() || markers_[marker].location >= rest.end()) --marker;
    std::int64_t depth = 0;
    for (; marker >= first; --marker) {
        depth = depthBehind(marker, depth, true);
        const std::int64_t cut = boundary(marker, depth);
        if (cut > rest.location && cut < rest.end()) return cut;
    }
    return rest.location;
}

/// Where a construct begins between a marker and the one before it, or with the marker; CVNNotFound when none
/// does. `depth` counts what is open before the marker.
std::int64_t ConstructWalk::boundary(std::int64_t marker, std::int64_t depth) const {
    if (neighbours_ == Neighbours::Heading) return headingBoundary(marker);
    const std::int64_t location = markers_[marker].location;
    bool begins = isOpening(marker) || neighbours_ == Neighbours::Marked;
    if (neighbours_ == Neighbours::Link) begins = begins && text_.characterAtIndex(location) != u'(';
    if (neighbours_ == Neighbours::Reference) begins = begins && !opensLabel(marker);
    if (neighbours_ == Neighbours::Nested) begins = begins && depth == 0 && touchesPrevious(marker);
    return begins ? location : CVNNotFound;
}

std::int64_t ConstructWalk::headingBoundary(std::int64_t marker) const {
    const auto isUnderline = [this](std::int64_t at) {
        return markers_[at].value == CVNValue::integer(CVNHeadingSETEXValue);
    };
    if (!isUnderline(marker)) return markers_[marker].location;
    const std::int64_t before = markers_[marker - 1].end;
    if (isUnderline(marker - 1)) return before;
    const std::int64_t end = lineBreakIn(text_, CVNRange::between(before, markers_[marker].location));
    return end == CVNNotFound ? CVNNotFound : behindLineBreak(text_, end);
}

bool ConstructWalk::isOpening(std::int64_t marker) const {
    return markers_[marker].value == CVNValue::integer(CVNOpenMarkerValue);
}

bool ConstructWalk::touchesPrevious(std::int64_t marker) const {
    return markers_[marker - 1].end == markers_[marker].location;
}

/// Of the label of «[text][label]», or of the empty one of «[text][]», which could be the empty text of
/// «[][label]».
bool ConstructWalk::opensLabel(std::int64_t marker) const {
    const auto isBeforeLabel = [this](std::int64_t at) {
        return text_.attribute(CVNReferenceLabelAttributeName, markers_[at].end) != nullptr;
    };
    const auto touches = [this](std::int64_t at) { return at < markers_.size() && touchesPrevious(at); };
    if (isBeforeLabel(marker)) return true;
    const bool isEmptyPair = touches(marker) && touches(marker + 1);
    return isEmptyPair && !(touches(marker + 2) && isBeforeLabel(marker + 2));
}

/// Markers that touch are one run, so what counts is how many characters open or close. A colour that an
/// opening marker has, and no closing one, is beyond ASCII.
std::int64_t ConstructWalk::depthBehind(std::int64_t marker, std::int64_t depth, bool isBackward) const {
    if (neighbours_ != Neighbours::Nested) return 0;
    const AttributeRun& run = markers_[marker];
    std::int64_t count = 0;
    for (std::int64_t at = run.location; at < run.end; ++at)
        count += text_.characterAtIndex(at) < 0x80 ? 1 : 0;
    return std::max<std::int64_t>(0, depth + (isOpening(marker) != isBackward ? count : -count));
}

} // namespace CVN::Query
