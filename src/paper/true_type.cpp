#include "paper/true_type.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace paper {
namespace {

// Numbers in a font are written with their highest byte first. What lies behind the end is 0.
unsigned byte_at(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
}
unsigned word_at(std::string_view bytes, std::size_t at) {
  return (byte_at(bytes, at) << 8U) | byte_at(bytes, at + 1);
}
int signed_at(std::string_view bytes, std::size_t at) {
  const auto word = static_cast<int>(word_at(bytes, at));
  return word < 0x8000 ? word : word - 0x10000;
}
std::uint32_t long_at(std::string_view bytes, std::size_t at) {
  return (static_cast<std::uint32_t>(word_at(bytes, at)) << 16U) | word_at(bytes, at + 2);
}

std::string_view piece(std::string_view bytes, std::size_t from, std::size_t size) {
  return from < bytes.size() ? bytes.substr(from, size) : std::string_view();
}

void add_word(std::string& to, std::size_t word) {
  to.push_back(static_cast<char>((word >> 8U) & 0xFFU));
  to.push_back(static_cast<char>(word & 0xFFU));
}
void add_long(std::string& to, std::size_t number) {
  add_word(to, number >> 16U);
  add_word(to, number & 0xFFFFU);
}
void put_word(std::string& in, std::size_t at, std::size_t word) {
  if (at + 2 > in.size()) return;
  in[at] = static_cast<char>((word >> 8U) & 0xFFU);
  in[at + 1] = static_cast<char>(word & 0xFFU);
}
void fill_up(std::string& bytes) {
  while (bytes.size() % 4 != 0) bytes.push_back('\0');
}

// Where the glyph's number stands for each part of a glyph that is composed of others.
std::vector<std::size_t> parts_of(std::string_view outline) {
  std::vector<std::size_t> places;
  if (outline.size() < 10 || signed_at(outline, 0) >= 0) return places;
  constexpr unsigned kWords = 0x01, kScale = 0x08, kMore = 0x20, kTwoScales = 0x40, kMatrix = 0x80;
  for (std::size_t at = 10; at + 4 <= outline.size();) {
    const unsigned flags = word_at(outline, at);
    places.push_back(at + 2);
    at += (flags & kWords) != 0 ? 8 : 6;
    at += (flags & kScale) != 0       ? 2
          : (flags & kTwoScales) != 0 ? 4
          : (flags & kMatrix) != 0    ? 8
                                      : 0;
    if ((flags & kMore) == 0) break;
  }
  return places;
}

std::uint32_t sum_of(std::string_view table) {
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at < table.size(); at += 4) sum += long_at(table, at);
  return sum;
}

// The tables in one file, in the order of their tags.
std::string file_of(const std::map<std::string, std::string>& tables) {
  constexpr std::size_t kEntry = 16;
  std::size_t power = 1;
  std::size_t exponent = 0;
  for (; power * 2 <= tables.size(); power *= 2) ++exponent;
  std::string directory;
  add_long(directory, 0x00010000);
  add_word(directory, tables.size());
  add_word(directory, power * kEntry);
  add_word(directory, exponent);
  add_word(directory, (tables.size() - power) * kEntry);
  const std::size_t start = directory.size() + tables.size() * kEntry;
  std::string bodies;
  for (const auto& [tag, table] : tables) {
    directory.append(tag);
    add_long(directory, sum_of(table));
    add_long(directory, start + bodies.size());
    add_long(directory, table.size());
    bodies.append(table);
    fill_up(bodies);
  }
  return directory.append(bodies);
}

}  // namespace

TrueType::Tables TrueType::tables_of_file(std::string file) {
  return [file = std::move(file)](std::string_view tag) -> std::string {
    const std::size_t start = piece(file, 0, 4) == "ttcf" ? long_at(file, 12) : 0;
    const unsigned count = word_at(file, start + 4);
    for (unsigned i = 0; i < count; ++i) {
      const std::size_t entry = start + 12 + std::size_t{i} * 16;
      if (piece(file, entry, 4) == tag)
        return std::string(piece(file, long_at(file, entry + 8), long_at(file, entry + 12)));
    }
    return {};
  };
}

