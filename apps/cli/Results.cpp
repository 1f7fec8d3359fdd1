#include "Results.h"

#include "Input.h"
#include "Ranges.h"
#include "ValueJson.h"
#include "corvane/scan/Util.h"

namespace Cli {

std::string jsonText(const CVNASTTextOperations::Results& results) {
    std::string json = "[";
    for (const CVNASTOperationResult& result : results)
        json += (json.size() > 1 ? R"(,{"range":)" : R"({"range":)") + jsonText(result.replacementRange) +
                R"(,"text":)" + jsonText(std::u16string_view(result.replacementString)) + R"(,"selection":)" +
                jsonText(result.proposedSelection) + "}";
    return json + "]";
}

std::u16string textOfArgument(const std::string& what, const std::string& bytes) {
    const std::int64_t invalid = invalidUtf8(bytes);
    if (invalid < 0) return Ondo::Util::utf16(bytes);
    throw Failure(what + ": invalid UTF-8 at byte offset " + std::to_string(invalid), BadUsage);
}

} // namespace Cli
