#include <cerrno>
#include <new>
#include <system_error>

#include "Arguments.h"
#include "Output.h"

namespace {

using namespace Cli;

/// Output is written only here, when nothing can fail any more but the writing.
int finish(const Outcome& outcome) {
    const int error = writeOutput(outcome.output);
    if (error == EPIPE) return BadInput; // who closed the pipe wants no more, nor a message
    if (error != 0) {
        complain("standard output: " + std::generic_category().message(error));
        return BadInput;
    }
    if (outcome.complaint.empty()) return Success;
    complain(outcome.complaint, outcome.detail);
    return BadInput;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return finish(runArguments(argc, argv));
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
