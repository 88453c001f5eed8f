// Whatever was typed, OK does the same when the field was left by a way that skips its check: by
// Help, or with the text coming while another control has the focus.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

#include "archive/CCreateDir.h"
#include "codetables/CSeaIceDialog.h"
#include "codetables/CSwellWaveDlg.h"
#include "codetables/CWaveLengthDlg.h"
#include "codetables/CWindDlg.h"
#include "elements/CCountDewDlg.h"
#include "elements/CLookWindDlg.h"
#include "elements/CPositionDlg.h"
#include "elements/CPresureTendencyDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "elements/CSea_SurfaceTemperatureDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/CThumidityDlg.h"
#include "elements/CTrueDirWindDlg.h"
#include "elements/CUTCTimeDlg1.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "ship/CFixDataDlg.h"
#include "ship/CKataInputDlg.h"
#include "ship/CVosClimDlg.h"
#include "ship/data/ship_files.h"

namespace {

using Texts = std::vector<std::string>;

Texts of_card(const BarometerCard& c) {
  return {c.check_date,
          c.check_port,
          std::to_string(static_cast<int>(c.type)),
          std::to_string(static_cast<int>(c.loading_state)),
          c.total_correction,
          c.instrumental_correction,
          c.height_full_load,
          c.total_correction_full_load,
          c.height_ballast,
          c.total_correction_ballast};
}

template <class Dialog>
std::function<Texts(const ui::Screen&)> reader(Texts (*read)(const Dialog&)) {
  return [read](const ui::Screen& screen) { return read(dynamic_cast<const Dialog&>(screen)); };
}

// What each dialog that is typed into hands back.
const std::map<std::string_view, std::function<Texts(const ui::Screen&)>>& handed_back() {
  static const std::map<std::string_view, std::function<Texts(const ui::Screen&)>> kTable = {
      {"CCreateDir", reader<CCreateDir>([](const CCreateDir& d) { return Texts{d.path()}; })},
      {"CCountDewDlg", reader<CCountDewDlg>([](const CCountDewDlg& d) {
         return Texts{d.values().dry, d.values().wet,
                      std::to_string(static_cast<int>(d.values().state))};
       })},
      {"CLookWindDlg", reader<CLookWindDlg>([](const CLookWindDlg& d) {
         const auto& v = d.values();
         return Texts{v.direction, v.speed, v.heading, v.course, v.ship_speed};
       })},
      {"CPositionDlg", reader<CPositionDlg>([](const CPositionDlg& d) {
         const auto& v = d.values();
         return Texts{v.LaDeg, v.LaMin, v.LoDeg, v.LoMin, v.Qc};
       })},
      {"CPresureTendencyDlg", reader<CPresureTendencyDlg>([](const CPresureTendencyDlg& d) {
         return Texts{d.a(), d.ppp()};
       })},
      {"CSeaIceDialog", reader<CSeaIceDialog>([](const CSeaIceDialog& d) {
         return Texts{d.values().Is, d.values().EsEs, d.values().Rs};
       })},
      {"CSeaSurfacePressureDlg",
       reader<CSeaSurfacePressureDlg>([](const CSeaSurfacePressureDlg& d) {
         const auto& v = d.values();
         Texts texts = of_card(v.card);
         texts.insert(texts.end(), {v.reading, v.hour, v.minute,
                                    std::to_string(static_cast<int>(v.time_choice))});
         return texts;
       })},
      {"CSea_SurfaceTemperatureDlg",
       reader<CSea_SurfaceTemperatureDlg>([](const CSea_SurfaceTemperatureDlg& d) {
         return Texts{d.values().Ss, d.values().TwTwTw};
       })},
      {"CTemperatureAndDewDlg", reader<CTemperatureAndDewDlg>([](const CTemperatureAndDewDlg& d) {
         return Texts{d.values().air, d.values().dew};
       })},
      {"CThumidityDlg",
       reader<CThumidityDlg>([](const CThumidityDlg& d) { return Texts{d.humidity()}; })},
      {"CTrueDirWindDlg", reader<CTrueDirWindDlg>([](const CTrueDirWindDlg& d) {
         return Texts{d.direction(), d.speed()};
       })},
      {"CUTCTimeDlg1", reader<CUTCTimeDlg1>([](const CUTCTimeDlg1& d) {
         const auto& v = d.values();
         return Texts{v.Year, v.Month, v.YY, v.GG};
       })},
      {"CSwellWaveDlg", reader<CSwellWaveDlg>([](const CSwellWaveDlg& d) {
         const auto& [first, second] = d.values();
         return Texts{first.direction,  first.period,  first.height,
                      second.direction, second.period, second.height};
       })},
      {"CWaveLengthDlg",
       reader<CWaveLengthDlg>([](const CWaveLengthDlg& d) { return Texts{d.period()}; })},
      {"CWindDlg", reader<CWindDlg>([](const CWindDlg& d) {
         return Texts{d.values().period, d.values().height};
       })},
      {"CFixDataDlg", reader<CFixDataDlg>([](const CFixDataDlg& d) {
         const ShipFixedData v = d.values();
         Texts texts = of_card(v.card);
         texts.insert(texts.end(), {v.call_sign, v.imo_number, v.aws_manufacturer});
         return texts;
       })},
      {"CKataInputDlg",
       reader<CKataInputDlg>([](const CKataInputDlg& d) { return of_card(d.card()); })},
      {"CVosClimDlg", reader<CVosClimDlg>([](const CVosClimDlg& d) {
         return Texts{d.values().cargo_height, d.values().departure};
       })},
  };
  return kTable;
}

// An act that makes a field editable that is not so when the screen opens.
struct Opened {
  std::string control;  ///< empty when nothing is to be done
  int line = 0;         ///< of a choice or drop-down; 0 or 1 of a tick box
};

bool can_be_typed_into(const ui::Control& c) {
  return (c.kind == ui::Kind::kEdit || c.kind == ui::Kind::kCombo) && c.enabled && c.visible &&
         !c.read_only;
}

ui::Control* with_role(const ui::Screen& screen, ui::Role role) {
  for (ui::Control* const control : screen.controls()) {
    if (control->role == role) return control;
  }
  return nullptr;
}

void carry_out(ui::Screen& screen, const Opened& act) {
  if (act.control.empty()) return;
  ui::Control& control = *screen.find(act.control);
  if (control.kind == ui::Kind::kTick) {
    screen.tick(control, act.line == 1);
  } else {
    screen.choose(control, act.line);
  }
}

// How the text comes and how OK is reached.
enum class Way { kOk, kHelpThenOk, kEnter, kHelpThenBackToTheFieldBefore, kWithoutFocus };
constexpr Way kWays[] = {Way::kHelpThenOk, Way::kEnter, Way::kHelpThenBackToTheFieldBefore,
                         Way::kWithoutFocus};
constexpr const char* kWayNames[] = {"OK", "Help, OK", "Enter", "Help, another control, OK",
                                     "typed while OK has the focus"};

struct Outcome {
  std::optional<int> result;
  Texts messages;
  Texts opened;
  std::string focus;
  std::string dump;
  Texts handed_back;
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& o) {
  out << "result " << o.result.value_or(-99) << "\n";
  for (const std::string& m : o.messages) out << "message " << m << "\n";
  for (const std::string& m : o.opened) out << m << "\n";
  out << "focus " << o.focus << "\n" << o.dump;
  for (const std::string& h : o.handed_back) out << "|" << h;
  return out << "|\n";
}

// A control that has the focus without a check of its own.
ui::Control* somewhere_else(const ui::Screen& screen, const ui::Control& from) {
  for (ui::Control* const control : screen.controls()) {
    const auto kind = control->kind;
    if (control != &from && control->can_focus() && !control->on_leave && !control->on_enter &&
        control->role == ui::Role::kNone && kind != ui::Kind::kTree)
      return control;
  }
  return nullptr;
}

class SkippedChecks : public testing::TestWithParam<fakes::ScreenCase> {
 protected:
  struct Play {
    std::string control;
    Opened opened;
    std::optional<std::string> typed;  ///< nothing: the line is chosen
    int line = -1;
    std::string answer;
  };

