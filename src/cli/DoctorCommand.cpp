#include "cli/DoctorCommand.h"

#include "cli/Console.h"
#include "core/Core.h"
#include "doctor/Examination.h"
#include "doctor/Rules.h"
#include "platform/linux/LinuxSurroundings.h"

#include <algorithm>

namespace quillon {

QCoro::Task<int> runDoctor(CommandContext context, Arguments arguments) {
    const auto given = [&](const char* word) {
        return std::ranges::find(arguments, word) != arguments.end();
    };
    const LinuxSurroundings surroundings;
    QCoro::Task<Facts> examination =
        examine(context.platform, context.core.store, surroundings, context.stays);
    const Facts facts = co_await examination;
    const auto all = findings(facts, given("--names") ? Names::told : Names::hidden);
    if (given("--json")) {
        context.console->printText(findingsJson(all));
    } else {
        for (const std::string& line : findingLines(all))
            context.console->print(line);
    }
    co_return canSend(all) ? exitDone : exitFailed;
}

} // namespace quillon
