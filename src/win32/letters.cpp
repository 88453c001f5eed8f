#include "win32/letters.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "paper/characters.h"
#include "win32/bitmap.h"

namespace win32 {
namespace {

// A device to look at fonts on, and the font in use there.
class Looker {
 public:
  explicit Looker(const std::wstring& family) : dc_(CreateCompatibleDC(nullptr)) {
    constexpr int kHeight = 1000;
    font_ = CreateFontW(-kHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                        OUT_TT_ONLY_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                        DEFAULT_PITCH | FF_DONTCARE, family.c_str());
    before_ = SelectObject(dc_, font_);
  }
  ~Looker() {
    SelectObject(dc_, before_);
    DeleteObject(font_);
    DeleteDC(dc_);
  }
  Looker(const Looker&) = delete;
  Looker& operator=(const Looker&) = delete;

  [[nodiscard]] std::string table(std::string_view tag) const {
    DWORD name = 0;
    for (std::size_t i = 0; i < 4; ++i)
      name |= static_cast<DWORD>(static_cast<unsigned char>(tag[i])) << (8 * i);
    const DWORD size = GetFontData(dc_, name, 0, nullptr, 0);
    if (size == GDI_ERROR || size == 0) return {};
    std::string bytes(size, '\0');
    if (GetFontData(dc_, name, 0, bytes.data(), size) != size) return {};
    return bytes;
  }

 private:
  HDC dc_;
  HFONT font_;
  HGDIOBJ before_;
};

int CALLBACK take_family(const LOGFONTW* font, const TEXTMETRICW* /*metrics*/, DWORD /*kind*/,
                         LPARAM families) {
  // With "@" it is for writing from the top down.
  if (font->lfFaceName[0] != L'@')
    reinterpret_cast<std::vector<std::wstring>*>(families)->emplace_back(font->lfFaceName);
  return 1;
}

// Those of this name, which is empty for any.
std::vector<std::wstring> families_of(const std::wstring& name, BYTE characters) {
  LOGFONTW wanted{};
  wanted.lfCharSet = characters;
  const std::size_t size = std::min<std::size_t>(name.size(), LF_FACESIZE - 1);
  std::copy_n(name.begin(), size, wanted.lfFaceName);
  std::vector<std::wstring> families;
  const HDC dc = CreateCompatibleDC(nullptr);
  EnumFontFamiliesExW(dc, &wanted, &take_family, reinterpret_cast<LPARAM>(&families), 0);
  DeleteDC(dc);
  return families;
}

// Null where it is not installed, or is not of a kind that goes into a document.
std::shared_ptr<const paper::TrueType> face_of(const std::wstring& family) {
  if (families_of(family, DEFAULT_CHARSET).empty()) return nullptr;
  const Looker looker(family);
  return paper::TrueType::read([&looker](std::string_view tag) { return looker.table(tag); });
}

PaperLetters find_letters() {
  // Those that are known to be good to read, then whatever there is.
  std::vector<std::wstring> candidates = {L"MS Gothic", L"BIZ UDGothic", L"IPAGothic",
                                          L"TakaoGothic"};
  for (std::wstring& family : families_of({}, SHIFTJIS_CHARSET))
    candidates.push_back(std::move(family));
  PaperLetters letters;
  for (const std::wstring& family : candidates) {
    const auto face = face_of(family);
    if (face == nullptr || !paper::keeps_columns(*face)) continue;
    letters = {family, {face}};
    break;
  }
  for (const wchar_t* const family :
       {L"Courier New", L"Lucida Console", L"Liberation Mono", L"DejaVu Sans Mono", L"Segoe UI",
        L"Yu Gothic", L"Segoe UI Symbol", L"Arial", L"DejaVu Sans"}) {
    const auto face = face_of(family);
    if (face == nullptr) continue;
    if (letters.faces.empty()) letters.family = family;
    letters.faces.push_back(face);
  }
  return letters;
}

}  // namespace

const PaperLetters& paper_letters() {
  static const PaperLetters kLetters = find_letters();
  return kLetters;
}

void write_columns(HDC dc, std::string_view text, ui::Point at, double column) {
  std::wstring units;
  std::vector<INT> widths;
  double place = at.x;
  for (const paper::Character character : paper::characters_of(text)) {
    // From one whole dot to the next, so that nothing adds up over a long line.
    const double next = place + static_cast<double>(character.columns) * column;
    const auto width = static_cast<INT>(std::lround(next) - std::lround(place));
    place = next;
    if (character.code > 0xFFFF) {
      units.push_back(static_cast<wchar_t>(0xD800U + ((character.code - 0x10000U) >> 10U)));
      units.push_back(static_cast<wchar_t>(0xDC00U + ((character.code - 0x10000U) & 0x3FFU)));
      widths.push_back(width);
      widths.push_back(0);
    } else {
      units.push_back(static_cast<wchar_t>(character.code));
      widths.push_back(width);
    }
  }
  // More than the system draws at once has no room on paper.
  constexpr std::size_t kMost = 8192;
  const auto count = static_cast<UINT>(std::min(units.size(), kMost));
  ExtTextOutW(dc, static_cast<int>(std::lround(at.x)), static_cast<int>(std::lround(at.y)), 0,
              nullptr, units.c_str(), count, widths.data());
}

}  // namespace win32
