#pragma once
// What is said of one group, piece by piece.

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "explain/plain/plain_words.h"
#include "observation/Struct_Weather.h"
#include "observation/values.h"
#include "text/texts.h"

namespace explain {

/// A report that has been read.
struct Heard {
  const Struct_Weather& record;
  const observation::Values& values;
  YearMonth when;
};

/// Pieces begin with a small letter in the table; each becomes a sentence.
class Sentence {
 public:
  explicit Sentence(text::Language language) : language_(language) {
    constexpr std::size_t kUsualLength = 120;
    text_.reserve(kUsualLength);
  }

  [[nodiscard]] text::Language language() const { return language_; }
  [[nodiscard]] std::string_view get(text::Id id) const { return text::bilingual(id, language_); }
  [[nodiscard]] std::string filled(text::Id id,
                                   std::initializer_list<std::string_view> arguments) const {
    return text::fill(get(id), arguments);
  }

  /// "rain" of "Rain", as it is written within a sentence; names such as "Cu" stay.
  [[nodiscard]] static std::string within(std::string words);

  void say(std::string_view piece);
  void say(text::Id id, std::initializer_list<std::string_view> arguments = {});
  /// An element of solidi. They are named together at the end.
  void not_reported(text::Id name);
  void unusual(text::Id why, std::initializer_list<std::string_view> arguments = {});
  /// Figures that are no value of the element: some of them missing, or no number.
  void unreadable(text::Id name, std::string_view figures);
  /// Figures that are a number but none that can be.
  void impossible(text::Id name, std::string_view figures);
  /// What a code stands for: "visibility: 10 km to under 20 km". `symbol` as in table_of(). What the
  /// table's words tell of the name themselves is not said twice.
  void code(text::Id name, std::string_view symbol, std::string_view figures);
  /// The same without the name in front.
  void meaning(text::Id name, std::string_view symbol, std::string_view figures);

  /// What the figures stand for, as it is said within a sentence; nothing when the table lacks them.
  [[nodiscard]] std::optional<std::string> meaning_of(std::string_view symbol,
                                                      std::string_view figures) const;
  /// "west" of degrees from 10 to 360, and the degrees in three figures.
  [[nodiscard]] std::string_view point(int degrees) const;
  [[nodiscard]] static std::string degrees(int degrees);
  /// "west (270°)".
  [[nodiscard]] std::string compass(int degrees) const;

  [[nodiscard]] Told told() const;
  /// The whole of it. Say nothing more behind.
  [[nodiscard]] std::string take();

 private:
  void fill_in(std::string_view format, std::initializer_list<std::string_view> arguments);

  text::Language language_;
  std::string text_;
  std::string missing_;
  bool said_ = false;
  bool unusual_ = false;
  bool wrong_ = false;
};

/// A speed of the wind: "18 knots (force 5)"; without a unit no force.
[[nodiscard]] std::string speed_words(const Sentence& sentence, const Heard& heard, double speed);

/// True for a text of solidi alone; an empty one is.
[[nodiscard]] bool is_not_reported(std::string_view figures);

}  // namespace explain
