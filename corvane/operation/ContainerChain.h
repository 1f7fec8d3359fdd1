#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "corvane/operation/LinePrefix.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// The items and quotes that a line belongs to, outermost first, and where their part of the line ends: in
/// front of that a new block stands outside of them, behind it inside.
///
/// A lazy line, which lacks what a container wants of its lines, counts as outside of that container. Good
/// until the next edit.
class ContainerChain {
public:
    /// `line` is a node that starts where the line does.
    ContainerChain(const Ondo::Tree& tree, const Ondo::Node::Iterator& line);

    /// Drops the containers that another line does not belong to. The line is given by a node that starts
    /// where it does.
    void keepThoseOf(const Ondo::Tree& tree, const Ondo::Node::Iterator& line);
    /// Drops the containers inside of one that is in the chain.
    void keepDownTo(const Ondo::Node* container);

    /// Behind what the containers have on the line.
    std::int64_t offset() const { return lineOffset_ + static_cast<std::int64_t>(innermost().end); }
    /// How many blanks are missing there: an item's marker or an empty line may be all that the line has.
    std::int64_t missingBlanks() const { return innermost().missing; }
    /// What a further line begins with, to belong to all of them: blanks and the markers of the quotes.
    const std::u16string& furtherPrefix() const { return innermost().further; }

    /// How far the containers reach on another line that belongs to all of them, from its start.
    std::int64_t reachOn(const Ondo::Tree& tree, const Ondo::Node::Iterator& line) const;

private:
    struct Link {
        const Ondo::Node* container;
        std::int64_t width; ///< columns that an item wants of its further lines
    };
    /// How far some of the containers, from the outermost on, reach on a line.
    struct Reach {
        std::size_t end = 0;
        std::size_t markers = 0; ///< passed
        std::int64_t column = 0; ///< from which what is inside is reckoned
        std::int64_t missing = 0;
        std::u16string further;
    };

    const Reach& innermost() const { return reaches_.back(); }
    std::vector<Reach> reachesOn(const LinePrefix& line) const;
    bool pass(const LinePrefix& line, const Link& link, Reach& reach) const;
    bool passTab(const LinePrefix& line, std::int64_t width, Reach& reach) const;
    static void passQuote(const LinePrefix& line, const LinePrefix::Marker& marker, Reach& reach);
    static void passItemMarker(const LinePrefix& line, const LinePrefix::Marker& marker, const Link& link,
                               Reach& reach);
    static void passBlanks(const LinePrefix& line, std::int64_t width, Reach& reach);
    static const LinePrefix::Marker* nextMarker(const LinePrefix& line, const Reach& reach);
    void keep(std::size_t count);

    std::int64_t lineOffset_;
    bool tabContinuesItem_; ///< one tab is enough of an indentation
    std::vector<Link> links_;
    std::vector<Reach> reaches_; ///< one more than links
};

} // namespace CVN::Operation
