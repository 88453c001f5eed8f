// What a screen reader says: a control is called by its group, caption and unit, and by nothing else
// of its window; a colour is told in words.

#include "ui/spoken.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "ui/dialog.h"
#include "ui/layout.h"

namespace {

namespace id = text::id;

class Spoken : public ui::OkDialog {
 public:
  explicit Spoken(ui::Services& services) : OkDialog(services, "CSpokenDlg", {id::kAboutTitle}) {
    value.unit = {id::kUnitCelsius};
    broken.literal_caption = "two\r\nlines(&T)";
    outer.literal_caption = "&Outer";
    inner.literal_caption = "Inner";
    caption.literal_caption = "Caption";
    value.literal_caption = "Value";
  }
  ui::Label outer{*this, "outer"};
  ui::Label inner{*this, "inner"};
  ui::Edit value{*this, "value"};
  ui::Edit broken{*this, "broken"};
  ui::Edit bare{*this, "bare"};
  ui::Label caption{*this, "caption"};
};

std::string name_of(const ui::Screen& screen, const ui::Control& control,
                    const ui::Titles& titles) {
  const auto at = titles.find(&control);
  return ui::spoken_name(screen, control,
                         at == titles.end() ? std::vector<const ui::Control*>{} : at->second);
}

TEST(SpokenName, IsGroupCaptionAndUnitWithoutAccessKeys) {
  fakes::World world;
  Spoken screen(world.services);
  screen.open();
  const auto layout = ui::parse_layout(
      "rows\ngroup outer\nrow caption\ngroup inner\nrow value broken\nend\nend\nbare\nbuttons ok\n"
      "end\n");
  ASSERT_EQ(layout.error, "");
  const ui::Titles titles = ui::titles_of(screen, ui::plan_of(screen, layout.root));
  const auto unit = [&] { return std::string(world.texts.get(id::kUnitCelsius)); };
  EXPECT_EQ(name_of(screen, screen.value, titles), "Outer, Inner, Value, " + unit());
  EXPECT_EQ(name_of(screen, screen.broken, titles), "Outer, Inner, two lines");
  EXPECT_EQ(name_of(screen, screen.caption, titles), "Caption");
  EXPECT_EQ(name_of(screen, screen.outer, titles), "Outer");
  EXPECT_EQ(name_of(screen, screen.ok, titles), "OK");
  EXPECT_EQ(name_of(screen, screen.bare, titles), "Version information");
  world.japanese();
  EXPECT_EQ(name_of(screen, screen.value, titles), "Outer、Inner、Value、" + unit());
}

TEST(SpokenState, TellsAMarkInWordsAndWhyAFieldIsLocked) {
  fakes::World world;
  Spoken screen(world.services);
  EXPECT_EQ(ui::spoken_state(screen, screen.value), "");
  screen.value.mark = ui::kMissingMark;
  EXPECT_EQ(ui::spoken_state(screen, screen.value), world.texts.get(id::kSpokenMissing));
  screen.value.mark = ui::kWrongMark;
  screen.value.why_locked = "Because.";
  const std::string english(world.texts.get(id::kSpokenWrong));
  EXPECT_EQ(ui::spoken_state(screen, screen.value), english + " Because.");
  world.japanese();
  EXPECT_NE(ui::spoken_state(screen, screen.value), english + " Because.");
  EXPECT_EQ(ui::spoken_state(screen, screen.value),
            std::string(world.texts.get(id::kSpokenWrong)) + " Because.");
}

}  // namespace
