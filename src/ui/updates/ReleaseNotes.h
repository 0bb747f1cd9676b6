#pragma once

#include <QString>

#include <string>

namespace quillon {

/// Converts release notes, plain text or HTML, to HTML that only structures the text: paragraphs,
/// headings, lists, emphasis and links to https addresses. Drops colours, sizes, tables and
/// whatever would be loaded, and cuts notes of unreasonable length.
[[nodiscard]] QString releaseNotesHtml(const std::string& notes);

} // namespace quillon
