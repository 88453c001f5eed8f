#pragma once
// The letters of a font as its file describes them (TrueType): which glyph a character has, how wide
// it is, and a file with a few of the glyphs alone, for a document that takes its letters along.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace paper {

class TrueType {
 public:
  using Glyph = std::uint16_t;
  static constexpr Glyph kNoGlyph = 0;

  /// The bytes of the table with this tag of four letters ("cvt " has its blank); empty for none.
  using Tables = std::function<std::string(std::string_view tag)>;
  /// Null where the tables are those of no font with outlines of this kind, or the font's maker
  /// does not allow that a document takes it along. Bytes that are damaged do no harm.
  [[nodiscard]] static std::shared_ptr<const TrueType> read(const Tables& tables);

  /// The tables of the first font in the bytes of a file.
  [[nodiscard]] static Tables tables_of_file(std::string file);

  /// kNoGlyph for a character that the font does not have.
  [[nodiscard]] Glyph glyph_of(char32_t character) const;

  // As parts of the letters' height, that of an em:
  [[nodiscard]] double advance(Glyph glyph) const;
  [[nodiscard]] double ascent() const { return ascent_; }
  [[nodiscard]] double descent() const { return descent_; }  ///< down from the base line
  [[nodiscard]] double line() const { return ascent_ + descent_ + gap_; }
  [[nodiscard]] double left() const { return box_[0]; }  ///< of the box around all glyphs, up
  [[nodiscard]] double bottom() const { return box_[1]; }
  [[nodiscard]] double right() const { return box_[2]; }
  [[nodiscard]] double top() const { return box_[3]; }

  /// The file of a font whose glyphs are these, numbered in this order from 0 on; the first should
  /// be kNoGlyph, which stands for whatever is missing. Parts that glyphs are composed of follow.
  [[nodiscard]] std::string subset(std::vector<Glyph> glyphs) const;

 private:
  TrueType() = default;
  [[nodiscard]] bool read_measures(const Tables& tables);
  [[nodiscard]] bool read_characters(const Tables& tables);
  [[nodiscard]] std::string outline_of(Glyph glyph) const;

  std::size_t glyphs_ = 0;
  std::size_t advances_ = 0;  ///< the last of them holds for all glyphs after it
  double em_ = 1;
  double ascent_ = 0;
  double descent_ = 0;
  double gap_ = 0;
  double box_[4] = {};
  bool long_offsets_ = false;
  std::string head_, hhea_, maxp_, hmtx_, loca_, glyf_, characters_;
  bool by_groups_ = false;  ///< characters_ is of format 12, else of 4
  std::string cvt_, fpgm_, prep_;
};

/// True where every Latin letter is as wide as any other and a Japanese one exactly twice as wide: lines
/// in such letters stand in columns.
[[nodiscard]] bool keeps_columns(const TrueType& face);

}  // namespace paper
