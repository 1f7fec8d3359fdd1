#include "StopSignal.h"

#include <atomic>
#include <csignal>

namespace Cli {

namespace {

std::atomic<int> receivedSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free, "the handler may touch nothing else");

constexpr int stopSignals[] = {SIGINT, SIGTERM, SIGHUP};
/// The last is sent when somebody waits for a file.
constexpr int ignoredSignals[] = {SIGPIPE, SIGXFSZ, SIGIO};

void remember(int signal) {
    int none = 0;
    receivedSignal.compare_exchange_strong(none, signal);
}

/// Whoever started the command may have it ignore signals, as nohup does.
bool isIgnored(int signal) {
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

StopSignal::StopSignal() {
    struct sigaction action = {};
    action.sa_handler = remember;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : stopSignals)
        if (!isIgnored(signal)) sigaction(signal, &action, nullptr);
    for (const int signal : ignoredSignals)
        std::signal(signal, SIG_IGN);
}

int StopSignal::received() {
    return receivedSignal;
}

} // namespace Cli
