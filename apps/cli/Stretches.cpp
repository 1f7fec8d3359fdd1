#include "Stretches.h"

#include <algorithm>

namespace Cli {

std::vector<Edge> edgesOf(const CVNAttributedString& text) {
    std::vector<Edge> edges;
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id) {
        const CVNAttributeName key = CVNAttributeName::withId(id);
        const AttributeRuns& runs = text.runs(key);
        for (std::int64_t i = 0; i < runs.size(); ++i) {
            edges.push_back({runs[i].location, key, &runs[i].value});
            const bool isFollowed = i + 1 < runs.size() && runs[i + 1].location == runs[i].end;
            if (!isFollowed) edges.push_back({runs[i].end, key, nullptr});
        }
    }
    std::sort(edges.begin(), edges.end(),
              [](const Edge& a, const Edge& b) { return a.location < b.location; });
    return edges;
}

} // namespace Cli
