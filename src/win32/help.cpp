#include "win32/help.h"

#include <algorithm>

#include "text/ids.h"
#include "win32/system.h"
#include "win32/utf.h"
// Of the system's shell, which builds on its other declarations.
#include <shellapi.h>

namespace win32 {
namespace {

// Only the path tells which language the person reads.
text::Language language_of(const std::string& path) {
  const bool japanese = path.find("_J.CHM") != std::string::npos;
  return japanese ? text::Language::kJapanese : text::Language::kEnglish;
}

}  // namespace

bool open_page(const std::string& path) {
  std::wstring file = wide(path);
  std::replace(file.begin(), file.end(), L'/', L'\\');
  SHELLEXECUTEINFOW page{};
  page.cbSize = sizeof page;
  // The program tells what went wrong in its own words.
  page.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  page.lpVerb = L"open";
  page.lpFile = file.c_str();
  page.nShow = SW_SHOWNORMAL;
  return ShellExecuteExW(&page) != FALSE;
}

bool Help::show(const std::string& path) {
  const auto page = page_(path);
  if (page && open_(*page)) return true;
  const text::Language language = language_of(path);
  std::string title(text::bilingual(text::id::kHelpLabel, language));
  std::erase(title, '&');
  tell_(title, text::fill(text::bilingual(text::id::kHelpPageMissing, language), {path}));
  return false;
}

}  // namespace win32
