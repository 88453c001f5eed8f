#include <gtest/gtest.h>

#include "elements/CUTCTimeDlg1.h"
#include "elements/formulas/observation_years.h"
#include "fakes/fake_ports.h"
#include "platform/calendar.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using Values = CUTCTimeDlg1::Values;

TEST(CalendarDate, KnowsWhichDaysExist) {
  struct Row {
    int year, month, day;
    bool exists;
  };
  const Row rows[] = {{2014, 2, 28, true},   {2014, 2, 29, false}, {2016, 2, 29, true},
                      {2014, 2, 30, false},  {2000, 2, 29, true},  {2100, 2, 29, false},
                      {2014, 4, 30, true},   {2014, 4, 31, false}, {2014, 12, 31, true},
                      {2014, 12, 32, false}, {2014, 0, 1, false},  {2014, 13, 1, false},
                      {2014, 1, 0, false},   {0, 1, 1, false},     {10000, 1, 1, false}};
  for (const Row& row : rows) {
    EXPECT_EQ(platform::is_calendar_date(row.year, row.month, row.day), row.exists)
        << row.year << "-" << row.month << "-" << row.day;
  }
}

struct TimeScreen : testing::Test {
  fakes::World world;
};

TEST_F(TimeScreen, HasItsTextsInBothLanguages) {
  const CUTCTimeDlg1 dialog(world.services, {});
  EXPECT_EQ(dialog.title(), "Observation date and time (UTC)");
  EXPECT_EQ(dialog.caption(dialog.hint),
            "The date and time are automatically set to the time by your personal computer clock. "
            "\nPlease modify if necessary.");
  world.japanese();
  EXPECT_EQ(dialog.title(), "観測日時(UTC)");
  for (const ui::Control* const control : dialog.controls()) {
    if (control->role == ui::Role::kAccept) continue;
    EXPECT_NE(dialog.caption(*control), dialog.english_caption(*control)) << control->name;
  }
}

TEST_F(TimeScreen, ListsMonths01To12Days01To31AndHours00To23) {
  const CUTCTimeDlg1 dialog(world.services, {});
  struct Row {
    const ui::Control& field;
    std::size_t count;
    const char* first;
    const char* tenth;
    const char* last;
  };
  const Row rows[] = {{dialog.month, 12, "01", "10", "12"},
                      {dialog.day, 31, "01", "10", "31"},
                      {dialog.hour, 24, "00", "09", "23"}};
  for (const Row& row : rows) {
    ASSERT_EQ(row.field.items.size(), row.count) << row.field.name;
    EXPECT_EQ(row.field.items.front(), row.first);
    EXPECT_EQ(row.field.items[9], row.tenth);
    EXPECT_EQ(row.field.items.back(), row.last);
  }
  EXPECT_TRUE(dialog.year.items.empty());
  EXPECT_EQ(dialog.year.kind, ui::Kind::kEdit);
}

TEST_F(TimeScreen, FillsEmptyFieldsFromTheClockReadAsUtc) {
  // West of Greenwich the local date is still the day before.
  world.clock.utc_time = {2015, 1, 1, 2, 5, 0};
  world.clock.local_time = {2014, 12, 31, 21, 5, 0};
  struct Row {
    Values in;
    Values shown;
  };
  const Row rows[] = {
      {{}, {"2015", "01", "01", "02"}},
      {{"2014", "11", "15", "12"}, {"2014", "11", "15", "12"}},
      {{"2014", "", "", "12"}, {"2014", "01", "01", "12"}},
      {{"", "11", "15", ""}, {"2015", "11", "15", "02"}},
      {{" ", "3", "5", "6"}, {"2015", "03", "05", "06"}},
  };
  for (const Row& row : rows) {
    CUTCTimeDlg1 dialog(world.services, row.in);
    dialog.open();
    EXPECT_EQ(dialog.year.content, row.shown.Year);
    EXPECT_EQ(dialog.month.content, row.shown.Month);
    EXPECT_EQ(dialog.day.content, row.shown.YY);
    EXPECT_EQ(dialog.hour.content, row.shown.GG);
    EXPECT_EQ(dialog.hour.selected_text(), row.shown.GG);
    EXPECT_EQ(dialog.values(), row.in) << "nothing is handed back before OK";
    // The clock's hour is an offer; the officer chooses the synoptic one.
    fakes::choose_text(dialog, dialog.hour, "18");
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.result(), ui::kOk);
    EXPECT_EQ(dialog.values(), (Values{row.shown.Year, row.shown.Month, row.shown.YY, "18"}));
  }
}

