#include "ui/dump.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

class EveryKind : public ui::Screen {
 public:
  explicit EveryKind(ui::Services& services)
      : Screen(services, "CEveryKindDlg", {text::Id{40904}, 0}) {
    combo.items = {"a", "b"};
    drop_down.items = {"0", "1", "2", "3", "4", "5", "6"};
    list.items = {"one", "two", "three", "four", "five", "six", "seven"};
    choice.item_disabled = {false, true};
    tree.rows = {{"C:", "C:\\", 0, true, true, false}, {"kavrel", "C:\\kavrel", 1, true}};
    tree.selected = 1;
    edit.content = "1 ";
    drop_down.selected = 2;
    tick.checked = true;
    locked.read_only = true;
    locked.why_locked = "no card";
    hidden.visible = false;
    picture.content = "cloud.png";
  }
  ui::Label label{*this, "label", {text::id::kOkLabel, 0}};
  ui::ReadOnly shown{*this, "shown"};
  ui::Edit edit{*this, "edit", {text::id::kHelpLabel, 0}, 7};
  ui::Edit locked{*this, "locked"};
  ui::Combo combo{*this, "combo"};
  ui::DropDown drop_down{*this, "drop_down"};
  ui::List list{*this, "list"};
  ui::Choice choice{*this, "choice", {}, {{text::id::kButtonYes, 0}, {text::id::kButtonNo, 0}}};
  ui::Tick tick{*this, "tick"};
  ui::Button hidden{*this, "hidden", {}};
  ui::Picture picture{*this, "picture"};
  ui::Tree tree{*this, "tree"};
};

TEST(Dump, NamesEveryControlWithKindCaptionValueLinesAndFlags) {
  fakes::World world;
  EveryKind screen(world.services);
  screen.open();
  EXPECT_EQ(ui::dump(screen),
            "screen CEveryKindDlg \"OK\"\n"
            "  label label \"OK\"\n"
            "  shown read-only = \"\"\n"
            "  edit edit \"Help\" = \"1 \" [focus, max 7]\n"
            "  locked edit = \"\" [locked, why \"no card\"]\n"
            "  combo combo = \"\" of \"a\", \"b\"\n"
            "  drop_down drop-down = \"2\" of \"0\", \"1\", … \"6\" (7 lines)\n"
            "  list list = \"\" of \"one\", \"two\", \"three\", \"four\", \"five\", \"six\", "
            "\"seven\"\n"
            "  choice choice = \"\" of \"YES\", \"NO\" [disabled]\n"
            "  tick tick = \"on\"\n"
            "  hidden button [hidden]\n"
            "  picture picture = \"cloud.png\"\n"
            "  tree tree = \"C:\\\\kavrel\"\n"
            "    - C:\n"
            "      + kavrel\n");
}

TEST(Dump, ShowsCaptionsAndChoicesInTheLanguageOfTheMoment) {
  fakes::World world;
  world.japanese();
  EveryKind screen(world.services);
  screen.open();
  const std::string dump = ui::dump(screen);
  EXPECT_NE(dump.find("edit edit \"ヘルプ\""), std::string::npos) << dump;
  EXPECT_NE(dump.find("of \"はい(&Y)\", \"いいえ(&N)\""), std::string::npos) << dump;
}

TEST(Dump, ShowsMenuCommandsAndWhichAreGrey) {
  class WithMenu : public ui::Screen {
   public:
    explicit WithMenu(ui::Services& services) : Screen(services, "CWithMenuDlg", {}) {
      ui::MenuItem file{{text::id::kOkLabel, 0}, {}, {}, true};
      file.children.push_back({{text::id::kHelpLabel, 0}, {}, {}, true});
      file.children.push_back({{text::id::kCancelLabel, 0}, {}, {}, false});
      set_menu({file});
    }
  };
  fakes::World world;
  WithMenu screen(world.services);
  EXPECT_EQ(ui::dump(screen),
            "screen CWithMenuDlg \"\"\n  menu \"OK/Help\"\n  menu \"OK/Cancel\" [disabled]\n");
}

TEST(Quoted, MakesBlanksControlCharactersAndBrokenBytesVisible) {
  const struct {
    std::string_view text;
    std::string_view shown;
  } rows[] = {
      {"", "\"\""},
      {"a ", "\"a \""},
      {"a\nb\r\t", "\"a\\nb\\r\\t\""},
      {"\"\\", "\"\\\"\\\\\""},
      {std::string_view("\0\x1b\x7f", 3), "\"\\x00\\x1B\\x7F\""},
      {"\u3000あ", "\"\\u3000あ\""},
      {"\xe3\x81", "\"\\xE3\\x81\""},
      {"\xc0\x80", "\"\\xC0\\x80\""},
      {"\xed\xa0\x80", "\"\\xED\\xA0\\x80\""},
      {"\xff", "\"\\xFF\""},
      {"\xf0\x9f\x98\x80", "\"\xf0\x9f\x98\x80\""},
  };
  for (const auto& row : rows) EXPECT_EQ(ui::quoted(row.text), row.shown);
}

TEST(AccessKey, IsFoundBehindTheAmpersandAlsoInJapaneseBrackets) {
  const struct {
    std::string_view caption;
    std::string_view plain;
    char key;
  } rows[] = {
      {"Save", "Save", 0},
      {"&Save", "Save", 'S'},
      {"S&ave", "Save", 'A'},
      {"はい(&Y)", "はい", 'Y'},
      {"&YES", "YES", 'Y'},
      {"Rock && roll", "Rock & roll", 0},
      {"A && &B", "A & B", 'B'},
      {"ends&", "ends&", 0},
      {"(&", "(&", 0},
      {"保存(&s)…", "保存…", 'S'},
      {"", "", 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ui::without_access_key(row.caption), row.plain) << row.caption;
    EXPECT_EQ(ui::access_key(row.caption), row.key) << row.caption;
  }
}

}  // namespace
