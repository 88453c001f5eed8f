#pragma once
// The look of the widgets: what has the focus, what is missing, what is wrong, what can be clicked.

#include <QPalette>
#include <QString>

namespace desktop {

/// The style sheet for a light or a dark palette.
[[nodiscard]] QString style_sheet(const QPalette& palette);

}  // namespace desktop
