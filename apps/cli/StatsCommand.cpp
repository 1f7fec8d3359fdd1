#include "Commands.h"
#include "EachFile.h"
#include "ValueJson.h"
#include "corvane/analysis/TextStatistics.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

std::string lineOf(const std::string& file, std::u16string_view text, const Options&) {
    const CVN::TextStatistics statistics(text);
    return R"({"file":)" + jsonText(Ondo::Util::utf16(file)) + R"(,"wordsCount":)" +
           std::to_string(statistics.wordsCount) + R"(,"paragraphCount":)" +
           std::to_string(statistics.paragraphCount) + R"(,"readTime":)" +
           std::to_string(statistics.readTime) + "}\n";
}

} // namespace

Outcome stats(const Options& options) {
    return printEachFile(options, lineOf);
}

} // namespace Cli
