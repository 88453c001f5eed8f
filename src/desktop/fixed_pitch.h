#pragma once
// The font of what lines up in columns, on the screen and on paper: reports, listings, lists of
// files.

#include <QFont>
#include <QString>

namespace desktop {

/// A family in whose letters lines stand in columns: every Latin character is as wide as any other,
/// a Japanese one exactly twice as wide. The system's fixed font where no installed family is like
/// that, whose Japanese then comes from another one.
[[nodiscard]] const QString& fixed_pitch_family();
/// True for a family that fixed_pitch_family() looks for.
[[nodiscard]] bool keeps_columns(const QString& family);

/// The family in the size in which its figures take as much room as those of the font beside it:
/// narrow ones are as much higher. At the same size in points they would be much smaller.
[[nodiscard]] QFont fixed_pitch_font(const QFont& beside);

}  // namespace desktop
