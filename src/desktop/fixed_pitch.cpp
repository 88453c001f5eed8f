#include "desktop/fixed_pitch.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <array>
#include <cmath>

namespace desktop {
namespace {

// Both widths at a size at which rounding does not matter.
bool lines_up(const QString& family) {
  constexpr int kPixels = 200;
  QFont font(family);
  font.setPixelSize(kPixels);
  if (QFontInfo(font).family() != family) return false;
  const QFontMetricsF metrics(font);
  const double one = metrics.horizontalAdvance(QLatin1Char('0'));
  const bool same = std::ranges::all_of(QStringLiteral("iW.*/ "), [&](QChar c) {
    return std::abs(metrics.horizontalAdvance(c) - one) < 1;
  });
  const bool japanese = metrics.inFont(QChar(0x6C17)) && metrics.inFont(QChar(0x30A2));
  return same && japanese && std::abs(metrics.horizontalAdvance(QChar(0x6C17)) - 2 * one) < 2;
}

QString find_family() {
  // What is usual first; then whatever else is there, by name.
  static constexpr std::array<const char*, 6> kUsual = {
      "Noto Sans Mono CJK JP", "IPAGothic", "IPAexGothic", "TakaoGothic", "VL Gothic", "MS Gothic"};
  for (const char* const family : kUsual)
    if (lines_up(QString::fromLatin1(family))) return QString::fromLatin1(family);
  for (const QString& family : QFontDatabase::families(QFontDatabase::Japanese))
    if (QFontDatabase::isFixedPitch(family) && lines_up(family)) return family;
  return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

}  // namespace

const QString& fixed_pitch_family() {
  static const QString family = find_family();
  return family;
}

}  // namespace desktop
