#pragma once
// The palettes in which screens are tested and pictured.

#include <QColor>
#include <QPalette>

namespace tests {

inline QPalette palette_of(bool dark) {
  const QColor window(45, 45, 48);
  const QColor text(230, 230, 230);
  if (!dark) return {QColor(239, 239, 239)};
  QPalette palette(text, window.lighter(115), window.lighter(130), window.darker(150),
                   window.darker(120), text, Qt::white, QColor(30, 30, 32), window);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::Highlight, QColor(90, 160, 230));
  palette.setColor(QPalette::HighlightedText, text);
  return palette;
}

}  // namespace tests
