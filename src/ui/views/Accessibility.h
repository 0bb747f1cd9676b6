#pragma once

namespace quillon {

/// Has Qt tell assistive technology about the views of this folder as they describe themselves,
/// where it would not know more of them than that they are widgets.
void describeViews();

} // namespace quillon
