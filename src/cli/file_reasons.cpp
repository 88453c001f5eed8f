#include "cli/file_reasons.h"

#include "text/reasons.h"

namespace cli {

std::string_view reason_of(platform::FileError error) {
  return text::resolve({text::reason_of(error)}, text::Language::kEnglish);
}

}  // namespace cli