std::shared_ptr<const TrueType> TrueType::read(const Tables& tables) {
  std::shared_ptr<TrueType> font(new TrueType);
  if (!font->read_measures(tables) || !font->read_characters(tables)) return nullptr;
  font->hmtx_ = tables("hmtx");
  font->loca_ = tables("loca");
  font->glyf_ = tables("glyf");
  if (font->hmtx_.empty() || font->loca_.empty() || font->glyf_.empty()) return nullptr;
  font->cvt_ = tables("cvt ");
  font->fpgm_ = tables("fpgm");
  font->prep_ = tables("prep");
  return font;
}

bool TrueType::read_measures(const Tables& tables) {
  head_ = tables("head");
  hhea_ = tables("hhea");
  maxp_ = tables("maxp");
  if (head_.size() < 54 || hhea_.size() < 36 || maxp_.size() < 6) return false;
  const std::string os2 = tables("OS/2");
  // "Restricted": no document may take the font along.
  constexpr unsigned kRights = 0x000F, kRestricted = 0x0002;
  if ((word_at(os2, 8) & kRights) == kRestricted) return false;
  em_ = word_at(head_, 18);
  glyphs_ = word_at(maxp_, 4);
  advances_ = word_at(hhea_, 34);
  if (!(em_ > 0) || glyphs_ == 0 || advances_ == 0) return false;
  for (std::size_t i = 0; i < 4; ++i) box_[i] = signed_at(head_, 36 + 2 * i) / em_;
  long_offsets_ = word_at(head_, 50) != 0;
  ascent_ = signed_at(hhea_, 4) / em_;
  descent_ = -signed_at(hhea_, 6) / em_;
  gap_ = std::max(0, signed_at(hhea_, 8)) / em_;
  return ascent_ + descent_ > 0;
}

// The best of the font's tables of characters: all of Unicode, else its first 65536.
bool TrueType::read_characters(const Tables& tables) {
  const std::string all = tables("cmap");
  int best = 0;
  for (std::size_t i = 0; i < word_at(all, 2); ++i) {
    const std::size_t entry = 4 + i * 8;
    const unsigned platform = word_at(all, entry);
    const unsigned encoding = word_at(all, entry + 2);
    const bool unicode = platform == 0 || (platform == 3 && (encoding == 1 || encoding == 10));
    const std::string_view table = piece(all, long_at(all, entry + 4), std::string::npos);
    const unsigned format = word_at(table, 0);
    const int worth = !unicode ? 0 : format == 12 ? 2 : format == 4 ? 1 : 0;
    if (worth <= best) continue;
    best = worth;
    by_groups_ = format == 12;
    characters_ = piece(table, 0, by_groups_ ? long_at(table, 4) : std::string::npos);
  }
  return best > 0;
}

TrueType::Glyph TrueType::glyph_of(char32_t character) const {
  const auto known = [this](std::size_t glyph) {
    return glyph < glyphs_ ? static_cast<Glyph>(glyph) : kNoGlyph;
  };
  if (by_groups_) {
    // Rows of a first character, a last one, and the first one's glyph.
    std::size_t from = 0;
    std::size_t to = std::min<std::size_t>(long_at(characters_, 12), characters_.size() / 12);
    while (from < to) {
      const std::size_t middle = (from + to) / 2;
      const std::size_t row = 16 + middle * 12;
      if (character > long_at(characters_, row + 4)) {
        from = middle + 1;
      } else if (character < long_at(characters_, row)) {
        to = middle;
      } else {
        return known(std::size_t{long_at(characters_, row + 8)} + character -
                     long_at(characters_, row));
      }
    }
    return kNoGlyph;
  }
  if (character > 0xFFFF) return kNoGlyph;
  // Four columns of words: last characters, first ones, what is added, and where the glyphs stand.
  const std::size_t column = word_at(characters_, 6);
  const std::size_t lasts = 14;
  const std::size_t firsts = lasts + column + 2;
  const std::size_t added = firsts + column;
  const std::size_t places = added + column;
  for (std::size_t row = 0; row + 1 < column; row += 2) {
    if (word_at(characters_, lasts + row) < character) continue;
    const unsigned first = word_at(characters_, firsts + row);
    if (first > character) return kNoGlyph;
    const unsigned delta = word_at(characters_, added + row);
    const unsigned place = word_at(characters_, places + row);
    if (place == 0) return known((character + delta) & 0xFFFFU);
    const unsigned glyph =
        word_at(characters_, places + row + place + (std::size_t{character} - first) * 2);
    return glyph == 0 ? kNoGlyph : known((glyph + delta) & 0xFFFFU);
  }
  return kNoGlyph;
}

