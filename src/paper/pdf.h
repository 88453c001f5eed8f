#pragma once
// Pages as a PDF file, which takes its letters along: whoever opens it needs no font of this
// computer, and finds and copies the words in it.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "paper/pages.h"
#include "paper/true_type.h"

namespace paper {

/// The first keeps columns and has Japanese; a character that it does not have comes from the next
/// one that has it.
using Faces = std::vector<std::shared_ptr<const TrueType>>;

/// Those of the first face.
[[nodiscard]] Proportions proportions_of(const TrueType& face);

/// The bytes of the file; nothing without a face.
[[nodiscard]] std::optional<std::string> pdf_of(const ui::Sheets& sheets, const SheetSize& size,
                                                const Faces& faces);

}  // namespace paper
