#pragma once
// The toolkit's own texts: the menus of fields, the print dialog, the folder browser.

#include <QString>

#include "text/texts.h"

namespace desktop {

/// Where the toolkit's translations are installed.
[[nodiscard]] QString qt_translations();

/// From now on the toolkit speaks this language, English where its translation is not installed.
/// Cheap when it does already.
void speak_qt(text::Language language, const QString& translations = qt_translations());

}  // namespace desktop
