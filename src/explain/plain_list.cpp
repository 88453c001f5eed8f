#include "explain/plain_list.h"

#include <string>
#include <utility>

namespace explain {

void put_lines(ui::Control& list, const std::vector<PlainLine>& lines) {
  list.items.clear();
  list.item_marked.clear();
  list.selected = -1;
  for (const PlainLine& line : lines) {
    std::string item = line.group;
    if (!item.empty()) item.append("  ");
    list.items.push_back(std::move(item.append(line.sentence)));
    list.item_marked.push_back(line.told == Told::kUnusual || line.told == Told::kNotUnderstood);
  }
}

}  // namespace explain
