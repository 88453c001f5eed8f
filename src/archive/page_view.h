#pragma once
// What the printing dialogs share: the document as it will be printed, page by page, and what can be
// done with it.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ui/screen.h"

namespace archive {

class PageView {
 public:
  struct Print {
    /// The document as it is at this moment, under the time of this moment. Nothing after the person
    /// was told why there is none.
    std::function<std::shared_ptr<const ui::Document>()> document;
    std::string_view failed = "Print Failed";  ///< literal of the report of a failure
    /// Of a PDF file, without its ending.
    std::function<std::string()> name;
    std::string folder;  ///< where the search for a place for it begins
    /// True, after the person was told why, when a part of the document could not be read. May be
    /// left out.
    std::function<bool()> broken = {};
  };

  /// The controls stand behind those that the screen declared before.
  PageView(ui::Screen& screen, ui::Services& services, Print what);

  /// Shows the first page of the document; nothing: an empty page.
  void show(std::shared_ptr<const ui::Document> document);
  /// Tells what is wrong with the document; nothing when the text is empty.
  void tell(std::string what);
  /// Of the screen's Screen::on_enter_or_escape(): Enter prints, but on a button it presses that.
  bool enter(ui::Key key, const ui::Control* focused);

  ui::Memo page;
  ui::Button first_page, previous_page, next_page, last_page;
  ui::Label position;   ///< "Page 2 of 7"
  ui::ReadOnly remark;  ///< what is wrong with the document; hidden while nothing is
  ui::Button save_pdf;
  ui::Button print, cancel;

 private:
  [[nodiscard]] std::size_t pages() const;
  void turn_to(std::size_t page_number);
  void turn_by(bool forward);
  /// The document of this moment, shown at the page that was open; nothing when there is none.
  std::shared_ptr<const ui::Document> renewed();
  void print_it();
  void save_it();
  [[nodiscard]] bool broken() const { return what_.broken && what_.broken(); }

  ui::Services& services_;
  Print what_;
  std::shared_ptr<const ui::Document> document_;
  ui::PageRoom room_;
  std::size_t asked_for_ = 0;  ///< the widest line for which room_ is; 0 before it was asked for
  std::size_t shown_ = 0;      ///< page, from 0
};

}  // namespace archive
