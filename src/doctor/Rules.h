#pragma once

#include "doctor/Facts.h"
#include "doctor/Finding.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Whether a report tells the names of group, bot and topics, and folders outside the home folder.
enum class Names { hidden, told };

/// One finding for each check, in the order of the report. Where one thing is broken, what needs it
/// is unknown, so that the fault itself is named and nothing else.
[[nodiscard]] std::vector<Finding> findings(const Facts& facts, Names names);

/// The variable that names the proxy for requests to `address`, as libcurl reads the environment:
/// http_proxy, https_proxy, all_proxy and no_proxy, the names in capitals after the others and not
/// for http. Empty where there is none, or where no_proxy has the host or a domain above it.
[[nodiscard]] std::string
proxyVariable(const std::string& address,
              const std::function<std::string(const std::string& variable)>& environment);

} // namespace quillon
