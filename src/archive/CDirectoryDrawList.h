#pragma once
// A tree of drives and folders. A level is read when its row is opened, never before: a drive may
// hold tens of thousands of folders, and a network drive answers slowly.

#include <functional>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "text/texts.h"
#include "ui/control.h"

class CDirectoryDrawList {
 public:
  /// Takes over the tree's on_expand and on_reveal. All must outlive this object.
  CDirectoryDrawList(ui::Control& tree, const platform::Files& files,
                     const platform::Drives& drives, const text::Texts& texts);
  CDirectoryDrawList(const CDirectoryDrawList&) = delete;
  CDirectoryDrawList& operator=(const CDirectoryDrawList&) = delete;
  ~CDirectoryDrawList() = default;

  /// Called when a row that the person opens cannot be read; the row stays closed.
  std::function<void(const std::string& path, platform::FileError)> on_unreadable;

  /// "My Computer" with the drives beneath, all closed, nothing selected.
  void fill();
  /// Opens the rows above the folder and selects it; letters in either case, with or without "\" at
  /// the end. False, with the selection and the rows as they were, when there is no such folder.
  bool reveal(std::string_view folder);
  /// Opens the selected row as the person would.
  void open_selected();
  /// Reads the folder's level anew, for a subfolder that was just created. Selects the folder.
  void read_again(std::string_view folder);
  /// Path of the selected row, empty when none or "My Computer" is selected.
  [[nodiscard]] std::string folder() const { return tree_.selected_text(); }

 private:
  void expand(std::size_t row);
  /// False when the level cannot be read.
  bool open(std::size_t row);
  /// Row of the folder, the rows above it opened; 0 for no path, -1 when there is no such folder.
  int find_row(std::string_view folder);
  void close(std::size_t row);
  [[nodiscard]] int child(std::size_t row, std::string_view name) const;

  ui::Control& tree_;
  const platform::Files& files_;
  const platform::Drives& drives_;
  const text::Texts& texts_;
  bool silent_ = false;
};
