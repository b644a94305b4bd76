#pragma once

#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/inlines/InlineParser.h"

#include <string>

namespace tarn::corvel {

/// The document as HTML, as the CommonMark reference renderer writes it; raw HTML is kept.
std::string renderHtml(const CVKAST::Document& document, InlineOptions options = {});

} // namespace tarn::corvel