  static Outcome play(const Play& play, Way way) {
    fakes::World world;
    world.windows.answer_all(play.answer);
    const auto screen = GetParam().make(world.services);
    screen->open();
    carry_out(*screen, play.opened);
    ui::Control& control = *screen->find(play.control);
    ui::Control& ok = *with_role(*screen, ui::Role::kAccept);
    EXPECT_TRUE(screen->move_focus(way == Way::kWithoutFocus ? ok : control));
    if (play.typed) {
      screen->type(control, *play.typed);
    } else {
      screen->choose(control, play.line);
    }
    ui::Control* const help = with_role(*screen, ui::Role::kHelp);
    const bool by_help = way == Way::kHelpThenOk || way == Way::kHelpThenBackToTheFieldBefore;
    if (by_help && help != nullptr) screen->press(*help);
    if (way == Way::kHelpThenBackToTheFieldBefore) {
      if (ui::Control* const other = somewhere_else(*screen, control)) {
        if (help != nullptr) screen->move_focus(*other);
      }
    }
    if (way == Way::kEnter) {
      screen->key(ui::Key::kEnter);
    } else {
      screen->press(ok);
    }
    Outcome outcome;
    outcome.result = screen->result();
    for (const ui::MessageBox& box : world.windows.boxes) outcome.messages.push_back(box.text);
    outcome.opened = world.windows.notices;
    outcome.focus = screen->focused()->name;
    outcome.dump = fakes::dump(*screen);
    outcome.handed_back = handed_back().at(GetParam().class_name)(*screen);
    return outcome;
  }

