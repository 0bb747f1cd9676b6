#include "cli/TerminalAlerts.h"

#include "cli/Terminal.h"

namespace quillon {

QFuture<std::size_t> TerminalAlerts::show(Alert alert) {
    Terminal::printError(alert.message);
    Terminal::printError(alert.informativeText);
    return QtFuture::makeReadyFuture(alert.buttons.empty() ? 0 : alert.buttons.size() - 1);
}

} // namespace quillon
