#include "tests/support/Corpus.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {

namespace {

constexpr std::string_view caseMark = "=== ";
constexpr std::string_view treeMark = "--- tree";
constexpr std::string_view htmlMark = "--- html";
constexpr std::string_view runsMark = "--- runs";

constexpr struct {
    std::string_view visible;
    std::string_view meant;
} visibleCharacters[] = {
    {"→", "\t"}, {"␠", " "}, {"␍", "\r"}, {"␀", {"\0", 1}}, {"␄\n", ""},
};

std::string withMeantCharacters(std::string text) {
    for (const auto& [visible, meant] : visibleCharacters)
        for (std::size_t at = text.find(visible); at != std::string::npos; at = text.find(visible, at))
            text.replace(at, visible.size(), meant);
    return text;
}

bool isSection(std::string_view line) {
    return line.starts_with(treeMark) || line.starts_with(htmlMark) || line.starts_with(runsMark);
}

/// Reads one file, line by line.
class Reader {
public:
    explicit Reader(const std::filesystem::path& file) : file_(file), stream_(file) { next(); }

    std::vector<CorpusCase> cases() {
        std::vector<CorpusCase> cases;
        lines(false);
        while (!atEnd_)
            cases.push_back(oneCase());
        if (cases.empty()) fail("has no case");
        return cases;
    }

private:
    void next() {
        ++number_;
        atEnd_ = !std::getline(stream_, line_);
    }

    /// The lines up to the next mark.
    std::string lines(bool stopsAtSection) {
        std::string read;
        for (; !atEnd_ && !line_.starts_with(caseMark); next()) {
            if (stopsAtSection && isSection(line_)) break;
            read += line_ + '\n';
        }
        return read;
    }

    CorpusCase oneCase() {
        CorpusCase result;
        result.place = where() + line_.substr(caseMark.size());
        next();
        result.text = Util::utf16(withMeantCharacters(lines(true)));
        if (atEnd_ || !isSection(line_)) fail("a case expects nothing");
        while (!atEnd_ && isSection(line_))
            readSection(result);
        return result;
    }

    void readSection(CorpusCase& result) {
        auto& expectations = line_.starts_with(treeMark)   ? result.trees
                             : line_.starts_with(htmlMark) ? result.html
                                                           : result.runs;
        std::istringstream names(line_.substr(treeMark.size()));
        std::string name;
        std::vector<RuleConfig::RuleSet> sets;
        while (names >> name)
            sets.push_back(ruleSetNamed(name));
        const bool isForTheRest = sets.empty();
        if (isForTheRest) sets.assign(std::begin(allRuleSets), std::end(allRuleSets));
        next();
        std::string expected = lines(true);
        while (expected.size() > 1 && expected.compare(expected.size() - 2, 2, "\n\n") == 0)
            expected.pop_back();
        expected = expected == "\n" ? "" : withMeantCharacters(expected);
        for (const RuleConfig::RuleSet set : sets)
            if (!isForTheRest || !expectations[set]) expectations[set] = expected;
    }

    /// Names are those of the rule sets in small letters.
    RuleConfig::RuleSet ruleSetNamed(const std::string& name) const {
        for (const RuleConfig::RuleSet set : allRuleSets)
            if (Util::utf8(Util::downcaseAscii(Util::utf16(nameOf(set)))) == name) return set;
        fail("no rule set is called " + name);
    }

    std::string where() const { return file_.filename().string() + ":" + std::to_string(number_) + ": "; }
    [[noreturn]] void fail(const std::string& what) const { throw std::runtime_error(where() + what); }

    std::filesystem::path file_;
    std::ifstream stream_;
    std::string line_;
    int number_ = 0;
    bool atEnd_ = false;
};

} // namespace

std::vector<std::filesystem::path> corpusFiles() {
    std::vector<std::filesystem::path> files;
    const std::filesystem::path folder = std::filesystem::path(CORVANE_TEST_DIR) / "corpus";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".txt") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<CorpusCase> readCorpus(const std::filesystem::path& file) {
    return Reader(file).cases();
}

} // namespace Ondo::Test
