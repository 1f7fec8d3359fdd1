#pragma once

#include <stdexcept>
#include <string>

namespace Cli {

/// What a command leaves: the whole of standard output, and a complaint when something did not hold, with
/// which the exit code is 1.
struct Outcome {
    std::string output = {};
    std::string complaint = {}; ///< one line for standard error, without its ending
    std::string detail = {};    ///< lines below it
    std::string remark = {};    ///< one line for standard error that leaves the exit code as it is
};

enum ExitCode { Success = 0, BadInput = 1, BadUsage = 2 };

/// Ends the command before it has written anything: one line for standard error, and the exit code.
class Failure : public std::runtime_error {
public:
    ExitCode exitCode;

    explicit Failure(const std::string& message, ExitCode code = BadInput)
        : std::runtime_error(message), exitCode(code) {}
};

} // namespace Cli
