#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNTextOperation.h"

namespace Ondo::Test {

// Commands and corrections as random tests and fuzz targets run them, and what must hold of each.

/// Where one is asked to work, and what it is given there.
struct Place {
    CVNRange range;
    CVNRange selection;
    std::u16string text = {};                 ///< that is typed
    std::array<std::u16string, 3> texts = {}; ///< arguments
    bool flag = false;
};

/// A command or correction with all that it takes but the place.
struct Act {
    using Results = std::vector<CVNASTOperationResult>;

    std::string name;
    std::function<Results(const CVNAST& note, const Place& place)> run;
    const CVNTextCorrection* correction = nullptr;

    /// Whether it is asked about a text that takes the range's place.
    bool isOfEdit() const { return correction && !correction->isOfSelection; }
};

/// Every row of the tables, with each number that its parameter can be, and what only hosts make.
std::vector<Act> allActs();

/// What became of an act.
struct Deed {
    Act::Results results;
    std::string fault; ///< in words; empty when there is none
};

/// Runs an act and makes its results. They must lie in the text, leave a selection in it that splits no
/// surrogate pair that was whole, and make of the note what they make of a plain text; the run itself must
/// change nothing.
Deed carryOut(const Act& act, CVNAST& note, const Place& place);

std::string show(CVNRange at);
std::string show(const Place& place);
std::string show(const Act::Results& results);

} // namespace Ondo::Test
