#pragma once

namespace Cli {

/// While it lives, signals that ask the command to stop (interrupt, terminate, hang up) are only remembered,
/// so that whoever changes files can end at a good place; of the same signal again, the second one ends the
/// command at once. What would end it for writing too much, or to a closed pipe, is an error of the write
/// instead.
///
/// At most one at a time. What a signal did before is not restored: nothing is to stop the report in the end.
class StopSignal {
public:
    StopSignal();

    /// The number of the first signal that was caught; 0 while there is none, also without a StopSignal.
    static int received();
};

} // namespace Cli
