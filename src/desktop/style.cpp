#include "desktop/style.h"

#include <QColor>

namespace desktop {
namespace {

struct Colours {
  const char* focus;         ///< frame of what has the focus: seen from two metres away
  const char* link;          ///< titles and captions that open a dialog
  const char* missing;       ///< paper of a group that is not complete: seen, but calm
  const char* missing_text;  ///< on that paper
  const char* wrong;         ///< paper of a refused entry
  const char* wrong_text;
  const char* wrong_frame;
};

constexpr Colours kLight = {"#1565c0", "#0b4a8f", "#fff4cc", "#000000",
                            "#ffdcdc", "#000000", "#c00000"};
constexpr Colours kDark = {"#64b5f6", "#8ec7ff", "#4d431c", "#fff4cc",
                           "#5c1a1a", "#ffffff", "#ff6b6b"};

// A frame of a style sheet is drawn inside the widget, so that nothing moves when the focus does.
constexpr const char* kSheet = R"(
  QLineEdit:focus, QListWidget:focus, QTreeWidget:focus, QPlainTextEdit:focus {
    border: 2px solid %focus; }
  QPushButton:focus { border: 2px solid %focus; border-radius: 3px; padding: 2px; }
  QRadioButton:focus, QCheckBox:focus {
    background: palette(highlight); color: palette(highlighted-text); }
  QComboBox:focus { background: palette(highlight); color: palette(highlighted-text); }
  QComboBox:focus:editable { border: 2px solid %focus; background: palette(base); color: palette(text); }
  QLineEdit:read-only, QComboBox:read-only:editable { background: palette(window); }
  QLineEdit[mark="missing"], QComboBox[mark="missing"] { background: %missing_paper; color: %missing_text; }
  QLineEdit[mark="wrong"], QComboBox[mark="wrong"] { background: %wrong_paper; color: %wrong_text; }
  QLineEdit[mark="wrong"]:!focus, QComboBox[mark="wrong"]:!focus { border: 2px solid %wrong_frame; }
  QLabel[title="true"] { font-weight: bold; }
  QLabel[clickable="true"] { color: %link; }
)";

}  // namespace

QString style_sheet(const QPalette& palette) {
  constexpr int kHalf = 128;
  const Colours& colours = palette.color(QPalette::Window).lightness() < kHalf ? kDark : kLight;
  QString sheet = QString::fromLatin1(kSheet);
  sheet.replace(QLatin1String("%focus"), QLatin1String(colours.focus));
  sheet.replace(QLatin1String("%link"), QLatin1String(colours.link));
  sheet.replace(QLatin1String("%missing_paper"), QLatin1String(colours.missing));
  sheet.replace(QLatin1String("%missing_text"), QLatin1String(colours.missing_text));
  sheet.replace(QLatin1String("%wrong_paper"), QLatin1String(colours.wrong));
  sheet.replace(QLatin1String("%wrong_text"), QLatin1String(colours.wrong_text));
  sheet.replace(QLatin1String("%wrong_frame"), QLatin1String(colours.wrong_frame));
  return sheet;
}

}  // namespace desktop
