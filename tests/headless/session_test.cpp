// What a script can do and what its transcript says. Each row is a script that is played after
// "start" and the part of the transcript that follows.

#include "headless/session.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <streambuf>

#include "headless/test_form.h"

namespace {

using test_form::play;
using test_form::Played;

constexpr std::string_view kOpened = "> start\n  screen CFormDlg \"Help\" opened\n";

// The transcript behind the opening of the form, which every script has.
std::string after_start(const std::string& commands, const headless::Options& options = {}) {
  const Played played = play("start\n" + commands, options);
  EXPECT_EQ(played.status, 0) << played.transcript;
  EXPECT_TRUE(played.transcript.starts_with(kOpened)) << played.transcript;
  return played.transcript.substr(std::min(kOpened.size(), played.transcript.size()));
}

TEST(Session, RepeatsEachCommandAndCommentAndThenSaysWhatHappened) {
  EXPECT_EQ(play("# a form\n\nstart\nclose\n").transcript,
            "# a form\n\n> start\n  screen CFormDlg \"Help\" opened\n"
            "> close\n  screen CFormDlg \"Help\" closed (cancel)\n  the program has ended\n");
}

TEST(Session, PassesOverAByteOrderMarkAtTheBeginningOnly) {
  EXPECT_EQ(play("\xEF\xBB\xBFstart\nclose\n").transcript, play("start\nclose\n").transcript);
  EXPECT_EQ(play("start\n\xEF\xBB\xBF"
                 "close\n")
                .status,
            2);
}

TEST(Session, EscapesWhatWouldUpsetATerminalInItsReasonsToo) {
  for (const std::string& command : std::vector<std::string>{
           "set no\x1b[2J 1", "choose lines no\x1b[2J", "key no\x1b[2J", "no\x1b[2J",
           "expect note no\x1b[2J", "menu no\x1b[2J", "press \"no\x1b[2J\"", "tick no\x1b[2J on"}) {
    const Played played = play("start\n" + command + "\n");
    EXPECT_NE(played.status, 0) << command;
    EXPECT_EQ(played.transcript.find('\x1b'), std::string::npos) << played.transcript;
    EXPECT_EQ(played.error.find('\x1b'), std::string::npos) << played.error;
    EXPECT_NE(played.error.find("no\\x1B[2J"), std::string::npos) << played.error;
  }
}

// Reading fails as a folder's or a broken medium's does.
TEST(Session, StopsWhenTheScriptCannotBeReadOn) {
  class Broken : public std::streambuf {
   public:
    explicit Broken(std::string text) : text_(std::move(text)) {
      setg(text_.data(), text_.data(), text_.data() + text_.size());
    }

   protected:
    int underflow() override { throw std::runtime_error("broken"); }

   private:
    std::string text_;
  };
  for (const char* const before : {"", "# so far\n", "# half a li"}) {
    Broken buffer(before);
    std::istream script(&buffer);
    std::ostringstream transcript;
    std::ostringstream error;
    EXPECT_EQ(headless::run_session(script, transcript, error, [](const headless::Doors&) {}),
              headless::Status::kCannot);
    EXPECT_NE(error.str().find(": the script cannot be read\n"), std::string::npos) << before;
  }
}

TEST(Session, EndsWhenTheTranscriptCannotBeWritten) {
  std::istringstream script("start\nstart\n");
  std::ostringstream transcript;
  std::ostringstream error;
  int runs = 0;
  const auto program = [&](const headless::Doors&) {
    ++runs;
    transcript.setstate(std::ios::badbit);
  };
  EXPECT_EQ(headless::run_session(script, transcript, error, program), headless::Status::kCannot);
  EXPECT_EQ(runs, 1) << "nothing more is done when nobody sees it";
  EXPECT_EQ(error.str(), "the transcript cannot be written\n");
}

TEST(Session, MayStartTheProgramAgain) {
  const Played played = play("start\nclose\nstart\nclose\n");
  EXPECT_EQ(played.status, 0);
  EXPECT_NE(played.transcript.find("ended\n> start\n  screen"), std::string::npos);
}

TEST(Session, EndsLikeAKilledProgramWhenTheScriptEndsWithWindowsOpen) {
  const Played played = play("start\npress ask\nanswer yes\n");
  EXPECT_EQ(played.status, 0);
  EXPECT_TRUE(played.transcript.ends_with("screen CInnerDlg \"OK\" opened\n")) << played.transcript;
}

TEST(Session, PrintsWhatAnEventChangedBesidesWhatThePersonDid) {
  EXPECT_EQ(after_start("set code 12\n"), "> set code 12\n    doubled: \"\" -> \"1212\"\n");
}

TEST(Session, ShowsThatATextTooLongWasCut) {
  EXPECT_EQ(after_start("set code 12345\n"),
            "> set code 12345\n    code: \"12345\" -> \"1234\"\n"
            "    doubled: \"\" -> \"12341234\"\n");
}

TEST(Session, LetsARefusedFieldKeepTheFocusAndTypesNothing) {
  EXPECT_EQ(after_start("set code x\nset note y\nanswer ok\nexpect code x\nexpect note\n"),
            "> set code x\n    doubled: \"\" -> \"xx\"\n"
            "> set note y\n"
            "  message \"KAVREL for WIN\": \"No digital string\" [OK]\n"
            "> answer ok\n"
            "    nothing typed: the focus was not given\n"
            "    focus: code\n"
            "> expect code x\n> expect note\n");
}

TEST(Session, LeavesAFieldUncheckedForCancelAndHelp) {
  EXPECT_EQ(after_start("set code x\npress help\n"),
            "> set code x\n    doubled: \"\" -> \"xx\"\n"
            "> press help\n  help \"C:\\\\program\\\\help\\\\Kavrel_E.CHM::/page_E.htm\"\n");
}

TEST(Session, AnswersAQuestionByNameByLabelOrByItsCloseBox) {
  const std::string asked =
      "    note: \"\" -> \"asked\"\n"
      "  question \"KAVREL for WIN\": \"No value input\" [YES] [NO]\n";
  const std::string declined = "    hidden: shown\n    dead: enabled\n    focus: note\n";
  for (const std::string& answer :
       std::vector<std::string>{"answer no", "answer NO", "close", "answer \"no\""}) {
    EXPECT_EQ(after_start("press ask\n" + answer + "\n"),
              "> press ask\n" + asked + "> " + answer + "\n" + declined);
  }
}

TEST(Session, GoesOnReadingInTheWindowThatAHandlerOpened) {
  EXPECT_EQ(after_start("press ask\nexpect-message value\nanswer yes\nset inner  z \n"
                        "expect inner  z \npress ok\n"),
            "> press ask\n    note: \"\" -> \"asked\"\n"
            "  question \"KAVREL for WIN\": \"No value input\" [YES] [NO]\n"
            "> expect-message value\n"
            "> answer yes\n  screen CInnerDlg \"OK\" opened\n"
            "> set inner  z \n> expect inner  z \n"
            "> press ok\n  screen CInnerDlg \"OK\" closed (ok)\n"
            "    note: \"asked\" -> \" z \"\n");
}

TEST(Session, ShowsNoticesPausesAndTheFolderBrowser) {
  EXPECT_EQ(after_start("click link\nanswer D:\\x y\n"),
            "> click link\n"
            "  notice CNoticeDlg \"\"\n    text label \"Copying\"\n"
            "  pause 1000 ms\n  notice CNoticeDlg gone\n"
            "  folder browser \"Where?\" at \"C:\\\\\"\n"
            "> answer D:\\x y\n    note: \"\" -> \"D:\\\\x y\"\n");
  EXPECT_NE(after_start("click link\nclose\n").find("note: \"\" -> \"(none)\""), std::string::npos);
}

TEST(Session, PrintsThroughTheSystemsPrintDialog) {
  EXPECT_EQ(after_start("menu OK/Help\nanswer print\n"),
            "> menu OK/Help\n  printing \"print\": \"Listing\" [Print] [Cancel]\n"
            "> answer print\n  printed \"first\"\n  printed \"second \"\n"
            "  printed drawing across 0 to 1, up 0 to 1\n"
            "  printed drawing line text (0 0) (1 1)\n"
            "    note: \"\" -> \"printed\"\n");
  EXPECT_NE(after_start("menu OK/Help\nclose\n").find("\"not printed\""), std::string::npos);
}

TEST(Session, PrintsNothingWhereTheQueueTakesNothing) {
  headless::Options options;
  options.paper = headless::Paper::kFails;
  EXPECT_EQ(after_start("menu OK/Help\nanswer print\n", options),
            "> menu OK/Help\n  printing \"print\": \"Listing\" [Print] [Cancel]\n"
            "> answer print\n  printing failed\n    note: \"\" -> \"not printed\"\n");
  EXPECT_EQ(after_start("menu OK/Help\nanswer cancel\n", options),
            "> menu OK/Help\n  printing \"print\": \"Listing\" [Print] [Cancel]\n"
            "> answer cancel\n    note: \"\" -> \"not printed\"\n");
}

TEST(Session, RunsAMenuCommandByItsEnglishTexts) {
  EXPECT_EQ(after_start("menu OK/YES\n"), "> menu OK/YES\n    note: \"\" -> \"from the menu\"\n");
  EXPECT_NE(after_start("press japanese\nmenu ok/yes\n").find("from the menu"), std::string::npos);
  for (const char* const path : {"menu OK/VOSClim\n", "menu OK/ VOSClim\n"})
    EXPECT_NE(after_start(path).find("behind a blank"), std::string::npos) << path;
}

TEST(Session, ChoosesALineByIndexOrByText) {
  const struct {
    std::string choose;
    std::string control;
    std::string shown;
  } rows[] = {
      {"hour 1", "hour", "06"},
      {"hour 06", "hour", "06"},
      {"hour \"18\"", "hour", "18"},
      {"hour 18", "hour", "18"},
      {"lines 0", "lines", "one"},
      {"lines two", "lines", "two"},
      {"lines  padded ", "lines", " padded "},
      {"lines \" padded \"", "lines", " padded "},
      {"answer YES", "answer", "YES"},
      {"tree C:\\a\\b", "tree", "C:\\a\\b"},
      {"tree c:\\", "tree", "C:\\"},
      {"tree Disk", "tree", "C:\\"},
  };
  for (const auto& row : rows) {
    const Played played =
        play("start\nchoose " + row.choose + "\nexpect " + row.control + " " + row.shown + "\n");
    EXPECT_EQ(played.status, 0) << row.choose << "\n" << played.transcript;
  }
}

TEST(Session, ChoosesByTheEnglishTextAlsoInJapanese) {
  const std::string transcript =
      after_start("press japanese\nchoose answer YES\nexpect answer はい(&Y)\n");
  EXPECT_NE(transcript.find("language: Japanese\n"), std::string::npos) << transcript;
}

TEST(Session, NamesAControlByItsEnglishLabel) {
  EXPECT_EQ(play("start\npress japanese\nset \"No value input\" 12\nexpect code 12\n").status, 0);
}

TEST(Session, TicksAndKeys) {
  EXPECT_EQ(after_start("tick tick on\nexpect tick on\ntick tick off\nexpect tick off\n"
                        "key Tab\nkey shift+tab\nkey F1\nkey Escape\n"),
            "> tick tick on\n> expect tick on\n> tick tick off\n> expect tick off\n"
            "> key Tab\n    focus: tree\n> key shift+tab\n    focus: tick\n"
            "> key F1\n  help \"C:\\\\program\\\\help\\\\Kavrel_E.CHM::/page_E.htm\"\n"
            "> key Escape\n  screen CFormDlg \"Help\" closed (cancel)\n  the program has ended\n");
}

TEST(Session, ChoosesLinesWithKeys) {
  EXPECT_EQ(after_start("focus lines\nkey Down\nkey p\nkey up\nkey End\n"),
            "> focus lines\n"
            "> key Down\n    lines: \"\" -> \"one\"\n"
            "> key p\n    lines: \"one\" -> \" padded \"\n"
            "> key up\n    lines: \" padded \" -> \"two\"\n"
            "> key End\n    lines: \"two\" -> \" padded \"\n");
}

TEST(Session, TicksLinesOfAList) {
  EXPECT_EQ(after_start("tick boxes 0 off\ntick boxes 14111518.tlx off\nshow boxes\n"
                        "tick boxes \"14111518.tlx   15\" on\n"
                        "choose boxes 2\ntick boxes 0 on\nkey Space\nchoose boxes 3\n"
                        "key PageUp\n"),
            "> tick boxes 0 off\n> tick boxes 14111518.tlx off\n"
            "> show boxes\n  boxes list = \"\" of \"14111512.tlx   15\", \"14111515.tlx   15\" "
            "[ticked], \"14111518.tlx   15\", \"14111521.tlx   15\" [ticked] [focus]\n"
            "> tick boxes \"14111518.tlx   15\" on\n"
            "> choose boxes 2\n    boxes: \"14111515.tlx   15\" no longer ticked\n"
            "> tick boxes 0 on\n    boxes: \"14111515.tlx   15\" ticked\n"
            "> key Space\n    boxes: \"14111515.tlx   15\" no longer ticked\n"
            "    boxes: \"14111518.tlx   15\" no longer ticked\n"
            "> choose boxes 3\n    boxes: \"14111512.tlx   15\" no longer ticked\n"
            "    boxes: \"14111521.tlx   15\" no longer ticked\n"
            "> key PageUp\n    boxes: \"14111521.tlx   15\" -> \"14111512.tlx   15\"\n");
}

TEST(Session, TellsManyTicksAsANumber) {
  EXPECT_EQ(after_start("choose boxes 3\n"), "> choose boxes 3\n    boxes: 0 of 4 lines ticked\n");
}

TEST(Session, SaysWhyALineCannotBeTicked) {
  struct Row {
    const char* command;
    const char* reason;
  };
  const Row rows[] = {{"tick boxes on", "tick NAME LINE on, or tick NAME LINE off"},
                      {"tick boxes 0", "tick NAME LINE on, or tick NAME LINE off"},
                      {"tick boxes 0 maybe", "tick NAME LINE on, or tick NAME LINE off"},
                      {"tick boxes 9 on", "boxes has no line \"9\""},
                      {"tick boxes 1411151 on", "boxes has no line \"1411151\""},
                      {"tick lines 0 on", "lines is a list, not a tick box"}};
  for (const Row& row : rows) {
    const Played played = play(std::string("start\n").append(row.command).append("\n"));
    EXPECT_EQ(played.status, 2) << row.command;
    EXPECT_EQ(played.error, std::string("line 2: ").append(row.reason).append("\n"));
  }
}

TEST(Session, RunsAMenuCommandByItsKeys) {
  EXPECT_EQ(after_start("key ctrl+y\n"), "> key ctrl+y\n    note: \"\" -> \"from the menu\"\n");
}

TEST(Session, OpensAndClosesARowOfATree) {
  EXPECT_EQ(after_start("choose tree Disk\npress tree\npress tree\n"),
            "> choose tree Disk\n"
            "> press tree\n    tree rows:\n      - Disk\n        + a\n          b\n"
            "> press tree\n    tree rows:\n      + Disk\n");
}

TEST(Session, ShowsOneControlOrAll) {
  EXPECT_EQ(after_start("show locked\n"),
            "> show locked\n  locked edit = \"\" [locked, why \"from the card\"]\n");
  const std::string all = after_start("show\n");
  for (const char* const part : {"  screen CFormDlg \"Help\"\n", "    menu \"OK/NO\" [disabled]\n",
                                 "    code edit \"No value input\" = \"\" [focus, max 4]\n",
                                 "    dead button [disabled]\n"}) {
    EXPECT_NE(all.find(part), std::string::npos) << part << all;
  }
}

TEST(Session, PrintsRecordAndReportOfTheOpenObservation) {
  EXPECT_EQ(after_start("set code 12\nrecord\nreport\n"),
            "> set code 12\n    doubled: \"\" -> \"1212\"\n"
            "> record\n    YY = \"12\"\n    note = \"\"\n> report\n  report \"BBXX 12\\r\\n\"\n");
}

TEST(Session, FailsWithStatusOneWhenAnExpectationFails) {
  const struct {
    std::string script;
    std::string reason;
  } rows[] = {
      {"start\nexpect code 1\n", "line 2: code shows \"\", expected \"1\"\n"},
      {"start\nset note a\nexpect note \"a \"\n", "line 3: note shows \"a\", expected \"a \"\n"},
      {"start\nexpect-message x\n", "line 2: expected a message with \"x\", there is none\n"},
      {"start\npress ask\nexpect-message x\n",
       "line 3: expected a message with \"x\", it is \"No value input\"\n"},
      {"start\npress ask\nexpect-message\n",
       "line 3: expected a message with \"\", it is \"No value input\"\n"},
  };
  for (const auto& row : rows) {
    const Played played = play(row.script);
    EXPECT_EQ(played.status, 1) << row.script;
    EXPECT_EQ(played.error, row.reason) << row.script;
    EXPECT_TRUE(played.transcript.ends_with("! " + row.reason)) << played.transcript;
  }
}

TEST(Session, StopsWithStatusTwoLineAndReasonWhenACommandCannotBeCarriedOut) {
  const struct {
    std::string script;
    std::string reason;
  } rows[] = {
      {"show\n", "line 1: the program is not running: start it first"},
      {"start\nstart\n", "line 2: the program is already running"},
      {"start\nbogus x\n", "line 2: no command \"bogus\""},
      {"start\nSET code 1\n", "line 2: no command \"SET\""},
      {"start\nset\n", "line 2: set wants the name of a control"},
      {"start\nset \"code 1\n", "line 2: set wants the name of a control"},
      {"start\nset nobody 1\n", "line 2: no control nobody in CFormDlg"},
      {"start\nshow nobody\n", "line 2: no control nobody in CFormDlg"},
      {"start\nexpect nobody\n", "line 2: no control nobody in CFormDlg"},
      {"start\nset \"Nobody\" 1\n", "line 2: no control labelled \"Nobody\" in CFormDlg"},
      {"start\nset hidden 1\n", "line 2: hidden is hidden"},
      {"start\nexpect hidden\n", "line 2: hidden is hidden"},
      {"start\npress dead\n", "line 2: dead is disabled"},
      {"start\nset locked 1\n", "line 2: locked is locked (from the card)"},
      {"start\nset ok 1\n", "line 2: ok is a button: nothing can be typed into it"},
      {"start\nset doubled 1\n", "line 2: doubled is a read-only: nothing can be typed into it"},
      {"start\nfocus heading\n", "line 2: heading is a label: it takes no focus"},
      {"start\nchoose code 1\n", "line 2: code is an edit: there is nothing to choose"},
      {"start\nchoose lines 3\n", "line 2: lines has no line \"3\""},
      {"start\nchoose lines -1\n", "line 2: lines has no line \"-1\""},
      {"start\nchoose hour \"1\"\n", "line 2: hour has no line \"1\""},
      {"start\nchoose lines\n", "line 2: lines has no line \"\""},
      {"start\nchoose lines 99999999999\n", "line 2: lines has no line \"99999999999\""},
      {"start\nchoose answer NO\n", "line 2: line \"NO\" of answer is disabled"},
      {"start\nchoose tree C:\\b\\x\n", "line 2: tree has no row \"C:\\\\b\\\\x\""},
      {"start\ntick code on\n", "line 2: code is an edit, not a tick box"},
      {"start\ntick tick maybe\n", "line 2: tick NAME on, or tick NAME off"},
      {"start\npress code\n", "line 2: code is an edit that cannot be pressed"},
      {"start\nclick heading\n", "line 2: heading is a label that cannot be pressed"},
      {"start\npress tree\n", "line 2: no line of tree is chosen"},
      {"start\nmenu OK\n", "line 2: \"OK\" is a menu, not a command"},
      {"start\nmenu OK/NO\n", "line 2: the menu command \"OK/NO\" is greyed"},
      {"start\nmenu OK/Save\n", "line 2: no menu command \"OK/Save\""},
      {"start\nmenu\n", "line 2: no menu command \"\""},
      {"start\nkey F2\n",
       "line 2: no key \"F2\"; F1, Enter, Escape, Tab, Shift+Tab, an arrow, Home, End, PageUp, "
       "PageDown, Space, one "
       "character or the keys of a menu command or a control"},
      {"start\nanswer ok\n", "line 2: there is no question to answer"},
      {"start\npress ask\nanswer maybe\n", "line 3: no button \"maybe\"; there are [YES] [NO]"},
      {"start\npress ask\nset note x\n",
       "line 3: a question is waiting: \"KAVREL for WIN\": \"No value input\" [YES] [NO]"},
      {"start\nclick link\nset note x\n",
       "line 3: the folder browser is open: answer FOLDER, answer cancel or close"},
      {"start\npress ask\nanswer yes\nset code 1\n", "line 4: no control code in CInnerDlg"},
  };
  for (const auto& row : rows) {
    const Played played = play(row.script);
    EXPECT_EQ(played.status, 2) << row.script;
    EXPECT_EQ(played.error, row.reason + "\n") << row.script;
    EXPECT_TRUE(played.transcript.ends_with("! " + row.reason + "\n")) << played.transcript;
  }
}

TEST(Session, NamesTheControlsThatShareALabel) {
  const Played played = play("start\npress \"Help\"\n");
  EXPECT_EQ(played.status, 0) << "the heading beside the button is a label: the button is meant";
}

TEST(Session, SurvivesAnyBytesAndVeryLongLines) {
  const struct {
    std::string script;
    std::string reason;
  } rows[] = {
      {"start\nset code \xff\n", "line 2: bytes that are not UTF-8"},
      {"\xe3\x81", "line 1: bytes that are not UTF-8"},
      {"start\nset note " + std::string(70000, 'x') + "\n",
       "line 2: a line longer than 65536 bytes"},
      {std::string("\0\0", 2), "line 1: the program is not running: start it first"},
  };
  for (const auto& row : rows) {
    const Played played = play(row.script);
    EXPECT_EQ(played.status, 2);
    EXPECT_EQ(played.error, row.reason + "\n");
  }
  EXPECT_EQ(play("").status, 0);
  EXPECT_EQ(play("start\r\nset note a\r\nexpect note a").status, 0);
  const std::string longest(60000, 'x');
  EXPECT_EQ(play("start\nset note " + longest + "\nexpect note " + longest).status, 0);
  const std::string odd = after_start(std::string("set note a\0\x1b\u3000\n", 16));
  EXPECT_NE(odd.find("> set note a\\x00\\x1B\\u3000\n"), std::string::npos) << odd;
}

TEST(Session, EveryByteAsALineIsACommandThatIsRefusedOrNone) {
  for (int byte = 0; byte < 256; ++byte) {
    const Played played = play(std::string("start\n") + static_cast<char>(byte) + "\n");
    const bool harmless =
        byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r' || byte == '#';
    EXPECT_EQ(played.status, harmless ? 0 : 2) << byte;
  }
}

}  // namespace
