#include "archive/CDrvListBox.h"

#include <algorithm>

#include "archive/drive_rows.h"
#include "archive/names.h"

void CDrvListBox::fill() {
  const std::string before = root();
  list_.items.clear();
  list_.item_marked.clear();
  for (archive::DriveRow& row : archive::drive_rows(drives_)) {
    list_.items.push_back(std::move(row.root));
    list_.item_marked.push_back(row.marked);
  }
  list_.set(before);
  if (list_.selected < 0) list_.content.clear();
}

void CDrvListBox::select(std::string_view path) {
  const auto at = std::find_if(list_.items.begin(), list_.items.end(), [&](const std::string& r) {
    return archive::equal_ignoring_case(path.substr(0, 2), r.substr(0, 2));
  });
  list_.set(at == list_.items.end() ? std::string() : *at);
}
