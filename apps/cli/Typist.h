#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Commands.h"
#include "Painted.h"
#include "corvane/client/CVNAST.h"

namespace Cli {

/// What did not hold behind a keystroke: a line for a complaint, and the difference below it.
struct Mismatch {
    std::string complaint;
    std::string difference;
};

/// A note that is typed into, with what an editor would paint of it, and what each keystroke cost.
class Typist {
    CVNAST note_;
    Painted painted_;
    bool check_;
    std::vector<std::int64_t> replacing_;  ///< nanoseconds, one a keystroke
    std::vector<std::int64_t> extending_;  ///< the same
    std::vector<std::int64_t> annotating_; ///< the same
    std::int64_t restyledLength_ = 0;

public:
    explicit Typist(const Options& options);

    const Ondo::Tree& tree() const { return *note_.ast; }

    /// Replaces, annotates what is to be restyled, and paints it. The first two are measured. With the option
    /// `check`, a Mismatch is thrown when the tree or the painting is not that of a fresh note.
    void press(CVNRange range, std::u16string_view text);

    /// What the keystrokes cost and whether all holds in the end, a line each; a complaint if something
    /// doesn't.
    Outcome result() const;

private:
    std::int64_t keystrokes() const { return static_cast<std::int64_t>(replacing_.size()); }
    std::string statistics() const;
    void check(CVNRange restyled) const;
};

} // namespace Cli
