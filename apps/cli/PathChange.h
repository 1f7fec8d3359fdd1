#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/tree/Node.h"
#include "corvane/tree/RuleConfig.h"

namespace Cli {

/// What is to become of the tags or the wikilinks with a path, and of those below it. Paths are encoded: see
/// Ondo::Segments.
struct PathChange {
    Ondo::NodeType type;              ///< of the tags or wikilinks
    std::u16string from;              ///< whatever the case
    std::optional<std::u16string> to; ///< what takes the place of `from` in their paths; null: they go

    /// Whether one of the paths is meant.
    bool isAbout(const std::vector<std::u16string>& paths) const;
    /// Whether some of the paths that a note had are still among those that it has now, though they were to
    /// change. Both are sorted.
    bool isLeftIn(const std::vector<std::u16string>& now, const std::vector<std::u16string>& had) const;

private:
    bool isMeant(std::u16string_view path) const;
};

/// The paths of the tags or wikilinks of a text, each as often as it is there, sorted.
std::vector<std::u16string> pathsIn(std::u16string_view text, Ondo::RuleConfig::RuleSet rules,
                                    Ondo::NodeType type);

} // namespace Cli
