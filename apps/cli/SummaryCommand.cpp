#include "Commands.h"
#include "EachFile.h"
#include "SummaryJson.h"

namespace Cli {

namespace {

std::string lineOf(const std::string& file, std::u16string_view text, const Options& options) {
    return summaryLine(file, text, options.rules);
}

} // namespace

Outcome summary(const Options& options) {
    return printEachFile(options, lineOf);
}

} // namespace Cli
