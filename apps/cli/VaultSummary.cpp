#include <filesystem>

#include "Output.h"
#include "SummaryJson.h"
#include "Vault.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Cli {

CVN::TreeSummary summaryOf(const VaultRun& run, const VaultNote& note) {
    const Ondo::Tree tree(note.text, run.options.rules);
    CVN::TreeSummary summary(tree);
    summary.tree = nullptr;
    return summary;
}

std::u16string titleOfFile(const VaultFile& file) {
    return Ondo::Util::utf16(std::filesystem::path(file.name).stem().native());
}

Outcome vaultSummary(VaultRun& run) {
    forEachNote<std::string>(
        run,
        [&](const VaultFile& file, const VaultNote& note) {
            return summaryLine(file.name, note.text, run.options.rules);
        },
        [](const VaultFile&, const std::string& line) { writePart(line); });
    return finished(run, {});
}

} // namespace Cli
