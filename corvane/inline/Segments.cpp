#include "corvane/inline/Segments.h"

#include "corvane/scan/Assert.h"
#include "corvane/scan/Util.h"

namespace Ondo {

namespace {

bool isEscaped(char16_t c) {
    return c == u'\\' || c == u'/';
}

} // namespace

std::u16string Segments::encode(const std::vector<std::u16string>& segments) {
    return encodePrefix(segments, static_cast<std::int64_t>(segments.size()));
}

std::u16string Segments::encodePrefix(const std::vector<std::u16string>& segments, std::int64_t count) {
    CORVANE_ASSERT(count <= static_cast<std::int64_t>(segments.size()), "Segments");
    std::u16string path;
    for (std::int64_t i = 0; i < count; ++i) {
        if (i > 0) path += u'/';
        for (const char16_t c : segments[static_cast<std::size_t>(i)]) {
            if (isEscaped(c)) path += u'\\';
            path += c;
        }
    }
    return path;
}

std::vector<std::u16string> Segments::decode(std::u16string_view path) {
    std::vector<std::u16string> segments;
    if (path.empty()) return segments;
    segments.emplace_back();
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] == u'/') {
            segments.emplace_back();
            continue;
        }
        if (path[i] == u'\\' && i + 1 < path.size() && isEscaped(path[i + 1])) ++i;
        segments.back() += path[i];
    }
    return segments;
}

std::int64_t Segments::segmentCount(std::u16string_view path) {
    return static_cast<std::int64_t>(decode(path).size());
}

bool Segments::isPrefix(std::u16string_view prefix, std::u16string_view path) {
    return isFoldedPrefix(Util::downcaseUnicode(prefix), path);
}

bool Segments::isFoldedPrefix(std::u16string_view foldedPrefix, std::u16string_view path) {
    const std::u16string foldedPath = Util::downcaseUnicode(path);
    if (!foldedPath.starts_with(foldedPrefix)) return false;
    return foldedPath.size() == foldedPrefix.size() || foldedPath[foldedPrefix.size()] == u'/';
}

std::u16string Segments::replacePrefix(std::u16string_view path, std::u16string_view oldPrefix,
                                       std::u16string_view newPrefix) {
    std::vector<std::u16string> segments = decode(newPrefix);
    const std::vector<std::u16string> old = decode(path);
    for (auto i = static_cast<std::size_t>(segmentCount(oldPrefix)); i < old.size(); ++i)
        segments.push_back(old[i]);
    return encode(segments);
}

std::u16string Segments::normalizeSegment(std::u16string_view segment) {
    return std::u16string(Util::trim(segment, Go::whitespace));
}

} // namespace Ondo
