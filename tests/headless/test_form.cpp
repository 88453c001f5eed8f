#include "headless/test_form.h"

#include "text/strings.h"

namespace test_form {
namespace {

// A person's question in a window of its own.
class CInnerDlg : public ui::Screen {
 public:
  explicit CInnerDlg(ui::Services& services)
      : Screen(services, "CInnerDlg", {text::id::kOkLabel, 0}) {}
  ui::Edit inner{*this, "inner"};
  ui::Button ok{*this, "ok", {text::id::kOkLabel, 0}, ui::Role::kAccept};
};

class CNoticeDlg : public ui::Screen {
 public:
  explicit CNoticeDlg(ui::Services& services) : Screen(services, "CNoticeDlg", {}) {
    text.literal_caption = "Copying";
  }
  ui::Label text{*this, "text"};
};

ui::Drawing diagonal() {
  ui::Drawing drawing{{"across", 0, 1}, {"up", 0, 1}};
  drawing.shapes = {ui::Polyline{{{0, 0}, {1, 1}}}};
  return drawing;
}

}  // namespace

CFormDlg::CFormDlg(ui::Services& with) : Screen(with, "CFormDlg", {text::id::kHelpLabel, 0}) {
  set_up_lines();
  set_up_handlers();
  set_up_menu();
}

void CFormDlg::set_up_lines() {
  locked.read_only = true;
  locked.why_locked = "from the card";
  hidden.visible = false;
  dead.enabled = false;
  hour.items = {"00", "06", "12", "18"};
  lines.items = {"one", "two", " padded "};
  boxes.items = {"14111512.tlx   15", "14111515.tlx   15", "14111518.tlx   15",
                 "14111521.tlx   15"};
  boxes.item_ticked = {true, true, true, true};
  boxes.on_change = [this] {
    if (boxes.selected == 3) boxes.item_ticked.assign(4, false);
    if (boxes.selected == 2) boxes.item_ticked[1] = !boxes.item_ticked[1];
  };
  answer.item_disabled = {false, true};
  tree.rows = {{"Disk", "C:\\", 0, true, false, false}};
  link.literal_caption = "Link";
}

void CFormDlg::set_up_handlers() {
  code.on_leave = [this] {
    if (code.content.empty() || text::is_all_digits(code.content)) return true;
    services().messages.error(text::id::kNoDigitalString);
    return false;
  };
  code.on_change = [this] { doubled.content = code.content + code.content; };
  ask.on_press = [this] {
    note.content = "asked";
    if (services().messages.question(text::id::kNoValueInput, ui::QuestionMode::kYesNo) ==
        ui::kYes) {
      CInnerDlg inner(services());
      if (services().windows.run_modal(inner) == ui::kOk) note.content = inner.inner.content;
    } else {
      dead.enabled = true;
      hidden.visible = true;
      focus(note);
    }
  };
  link.on_press = [this] {
    CNoticeDlg notice(services());
    services().windows.show_notice(notice);
    services().windows.pause(1000);
    services().windows.hide_notice(notice);
    const auto folder = services().windows.browse_for_folder("Where?", "C:\\");
    note.content = folder.value_or("(none)");
  };
  tree.on_expand = [this](std::size_t row) {
    const ui::TreeRow parent = tree.rows[row];
    const std::string base = parent.path.ends_with('\\') ? parent.path : parent.path + "\\";
    tree.rows.insert(tree.rows.begin() + static_cast<std::ptrdiff_t>(row) + 1,
                     {{"a", base + "a", parent.depth + 1, true, false, false},
                      {"b", base + "b", parent.depth + 1, false, false, false}});
  };
  tree.on_reveal = [this](std::string_view path) {
    if (path != "C:\\a\\b") return false;
    tree.rows[0].expanded = true;
    tree.rows.push_back({"a", "C:\\a", 1, true, true, false});
    tree.rows.push_back({"b", "C:\\a\\b", 2, false, false, false});
    tree.selected = 2;
    return true;
  };
  japanese.on_press = [this] {
    services().texts.language = text::Language::kJapanese;
    relabel();
  };
}

void CFormDlg::set_up_menu() {
  ui::MenuItem top{{text::id::kOkLabel, 0}, {}, {}, true};
  top.children.push_back({kYes, {}, [this] { note.content = "from the menu"; }, true, "Ctrl+Y"});
  top.children.push_back({kNo, {}, {}, false});
  top.children.push_back({{text::id::kHelpLabel, 0},
                          {},
                          [this] {
                            const auto printed = services().printer.print(
                                {"Listing", ui::document_of({"first", "second "}), {diagonal()}});
                            note.content =
                                printed == ui::PrintResult::kSuccess ? "printed" : "not printed";
                          },
                          true});
  // Its text begins with a blank.
  top.children.push_back(
      {{text::id::kMenuVosClim, 0}, {}, [this] { note.content = "behind a blank"; }, true});
  set_menu({top});
}

void CFormDlg::on_help() {
  services().help.show({"Kavrel", "page_J.htm", "page_E.htm"});
}

Played play(std::string_view script, const headless::Options& options) {
  std::istringstream source{std::string(script)};
  std::ostringstream transcript;
  std::ostringstream error;
  const auto program = [](const headless::Doors& doors) {
    fakes::World world;
    ui::Messages messages(world.texts, doors.windows);
    text::HelpLauncher help(world.texts, doors.help, "C:\\program");
    ui::Services services{world.clock,     world.locale,  world.drives,  world.no_files,
                          world.code_page, doors.printer, doors.windows, world.texts,
                          messages,        help};
    CFormDlg form(services);
    doors.windows.run_modal(form);
  };
  Played played;
  played.status =
      static_cast<int>(headless::run_session(source, transcript, error, program, options));
  played.transcript = transcript.str();
  played.error = error.str();
  return played;
}

}  // namespace test_form
