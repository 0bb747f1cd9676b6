#pragma once

namespace quillon {

/// Makes Qt tell assistive technology which tab of a TabStrip is selected and which has the focus,
/// which Qt's own description of tabs does not.
void describeTabStrips();

} // namespace quillon
