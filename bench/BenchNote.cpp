#include "bench/BenchNote.h"

#include <algorithm>
#include <random>
#include <vector>

#include "tests/support/RealNotes.h"

namespace Ondo::Bench {

namespace {

constexpr const char* words[] = {"the",   "note",  "editor", "keeps", "a",     "tree",   "of",
                                 "every", "block", "while",  "words", "are",   "typed",  "and",
                                 "lines", "move",  "under",  "it",    "with",  "Zürich", "café",
                                 "long",  "short", "list",   "quote", "night", "margin"};

class Writer {
public:
    std::string note(std::size_t bytes) {
        out_.reserve(bytes + 1000);
        while (out_.size() < bytes)
            section();
        return std::move(out_);
    }

private:
    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

    void sentence(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            if (i) out_ += ' ';
            out_ += words[below(std::size(words))];
        }
    }
    void paragraph(const char* prefix, std::size_t lines) {
        for (std::size_t i = 0; i < lines; ++i) {
            out_ += prefix;
            sentence(9 + below(6));
            out_ += i + 1 == lines ? ".\n" : "\n";
        }
    }
    void list(const char* marker) {
        for (std::size_t i = 3 + below(4); i > 0; --i) {
            out_ += marker;
            sentence(4 + below(8));
            out_ += '\n';
            if (below(4) == 0) paragraph("    - ", 2);
        }
    }
    void code() {
        out_ += "```cpp\n";
        for (std::size_t i = 3 + below(6); i > 0; --i) {
            out_ += "    int value = ";
            sentence(3);
            out_ += ";\n";
        }
        out_ += "```\n";
    }
    void section() {
        out_ += below(3) ? "## " : "# ";
        sentence(4);
        out_ += "\n\n";
        for (std::size_t i = 4 + below(4); i > 0; --i) {
            block();
            out_ += '\n';
        }
    }
    void block() {
        switch (below(10)) {
        case 0:
            return list("- ");
        case 1:
            return list("1. ");
        case 2:
            return list("- [ ] ");
        case 3:
            return paragraph("> ", 3);
        case 4:
            return code();
        default:
            return paragraph("", 1 + below(5));
        }
    }

    std::string out_;
    std::mt19937 random_{7};
};

/// The length of the run of fence characters that a line begins with; 0 when it is no fence.
std::size_t fenceLength(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    if (line.empty() || (line[0] != '`' && line[0] != '~')) return 0;
    const std::size_t length = std::min(line.find_first_not_of(line[0]), line.size());
    return length < 3 ? 0 : length;
}

/// A file whose last fence stays open would make code of all that is put behind it.
bool hasOpenFence(std::string_view text) {
    std::size_t open = 0;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        const std::size_t length = fenceLength(line);
        if (open == 0)
            open = length;
        else if (length >= open && line.find_first_not_of(" `~") == std::string_view::npos)
            open = 0;
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return open != 0;
}

/// In an order that is the same with every standard library.
std::vector<std::string> shuffledFiles() {
    constexpr std::size_t maximumBytes = 300'000; // longer ones are logs of changes, mostly links
    std::vector<std::string> texts;
    for (Test::RealNote& note : Test::realNotes(maximumBytes))
        if (!hasOpenFence(note.text)) texts.push_back(std::move(note.text) + "\n\n");
    std::mt19937 random(3);
    for (std::size_t i = texts.size(); i > 1; --i)
        std::swap(texts[i - 1], texts[random() % i]);
    return texts;
}

} // namespace

std::string benchNote(std::size_t bytes) {
    return Writer().note(bytes);
}

Note realNote(std::size_t bytes) {
    static const std::vector<std::string> files = shuffledFiles();
    if (files.empty()) return {benchNote(bytes), "made"};
    std::string text;
    for (std::size_t before = std::string::npos; before != text.size();) {
        before = text.size();
        for (const std::string& file : files)
            if (text.size() + file.size() <= bytes) text += file;
    }
    return {std::move(text), "real"};
}

Note realNoteAround(const std::string& middle, std::size_t bytes) {
    if (bytes <= middle.size()) return {middle, realNote(0).source};
    const Note around = realNote((bytes - middle.size()) / 2);
    return {around.text + middle + around.text, around.source};
}

} // namespace Ondo::Bench
