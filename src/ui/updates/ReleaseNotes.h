#pragma once

#include <QString>

#include <string>

namespace quillon {

/// Release notes, plain text or HTML, as HTML that only structures a text: paragraphs, headings,
/// lists, emphasis and links to https addresses. Colours, sizes, tables and whatever would be
/// loaded are gone; so is the end of notes of unreasonable length.
[[nodiscard]] QString releaseNotesHtml(const std::string& notes);

} // namespace quillon