TEST_F(TimeScreen, CancelHandsBackWhatWasHandedIn) {
  for (int way = 0; way < 3; ++way) {
    CUTCTimeDlg1 dialog(world.services, {"2014", "", "", ""});
    dialog.open();
    fakes::enter(dialog, dialog.year, "20xx");
    if (way == 0) dialog.press(dialog.cancel);
    if (way == 1) dialog.key(ui::Key::kEscape);
    if (way == 2) dialog.close_box();
    EXPECT_EQ(dialog.result(), ui::kCancel);
    EXPECT_EQ(dialog.values(), (Values{"2014", "", "", ""}));
  }
}

TEST_F(TimeScreen, TypedAndPickedPartsComeBackInTwoFigures) {
  CUTCTimeDlg1 dialog(world.services, {});
  dialog.open();
  fakes::enter(dialog, dialog.year, "２０１２");
  fakes::enter(dialog, dialog.month, "2");
  fakes::enter(dialog, dialog.day, "29");
  fakes::choose_text(dialog, dialog.hour, "21");
  EXPECT_EQ(dialog.month.content, "02");
  dialog.key(ui::Key::kEnter);
  EXPECT_EQ(dialog.result(), ui::kOk);
  EXPECT_EQ(dialog.values(), (Values{"2012", "02", "29", "21"}));
}

TEST_F(TimeScreen, MainAndIntermediateHoursAreTakenAndAnEmptyOneToo) {
  for (const std::string hour : {"00", "03", "06", "09", "12", "15", "18", "21", ""}) {
    CUTCTimeDlg1 dialog(world.services, {});
    dialog.open();
    fakes::enter(dialog, dialog.hour, hour);
    dialog.press(dialog.ok);
    EXPECT_EQ(dialog.values().GG, hour);
    EXPECT_EQ(dialog.result(), ui::kOk);
  }
}

struct RefusalRow {
  Values in;
  text::Id message;
  const char* focus;
};

TEST_F(TimeScreen, OkRefusesADateThatIsNotCompleteOrDoesNotExist) {
  // Handed in as they are, so that only OK judges them.
  const RefusalRow rows[] = {
      {{"2014", "02", "30", "12"}, id::kInvalidDay, "day"},
      {{"2015", "02", "29", "12"}, id::kInvalidDay, "day"},
      {{"2014", "04", "31", "12"}, id::kInvalidDay, "day"},
      {{"2014", "04", "0", "12"}, id::kInvalidDay, "day"},
      {{"20x4", "04", "01", "12"}, id::kInvalidDay, "year"},
      {{"14", "04", "01", "12"}, id::kInvalidYear, "year"},
      {{"1500", "04", "01", "12"}, id::kInvalidYear, "year"},
      {{"1999", "04", "01", "12"}, id::kInvalidYear, "year"},
      {{"2016", "04", "01", "12"}, id::kInvalidYear, "year"},
      {{"2014", "13", "01", "12"}, id::kInvalidDay, "month"},
      {{"2014", "a", "01", "12"}, id::kInvalidDay, "month"},
      {{"2014", "04", "1.", "12"}, id::kInvalidDay, "day"},
      {{"2014", "04", "01", "24"}, id::kInvalidHour, "hour"},
      {{"2014", "04", "01", "01"}, id::kNotSynopticHour, "hour"},
      {{"2014", "04", "01", "11"}, id::kNotSynopticHour, "hour"},
      {{"2014", "04", "01", "20"}, id::kNotSynopticHour, "hour"},
      {{"2014", "04", "01", "23"}, id::kNotSynopticHour, "hour"},
      {{"2014", "04", "01", "//"}, id::kInvalidHour, "hour"},
  };
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const RefusalRow& row : rows) {
      CUTCTimeDlg1 dialog(world.services, row.in);
      dialog.open();
      const std::string before = fakes::dump(dialog);
      world.windows.expect(row.message);
      dialog.press(dialog.ok);
      const std::string what = row.in.Year + row.in.Month + row.in.YY + row.in.GG;
      EXPECT_FALSE(dialog.result()) << what;
      EXPECT_EQ(fakes::dump(dialog), before) << what;
      EXPECT_EQ(dialog.values(), row.in) << what;
      EXPECT_EQ(dialog.focused(), dialog.find(row.focus)) << what;
      EXPECT_EQ(world.windows.boxes.back().text, text::bilingual(row.message, language));
    }
  }
  EXPECT_EQ(text::bilingual(text::Id{35005}, text::Language::kEnglish), "Invalid day");
}

