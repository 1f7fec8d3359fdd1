#include "bench/BenchNote.h"

#include <random>

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

} // namespace

std::string benchNote(std::size_t bytes) {
    return Writer().note(bytes);
}

} // namespace Ondo::Bench