  // The fields that can be typed into, each with the act that makes it so.
  static std::map<std::string, Opened> fields() {
    fakes::World world;
    world.windows.answer_all("yes");
    std::map<std::string, Opened> found;
    const auto look = [&](const Opened& act) {
      const auto screen = GetParam().make(world.services);
      screen->open();
      carry_out(*screen, act);
      for (const ui::Control* const control : screen->controls()) {
        if (can_be_typed_into(*control)) found.emplace(control->name, act);
      }
    };
    look({});
    const auto sample = GetParam().make(world.services);
    sample->open();
    for (const ui::Control* const control : sample->controls()) {
      const bool is_tick = control->kind == ui::Kind::kTick;
      if (!is_tick && control->kind != ui::Kind::kChoice) continue;
      const int lines = is_tick ? 2 : static_cast<int>(control->items.size());
      for (int line = 0; line < lines; ++line) look({control->name, line});
    }
    return found;
  }

  static void is_the_same_by_every_way(const Play& acts, const std::string& what) {
    const Outcome wanted = play(acts, Way::kOk);
    for (const Way way : kWays) {
      const Outcome got = play(acts, way);
      EXPECT_EQ(got, wanted) << acts.control << " " << what << ", questions answered "
                             << acts.answer << ": " << kWayNames[static_cast<int>(way)]
                             << " differs from OK";
    }
  }
};

const Texts kNasty = {"abc",
                      "１２",
                      "10a3",
                      "99",
                      "-0",
                      "/",
                      "//",
                      "",
                      "   ",
                      "　",
                      "5",
                      "５",
                      "1013.2",
                      "１．５",
                      "12,5",
                      "-",
                      "+1.5",
                      "9999999",
                      "12345678901234567890",
                      "4",
                      "41",
                      "－２６",
                      ".5",
                      "1.5.2"};

TEST_P(SkippedChecks, AreMadeUpForByOkWhateverWasTyped) {
  for (const auto& [name, opened] : fields()) {
    for (const std::string& typed : kNasty) {
      for (const char* const answer : {"yes", "no"})
        is_the_same_by_every_way({name, opened, typed, -1, answer}, "\"" + typed + "\"");
    }
  }
}

// Only what no act on the screen itself opens is left out.
TEST_P(SkippedChecks, AreTriedInEveryFieldOfTheScreen) {
  fakes::World world;
  const auto screen = GetParam().make(world.services);
  const auto found = fields();
  for (const ui::Control* const control : screen->controls()) {
    if (control->kind != ui::Kind::kEdit && control->kind != ui::Kind::kCombo) continue;
    const bool of_the_other_card =
        GetParam().class_name == "CKataInputDlg" && control->name == "total_correction";
    EXPECT_EQ(found.contains(control->name), !of_the_other_card) << control->name;
  }
}

TEST_P(SkippedChecks, AreMadeUpForByOkWhateverLineWasChosen) {
  fakes::World world;
  for (const auto& [name, opened] : fields()) {
    const auto screen = GetParam().make(world.services);
    screen->open();
    const int lines = static_cast<int>(screen->find(name)->items.size());
    for (const int line : {0, lines / 2, lines - 1}) {
      if (lines > 0)
        is_the_same_by_every_way({name, opened, {}, line, "no"}, "line " + std::to_string(line));
    }
  }
}

// Only screens that have something to type and an OK button.
std::vector<fakes::ScreenCase> typed_into() {
  std::vector<fakes::ScreenCase> found;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    fakes::World world;
    world.windows.answer_all("yes");
    const auto screen = row.make(world.services);
    screen->open();
    const auto controls = screen->controls();
    const bool has_fields = std::any_of(controls.begin(), controls.end(), [](const ui::Control* c) {
      // A text that is gone through with the arrows is never typed into.
      return (c->kind == ui::Kind::kEdit || c->kind == ui::Kind::kCombo) && !c->on_arrow;
    });
    if (has_fields && with_role(*screen, ui::Role::kAccept) != nullptr) found.push_back(row);
  }
  return found;
}

// By the table: to make every screen takes half a second, which each start of this program would wait.
std::vector<fakes::ScreenCase> in_table() {
  std::vector<fakes::ScreenCase> found;
  for (const fakes::ScreenCase& row : fakes::all_screens())
    if (handed_back().contains(row.class_name)) found.push_back(row);
  return found;
}

INSTANTIATE_TEST_SUITE_P(Screens, SkippedChecks, testing::ValuesIn(in_table()),
                         [](const auto& row) { return std::string(row.param.class_name); });

TEST(SkippedChecksTable, TellsOfEveryDialogThatIsTypedIntoWhatItHandsBack) {
  std::vector<std::string_view> walked;
  for (const fakes::ScreenCase& row : typed_into()) {
    walked.push_back(row.class_name);
    EXPECT_TRUE(handed_back().contains(row.class_name)) << row.class_name;
  }
  EXPECT_EQ(walked.size(), handed_back().size());
}

}  // namespace
