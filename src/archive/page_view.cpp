#include "archive/page_view.h"

#include <algorithm>
#include <utility>

#include "archive/print_service.h"
#include "text/ids.h"

namespace id = text::id;

namespace archive {
namespace {

// The heading of all reports, the widest of the three.
constexpr int kWidestHeading = 92;

}  // namespace

PageView::PageView(ui::Screen& screen, ui::Services& services, Print what)
    : page(screen, "page", {id::kAsPrinted}),
      first_page(screen, "first_page", {id::kFirstPage}),
      previous_page(screen, "previous_page", {id::kPreviousPage}),
      next_page(screen, "next_page", {id::kNextPage}),
      last_page(screen, "last_page", {id::kLastPage}),
      position(screen, "position"),
      remark(screen, "remark"),
      save_pdf(screen, "save_pdf", {id::kSaveAsPdf}),
      print(screen, "print", {id::kPrint}),
      cancel(screen, "cancel", {id::kCancelLabel}, ui::Role::kDismiss),
      services_(services),
      what_(std::move(what)) {
  remark.spoken = {id::kSpokenRemark};
  remark.visible = false;
  page.font = ui::kFixedPitch;
  page.max_length = kWidestHeading;
  page.on_page = [this](bool forward) { turn_by(forward); };
  // Beyond the ends there is nothing to turn to. No button is ever disabled: the focus would leave
  // it, and the key that turns the pages would do something else.
  first_page.on_press = [this] { turn_to(0); };
  previous_page.on_press = [this] { turn_by(false); };
  next_page.on_press = [this] { turn_by(true); };
  last_page.on_press = [this] { turn_to(pages()); };
  print.on_press = [this] { print_it(); };
  save_pdf.on_press = [this] { save_it(); };
}

void PageView::tell(std::string what) {
  remark.content = std::move(what);
  remark.visible = !remark.content.empty();
}

bool PageView::enter(ui::Key key, const ui::Control* focused) {
  if (key != ui::Key::kEnter || (focused != nullptr && focused->kind == ui::Kind::kButton))
    return false;
  print_it();
  return true;
}

std::shared_ptr<const ui::Document> PageView::renewed() {
  auto document = what_.document();
  if (document == nullptr) return document;
  const std::size_t open = shown_;
  show(document);
  turn_to(open);
  return document;
}

void PageView::print_it() {
  const auto document = renewed();
  if (document == nullptr) return;
  ui::PrintResult result = ui::PrintResult::kFailed;
  if (!broken()) {
    result = archive::print(services_, sheets_of(services_, document));
    // What is read while it is printed may go away meanwhile.
    if (result == ui::PrintResult::kSuccess && broken()) result = ui::PrintResult::kFailed;
  }
  tell_printed(services_, result, what_.failed);
}

void PageView::save_it() {
  const auto document = renewed();
  if (document == nullptr || broken()) return;
  save_as_pdf(services_, sheets_of(services_, document), what_.folder, what_.name() + ".pdf",
              [this] { return broken(); });
}

void PageView::show(std::shared_ptr<const ui::Document> document) {
  document_ = std::move(document);
  if (document_ != nullptr) {
    // Asking the printer may take a moment, and a list is gone through with a key held down.
    if (asked_for_ != document_->widest()) {
      room_ = services_.printer.page_room(sheets_of(services_, document_));
      room_.lines = std::max<std::size_t>(room_.lines, 1);
      asked_for_ = document_->widest();
    }
    document_ = ui::folded(std::move(document_), room_.columns);
  }
  turn_to(0);
}

std::size_t PageView::pages() const {
  if (document_ == nullptr) return 0;
  return (document_->size() + room_.lines - 1) / room_.lines;
}

void PageView::turn_by(bool forward) {
  turn_to(forward ? shown_ + 1 : shown_ - std::min<std::size_t>(shown_, 1));
}

void PageView::turn_to(std::size_t page_number) {
  const std::size_t count = pages();
  page.content.clear();
  position.literal_caption.clear();
  if (count == 0) return;
  shown_ = std::min(page_number, count - 1);
  for (const std::string& line : document_->lines(shown_ * room_.lines, room_.lines))
    page.content.append(line).append("\n");
  // A line end behind the last line would be a line more.
  if (!page.content.empty()) page.content.pop_back();
  position.literal_caption = text::fill(services_.texts.get(id::kPageOf),
                                        {std::to_string(shown_ + 1), std::to_string(count)});
}

}  // namespace archive
