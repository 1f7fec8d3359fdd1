#include <cerrno>
#include <new>
#include <system_error>

#include "Arguments.h"
#include "Output.h"

namespace {

using namespace Cli;

/// Who closed a pipe wants no more, nor a message.
int failedOutput(int error) {
    if (error != EPIPE) complain("standard output: " + std::generic_category().message(error));
    return BadInput;
}

/// Output is written only here, when nothing can fail any more but the writing; but for what is too long to
/// be held, see writePart().
int finish(const Outcome& outcome) {
    const int error = writeOutput(outcome.output);
    if (!outcome.remark.empty()) complain(outcome.remark);
    if (!outcome.complaint.empty()) complain(outcome.complaint, outcome.detail);
    if (error != 0) return failedOutput(error);
    return outcome.complaint.empty() ? Success : BadInput;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return finish(runArguments(argc, argv));
    } catch (const OutputError& failure) {
        return failedOutput(failure.error);
    } catch (const Failure& failure) {
        complain(failure.what());
        return failure.exitCode;
    } catch (const std::bad_alloc&) {
        complain("out of memory");
    } catch (const std::exception& error) {
        complain(error.what());
    }
    return BadInput;
}
