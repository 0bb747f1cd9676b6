#pragma once

namespace quillon {

/// Has Qt tell assistive technology which tab of a TabStrip is selected, and which has the
/// keyboard, where its own description of tabs does not.
void describeTabStrips();

} // namespace quillon
