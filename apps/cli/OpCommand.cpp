#include <vector>

#include "Commands.h"
#include "Note.h"
#include "Ranges.h"
#include "Results.h"
#include "ValueJson.h"

namespace Cli {

namespace {

using Kind = CVNTextParameter::Kind;

bool isParameter(const CVNTextParameter& parameter) {
    return parameter.kind != Kind::None;
}

/// How a value is written, and what it means.
std::string about(const CVNTextParameter& parameter) {
    const char* const form = parameter.kind == Kind::Number ? "a number"
                             : parameter.kind == Kind::Flag ? "yes or no"
                                                            : "a text";
    return std::string(form) + (parameter.about ? ": " + std::string(parameter.about) : "");
}

/// The names of a command and its parameters, as one writes them.
std::string usage(const CVNTextOperation& operation) {
    std::string usage = operation.name;
    for (const CVNTextParameter& parameter : operation.parameters)
        if (isParameter(parameter)) usage += std::string(" ") + parameter.name;
    return usage;
}

std::string listOfOperations() {
    std::string list;
    for (const CVNTextOperation& operation : CVNTextOperation::all()) {
        list += usage(operation) + "\n    " + operation.about + "\n";
        for (const CVNTextParameter& parameter : operation.parameters)
            if (isParameter(parameter))
                list += "    " + std::string(parameter.name) + " is " + about(parameter) + "\n";
    }
    return list;
}

std::int64_t numberOf(const CVNTextParameter& parameter, const std::string& word) {
    if (parameter.kind == Kind::Flag && (word == "yes" || word == "no")) return word == "yes";
    std::string_view rest = word;
    const std::optional<std::int64_t> number = takeCount(rest);
    if (parameter.kind == Kind::Number && number && rest.empty()) return *number;
    throw Failure(std::string(parameter.name) + ": " + word + " is not " + about(parameter), BadUsage);
}

/// A command as the words call it.
struct Call {
    const CVNTextOperation& operation;
    std::vector<std::u16string> texts; ///< that the arguments look at
    CVNTextArguments arguments = {};
    std::size_t count = 0; ///< of arguments

    explicit Call(const Options& options);

private:
    void take(const CVNTextParameter& parameter, const std::string& word);
};

Call::Call(const Options& options) : operation(requiredRow<CVNTextOperation>(options)) {
    texts.reserve(arguments.size());
    for (const CVNTextParameter& parameter : operation.parameters) {
        if (!isParameter(parameter)) continue;
        if (options.words.size() <= count)
            throw Failure(std::string(parameter.name) + " is missing behind " + operation.name + "; it is " +
                              about(parameter),
                          BadUsage);
        take(parameter, options.words[count]);
        ++count;
    }
}

void Call::take(const CVNTextParameter& parameter, const std::string& word) {
    if (parameter.kind == Kind::Text)
        arguments[count].text = texts.emplace_back(textOfArgument(parameter.name, word));
    else
        arguments[count].number = numberOf(parameter, word);
}

/// The file behind the arguments, if there is one.
std::optional<std::string> fileOf(const Options& options, const Call& call) {
    const std::vector<std::string>& words = options.words;
    if (words.size() <= call.count) return std::nullopt;
    if (words.size() == call.count + 1) return words.back();
    throw Failure("one argument too many: " + words[call.count + 1] + "; the command is " +
                      usage(call.operation) + " [FILE]",
                  BadUsage);
}

/// The note as the results leave it. Without results, nothing has changed.
std::string applied(CVNAST note, const CVNASTTextOperations::Results& results, CVNRange selection) {
    std::string redraw = "null";
    if (!results.empty()) {
        redraw = jsonText(note.applyTextOperationResults(results));
        selection = results.back().proposedSelection;
    }
    return R"({"text":)" + jsonText(note.markdown()) + R"(,"selection":)" + jsonText(selection) +
           R"(,"redraw":)" + redraw + "}";
}

} // namespace

Outcome op(const Options& options) {
    if (options.list) return {listOfOperations()};
    const Call call(options);
    const CVNRange range = call.operation.ignoresRange ? CVNRange{} : required("--range", options.range);
    const CVNRange selection = options.selection.value_or(options.range.value_or(CVNRange{}));
    CVNAST note = readNote(options, fileOf(options, call));
    requireInText("--range", range, note.markdownLength());
    requireInText("--selection", selection, note.markdownLength());
    const auto results = call.operation.run(note, range, selection, call.arguments);
    return {(options.apply ? applied(std::move(note), results, selection) : jsonText(results)) + "\n"};
}

} // namespace Cli
