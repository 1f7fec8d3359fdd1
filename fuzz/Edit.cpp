// Any bytes as a note and edits of it: behind each edit the tree equals a fresh parse.
//
// The first byte chooses the rule set and the length of the note, which is made of the bytes that follow. The
// rest is read as edits: offset, length removed, length inserted, and what is inserted.

#include <cstdio>
#include <cstdlib>

#include "corvane/scan/Util.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;

namespace {

class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}
    bool isEmpty() const { return at_ == end_; }
    std::uint8_t next() { return isEmpty() ? 0 : *at_++; }
    std::u16string text(std::size_t length) {
        std::string bytes;
        while (length-- > 0 && !isEmpty())
            bytes += static_cast<char>(next());
        return Util::utf16(bytes);
    }

private:
    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

void fail(const Tree& tree, const std::string& what) {
    std::fprintf(stderr, "%s: %s in \"%s\"\n", Test::nameOf(tree.ruleSet), what.c_str(),
                 Test::visible(tree.markdown()).c_str());
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(data, size);
    const std::size_t head = bytes.next();
    Tree tree(bytes.text(head / 3), Test::allRuleSets[head % 3]);
    // Few edits an input: each costs a fresh parse, and the fuzzer gets on by trying many.
    for (int edit = 0; edit < 16 && !bytes.isEmpty(); ++edit) {
        const std::int64_t offset = bytes.next() * tree.length() / 255;
        const std::int64_t removed = std::min<std::int64_t>(bytes.next() % 16, tree.length() - offset);
        tree.replace({offset, removed}, bytes.text(bytes.next() % 16));
        if (const std::string broken = Test::checkTree(tree); !broken.empty()) fail(tree, broken);
        if (const std::string stale = Test::differenceFromFreshParse(tree); !stale.empty()) fail(tree, stale);
    }
    return 0;
}