double TrueType::advance(Glyph glyph) const {
  return word_at(hmtx_, std::min<std::size_t>(glyph, advances_ - 1) * 4) / em_;
}

std::string TrueType::outline_of(Glyph glyph) const {
  if (glyph >= glyphs_) return {};
  const std::size_t from = long_offsets_ ? long_at(loca_, std::size_t{glyph} * 4)
                                         : 2 * word_at(loca_, std::size_t{glyph} * 2);
  const std::size_t to = long_offsets_ ? long_at(loca_, std::size_t{glyph} * 4 + 4)
                                       : 2 * word_at(loca_, std::size_t{glyph} * 2 + 2);
  return to > from ? std::string(piece(glyf_, from, to - from)) : std::string();
}

std::string TrueType::subset(std::vector<Glyph> glyphs) const {
  std::map<Glyph, std::size_t> numbers;
  for (std::size_t i = 0; i < glyphs.size(); ++i) numbers.emplace(glyphs[i], i);
  std::string outlines;
  std::string places;
  std::string widths;
  for (std::size_t i = 0; i < glyphs.size(); ++i) {  // which grows meanwhile
    std::string outline = outline_of(glyphs[i]);
    for (const std::size_t at : parts_of(outline)) {
      const auto part = static_cast<Glyph>(word_at(outline, at));
      const auto [found, is_new] = numbers.emplace(part, glyphs.size());
      if (is_new) glyphs.push_back(part);
      put_word(outline, at, found->second);
    }
    add_long(places, outlines.size());
    outlines.append(outline);
    fill_up(outlines);
    const std::size_t row = std::min<std::size_t>(glyphs[i], advances_ - 1) * 4;
    add_word(widths, word_at(hmtx_, row));
    // The glyphs without an advance of their own have their left bearings behind the rows.
    add_word(widths, glyphs[i] < advances_
                         ? word_at(hmtx_, row + 2)
                         : word_at(hmtx_, advances_ * 4 + (glyphs[i] - advances_) * 2));
  }
  add_long(places, outlines.size());

  std::map<std::string, std::string> tables{{"head", head_}, {"hhea", hhea_}, {"maxp", maxp_}};
  put_word(tables["head"], 50, 1);  // places are in whole bytes
  put_word(tables["hhea"], 34, glyphs.size());
  put_word(tables["maxp"], 4, glyphs.size());
  tables["hmtx"] = std::move(widths);
  tables["loca"] = std::move(places);
  tables["glyf"] = std::move(outlines);
  if (!cvt_.empty()) tables["cvt "] = cvt_;
  if (!fpgm_.empty()) tables["fpgm"] = fpgm_;
  if (!prep_.empty()) tables["prep"] = prep_;
  return file_of(tables);
}

bool keeps_columns(const TrueType& face) {
  const auto width = [&face](char32_t letter) {
    const TrueType::Glyph glyph = face.glyph_of(letter);
    return glyph == TrueType::kNoGlyph ? 0 : face.advance(glyph);
  };
  const double column = width(U'0');
  const auto are = [&](std::u32string_view letters, double columns) {
    return std::all_of(letters.begin(), letters.end(), [&](char32_t letter) {
      return std::abs(width(letter) - columns * column) < 0.001;
    });
  };
  return column > 0 && are(U"iW._-(/\uFF71\uFF76", 1) &&
         are(U"\u6F22\u5B57\u3042\u30A2\uFF21\uFF19\u3000\u3002", 2);
}

}  // namespace paper
