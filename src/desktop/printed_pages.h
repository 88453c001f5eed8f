#pragma once
// Lines and drawings on pages of paper, as a PDF: what is printed, what is kept as a file, and what
// a view of the pages has to break like are one layout.

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QString>
#include <functional>
#include <string_view>

#include "paper/pages.h"
#include "ui/printer.h"

namespace desktop {

/// Paper of this size whose margins are those in points, but nowhere less than ten millimetres.
[[nodiscard]] QPageLayout paper_of(const QPageSize& size, const QMarginsF& least = {},
                                   QPageLayout::Orientation orientation = QPageLayout::Portrait);

/// What one page has room for, and how large its letters are (ui::PrintSize).
using PageMeasures = paper::PageMeasures;
[[nodiscard]] PageMeasures measure_page(const ui::Sheets& sheets, const QPageLayout& paper);

/// Takes the next bytes of a file; false when they have no room.
using TakeBytes = std::function<bool(std::string_view)>;

/// Draws the pages and hands their PDF on while it grows. A new page starts where one is full, and
/// for a drawing that the rest of a page has no room for; a drawing is as wide as the page, and
/// never higher. False when the bytes were not taken; what came before is then of no use.
[[nodiscard]] bool write_pdf(const ui::Sheets& sheets, const QPageLayout& paper,
                             const TakeBytes& take);

}  // namespace desktop
