#include "desktop/fixed_pitch.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QRawFont>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/printer.h"

namespace desktop {
namespace {

// So large that rounding is nothing, and not fitted to the dots of a screen.
QFont large(const QString& family) {
  constexpr int kDots = 1000;
  QFont font(family);
  font.setPixelSize(kDots);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::PreferQuality);
  return font;
}

// How large a figure is, as the side of a square of the room that it takes. Asked whenever a window
// is shown anew, so each family is measured once.
double size_of_figures(const QString& family) {
  static QHash<QString, double> sizes;
  const auto known = sizes.constFind(family);
  if (known != sizes.constEnd()) return *known;
  const QFontMetricsF metrics(large(family));
  const QString figure = QStringLiteral("0");
  return *sizes.insert(family, std::sqrt(metrics.tightBoundingRect(figure).height() *
                                         metrics.horizontalAdvance(figure)));
}

}  // namespace

bool keeps_columns(const QString& family) {
  const QFont font = large(family);
  const QRawFont raw = QRawFont::fromFont(font, QFontDatabase::Japanese);
  const QFontMetricsF metrics(font);
  const double column = metrics.horizontalAdvance(QLatin1Char('0'));
  const auto is_as_wide = [&](const QString& text) {
    for (const char32_t character : text.toUcs4())
      if (!raw.supportsCharacter(character)) return false;
    const auto columns = static_cast<double>(ui::columns_of(text.toStdString()));
    return std::abs(metrics.horizontalAdvance(text) - columns * column) < 1;
  };
  const QStringList samples = {"iiii", "WWWW", "..__", "----", "((//",
                               "漢字", "あア", "Ａ９", "　。", "ｱｶ"};
  return std::all_of(samples.begin(), samples.end(), is_as_wide);
}

const QString& fixed_pitch_family() {
  static const QString family = [] {
    QString usual = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    // Those that are known to be good to read, then whatever there is.
    QStringList families = {usual, "IPAGothic", "Noto Sans Mono CJK JP", "MS Gothic",
                            "TakaoGothic"};
    families += QFontDatabase::families(QFontDatabase::Japanese);
    for (const QString& candidate : std::as_const(families))
      if (QFontDatabase::hasFamily(candidate) && keeps_columns(candidate)) return candidate;
    return usual;
  }();
  return family;
}

QFont fixed_pitch_font(const QFont& beside) {
  QFont font = beside;
  font.setFamily(fixed_pitch_family());
  const double own = size_of_figures(font.family());
  if (own > 0) {
    const double ratio = size_of_figures(beside.family()) / own;
    if (beside.pointSizeF() > 0)
      font.setPointSizeF(beside.pointSizeF() * ratio);
    else
      font.setPixelSize(static_cast<int>(std::lround(beside.pixelSize() * ratio)));
  }
  return font;
}

}  // namespace desktop
