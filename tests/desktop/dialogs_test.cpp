// Dialogs, menus and the close box of the real main window.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QTreeWidget>
#include <memory>
#include <string>
#include <vector>

#include "desktop_world.h"
#include "elements/CPositionDlg.h"
#include "fakes/sample_observation.h"
#include "text/ids.h"
#include "ui/dump.h"

namespace {

using tests::DesktopWorld;
using tests::press;

struct MainWindow {
  DesktopWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<desktop::ScreenWindow> window;
  std::vector<std::string> opened;

  void open() {
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  // F1, and back: no window manager gives the focus back to the main window here.
  void press_f1() {
    press(Qt::Key_F1);
    window->activateWindow();
    QApplication::processEvents();
  }
  void go_to(const char* field) {
    ASSERT_TRUE(screen->move_focus(*screen->find(field))) << field;
    window->refresh();
    QApplication::processEvents();
  }
};

struct F1Row {
  const char* field;
  const char* dialog;
};
constexpr F1Row kF1[] = {
    {"Year", "CUTCTimeDlg1"},
    {"LaDeg", "CPositionDlg"},
    {"east_west", "CPositionDlg"},
    {"Ds", "CDvDsDlg"},
    {"reading", "CSeaSurfacePressureDlg"},
    {"a", "CPresureTendencyDlg"},
    {"dry_bulb", "CCountDewDlg"},
    {"dd", "CTrueDirWindDlg"},
    {"TwTwTw", "CSea_SurfaceTemperatureDlg"},
    {"HwHw", "CWindDlg"},
    {"dw1dw1", "CSwellWaveDlg"},
    {"VV", "CEyeShotDlg"},
    {"ww", "CNowWeatherDlg"},
    {"W2", "CPastWeatherDlg1"},
    {"N", "CCloudAgeDlg"},
    {"Nh", "CBottomLayerCloudDlg"},
    {"CH", "CTopCloudDlg"},
    {"CM", "CMidCloudDlg"},
    {"CL", "CBottomCloudDlg"},
    {"h", "CCloudHeightDlg"},
};

TEST(Dialogs, OpenWithF1InTheirFieldsAndCancelledChangeNothing) {
  MainWindow main;
  main.open();
  for (const F1Row& row : kF1) {
    main.go_to(row.field);
    const std::string before = ui::dump(*main.screen);
    std::string opened;
    main.world.windows.on_shown = [&](desktop::ScreenWindow& dialog) {
      opened = dialog.objectName().toStdString();
      QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    main.press_f1();
    EXPECT_EQ(row.dialog, opened) << row.field;
    EXPECT_EQ(before, ui::dump(*main.screen)) << row.field;
    EXPECT_TRUE(main.window->binding(row.field)->owns(QApplication::focusWidget())) << row.field;
  }
}

TEST(Dialogs, ConfirmedByKeyboardFillTheFieldAndMoveOn) {
  MainWindow main;
  main.open();
  main.go_to("VV");
  main.world.windows.on_shown = [](desktop::ScreenWindow& dialog) {
    dialog.activateWindow();
    QApplication::processEvents();
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
  };
  main.press_f1();
  EXPECT_EQ("99", main.screen->find("VV")->content);
  EXPECT_EQ("ww", main.screen->focused()->name);
  EXPECT_TRUE(main.window->binding("ww")->owns(QApplication::focusWidget()));
}

// Every command of a menu bar, with the texts of the menus above it.
void commands_of(const QList<QAction*>& actions, const QString& path,
                 std::vector<std::pair<std::string, QAction*>>& found) {
  for (QAction* const action : actions) {
    const QString at = path + QString::fromStdString(tests::plain_text(*action));
    if (action->menu() != nullptr) {
      commands_of(action->menu()->actions(), at + "/", found);
    } else {
      found.emplace_back(at.toStdString(), action);
    }
  }
}

struct MenuRow {
  unsigned locale_id;
  text::Language language;
};
constexpr MenuRow kMenus[] = {
    {0x0409, text::Language::kEnglish},
    {0x0411, text::Language::kEnglish},
    {0x0411, text::Language::kJapanese},
};

// A screen with the main window's menu texts, whose commands only tell that they ran.
class MenuScreen : public ui::Screen {
 public:
  MenuScreen(ui::Services& services, mainwindow::Menu menu)
      : Screen(services, "CMenuScreen", {text::id::kNoValueInput}) {
    set_menu(mainwindow::build_menu(menu, true, [this](const mainwindow::MenuRow& row) {
      ran.push_back(std::string(text::resolve({row.text_id}, language())));
    }));
  }
  ui::Edit field{*this, "field"};
  std::vector<std::string> ran;
};

TEST(Menus, HaveEveryItemAndEachRunsItsCommand) {
  for (const MenuRow& row : kMenus) {
    DesktopWorld world;
    world.fake.texts.language = row.language;
    MenuScreen screen(world.services, mainwindow::menu_for(row.locale_id == 0x0411, row.language));
    screen.open();
    desktop::ScreenWindow window(screen, nullptr);
    std::vector<std::pair<std::string, QAction*>> found;
    commands_of(window.findChild<QMenuBar*>()->actions(), {}, found);
    std::vector<std::string> shown;
    std::vector<std::string> names;
    for (const auto& [path, action] : found) {
      shown.push_back("menu " + ui::quoted(path) + (action->isEnabled() ? "" : " [disabled]"));
      names.push_back(tests::plain_text(*action));
      action->trigger();
    }
    EXPECT_EQ(ui::menu_lines(screen), shown);
    EXPECT_GT(shown.size(), 10U);
    EXPECT_EQ(names, screen.ran);
  }
}

TEST(Menus, FollowTheLanguage) {
  MainWindow main;
  main.world.fake.locale.id = 0x0411;
  main.open();
  const auto first = [&] {
    return tests::plain_text(*main.window->findChild<QMenuBar*>()->actions().front());
  };
  EXPECT_EQ("File", first());
  std::vector<std::pair<std::string, QAction*>> found;
  commands_of(main.window->findChild<QMenuBar*>()->actions(), {}, found);
  for (const auto& [path, action] : found) {
    if (path.starts_with("Language/")) {
      action->trigger();
      break;
    }
  }
  EXPECT_EQ("ファイル", first());
}

TEST(CloseBox, OfTheMainWindowAsksWhileThereAreEntries) {
  MainWindow main;
  main.open();
  QTest::keyClicks(QApplication::focusWidget(), "2014");
  press(Qt::Key_Tab);
  const std::string before = ui::dump(*main.screen);
  int asked = 0;
  QTimer::singleShot(0, [&] {
    ++asked;
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  main.window->close();
  EXPECT_EQ(1, asked);
  EXPECT_TRUE(main.window->isVisible());
  EXPECT_FALSE(main.screen->result().has_value());
  EXPECT_EQ(before, ui::dump(*main.screen));
}

TEST(DropDown, TakesALineFromItsPopupByKeyboard) {
  DesktopWorld world;
  CPositionDlg screen(world.services, CPositionDlg::Values{"35", "12", "139", "48", "1"}, "1",
                      [](double, double) { return false; });
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  auto* const box = qobject_cast<QComboBox*>(window.binding("latitude_minutes")->widget());
  ASSERT_NE(nullptr, box);
  box->setFocus();
  QApplication::processEvents();
  box->showPopup();
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ("13", screen.find("latitude_minutes")->content);
  EXPECT_EQ("13", box->currentText().toStdString());
  EXPECT_FALSE(screen.result().has_value());
}

class TreeScreen : public ui::Screen {
 public:
  explicit TreeScreen(ui::Services& services)
      : Screen(services, "CTreeScreen", {text::id::kNoValueInput}) {
    tree.rows = {{"C:\\", "C:\\", 0, true, false, false}};
    tree.on_expand = [this](std::size_t) {
      for (int i = 0; i < kFolders; ++i)
        tree.rows.push_back(
            {std::to_string(i), "C:\\" + std::to_string(i), 1, true, false, i % 2 == 1});
    };
  }
  static constexpr int kFolders = 10'000;
  ui::Tree tree{*this, "tree"};
};

TEST(FolderTree, ShowsTenThousandFoldersOfOneLevelWhenItIsOpened) {
  DesktopWorld world;
  TreeScreen screen(world.services);
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  auto* const tree = qobject_cast<QTreeWidget*>(window.binding("tree")->widget());
  tree->topLevelItem(0)->setExpanded(true);
  QApplication::processEvents();
  ASSERT_EQ(TreeScreen::kFolders, tree->topLevelItem(0)->childCount());
  EXPECT_TRUE(tree->topLevelItem(0)->isExpanded());
  EXPECT_EQ("9999", tree->topLevelItem(0)->child(9999)->text(0).toStdString());
  EXPECT_TRUE(tree->topLevelItem(0)->child(9999)->font(0).italic());
  EXPECT_FALSE(tree->topLevelItem(0)->child(0)->font(0).italic());
  tree->setCurrentItem(tree->topLevelItem(0)->child(7));
  EXPECT_EQ(8, screen.tree.selected);
}

}  // namespace
