#include "observation/logbook_fields.h"

#include <algorithm>
#include <cstddef>

namespace observation {
namespace {

void append_replacing_spaces(std::string& line, std::string_view text, char instead) {
  line.append(text);
  std::replace(line.end() - static_cast<std::ptrdiff_t>(text.size()), line.end(), ' ', instead);
}

void write_filled(std::string& line, std::string_view text, std::size_t width, char for_space) {
  // Zeros in place of nothing would be a value that nobody observed.
  if (text.empty() || text.size() > width) {
    line.append(width, ' ');
    return;
  }
  line.append(width - text.size(), '0');
  append_replacing_spaces(line, text, for_space);
}

}  // namespace

void write_left(std::string& line, std::string_view text, std::size_t width, bool solidus) {
  if (text.size() > width) {
    line.append(width, ' ');
    return;
  }
  if (solidus)
    append_replacing_spaces(line, text, '/');
  else
    line.append(text);
  line.append(width - text.size(), solidus ? '/' : ' ');
}

void write_zero(std::string& line, std::string_view text, std::size_t width, bool solidus) {
  write_filled(line, text, width, solidus ? '/' : ' ');
}

void write_integer(std::string& line, std::string_view text, std::size_t width, bool zero) {
  write_filled(line, text.substr(0, text.find('.')), width, zero ? '0' : ' ');
}

}  // namespace observation