TEST_F(TimeScreen, OkRefusesAnEmptyYearMonthOrDay) {
  for (const char* name : {"year", "month", "day"}) {
    CUTCTimeDlg1 dialog(world.services, {"2014", "04", "01", "12"});
    dialog.open();
    fakes::enter(dialog, *dialog.find(name), "");
    const std::string before = fakes::dump(dialog);
    world.windows.expect(id::kInvalidDay);
    dialog.press(dialog.ok);
    EXPECT_FALSE(dialog.result()) << name;
    EXPECT_EQ(fakes::dump(dialog), before) << name;
    EXPECT_EQ(dialog.focused(), dialog.find(name));
  }
}

struct LeaveRow {
  const char* field;
  const char* typed;
  text::Id message;
};

TEST_F(TimeScreen, LeavingATypedPartThatCannotBeRefusesItWithItsOwnMessage) {
  const LeaveRow rows[] = {
      {"year", "abcd", id::kInvalidYear}, {"year", "14", id::kInvalidYear},
      {"year", "-201", id::kInvalidYear}, {"year", "1500", id::kInvalidYear},
      {"year", "1999", id::kInvalidYear}, {"year", "2016", id::kInvalidYear},
      {"year", "9999", id::kInvalidYear}, {"month", "13", id::kInvalidMonth},
      {"month", "0", id::kInvalidMonth},  {"month", "x", id::kInvalidMonth},
      {"day", "32", id::kInvalidDay},     {"day", "00", id::kInvalidDay},
      {"hour", "24", id::kInvalidHour},   {"hour", "1.", id::kInvalidHour},
  };
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    world.texts.language = language;
    for (const LeaveRow& row : rows) {
      CUTCTimeDlg1 dialog(world.services, {"2014", "04", "01", "12"});
      dialog.open();
      ui::Control& field = *dialog.find(row.field);
      fakes::enter(dialog, field, row.typed);
      const std::string before = fakes::dump(dialog);
      world.windows.expect(row.message);
      dialog.press(dialog.ok);
      EXPECT_FALSE(dialog.result()) << row.typed;
      EXPECT_EQ(fakes::dump(dialog), before) << row.typed;
      EXPECT_EQ(dialog.focused(), &field) << row.typed;
      // Cancel and Help are never in the way of the check.
      dialog.press(dialog.help);
      dialog.press(dialog.cancel);
      EXPECT_EQ(dialog.result(), ui::kCancel);
    }
  }
  EXPECT_EQ(text::bilingual(text::Id{35003}, text::Language::kEnglish), "Invalid month");
  EXPECT_EQ(text::bilingual(text::Id{35004}, text::Language::kEnglish), "Invalid year");
}

TEST_F(TimeScreen, TakesTheYearsOfObservationsUpToTheNextOfTheClock) {
  for (const int now : {2014, 2026}) {
    world.clock.utc_time = {now, 12, 31, 23, 50, 0};
    const elements::Years years = elements::observation_years(now);
    EXPECT_EQ(years.first, 2000);
    EXPECT_EQ(years.last, now + 1);
    for (const int year : {years.first, now, years.last}) {
      CUTCTimeDlg1 dialog(world.services, {"2014", "04", "01", "12"});
      dialog.open();
      fakes::enter(dialog, dialog.year, std::to_string(year));
      dialog.press(dialog.ok);
      EXPECT_EQ(dialog.result(), ui::kOk) << year;
      EXPECT_EQ(dialog.values().Year, std::to_string(year));
    }
  }
}

TEST_F(TimeScreen, OpensOnTheHourWhenTheOneShownWouldBeRefused) {
  for (int hour = 0; hour < 24; ++hour) {
    world.clock.utc_time = {2014, 11, 15, hour, 50, 0};
    CUTCTimeDlg1 dialog(world.services, {});
    dialog.open();
    EXPECT_EQ(dialog.focused()->name, hour % 3 == 0 ? "year" : "hour") << hour;
    // An hour of the form's own is what is offered then.
    CUTCTimeDlg1 filled(world.services, {"2014", "11", "15", "12"});
    filled.open();
    EXPECT_EQ(filled.focused(), &filled.year) << hour;
  }
}

TEST_F(TimeScreen, FocusPassesThroughAPartThatNobodyTyped) {
  CUTCTimeDlg1 dialog(world.services, {"14", "13", "//", "12"});
  dialog.open();
  for (int i = 0; i < 5; ++i) dialog.key(ui::Key::kTab);
  EXPECT_TRUE(world.windows.boxes.empty());
}

TEST_F(TimeScreen, HelpOpensItsTopic) {
  CUTCTimeDlg1 dialog(world.services, {});
  dialog.open();
  dialog.press(dialog.help);
  world.japanese();
  dialog.key(ui::Key::kF1);
  EXPECT_EQ(world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter11-1_E.htm",
                                      "C:\\program\\help\\Kavrel_J.CHM::/Capter11-1_J.htm"}));
}

}  // namespace
