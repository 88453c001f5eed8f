#pragma once
// One figure of waves: lines to choose from, and to type into. A box or a choice may say the figure
// instead of the person; the person's own text comes back when it no longer does.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "codetables/tables/sea_waves.h"
#include "ui/screen.h"

/// What is known of a kind of figure.
struct WaveFigure {
  std::vector<std::string> (*lines)(std::string_view smallest);
  codetables::CheckedWave (*check)(std::string_view typed);
  text::Id out_of_range;
  text::Id doubt = {};     ///< the question about a figure that is taken, but doubted
  text::Id smallest = {};  ///< the line that stands for the smallest height
  int largest = 2;         ///< characters
};

class CWaveField : public ui::Combo {
 public:
  /// `figure` must outlive the field.
  CWaveField(ui::Screen& owner, std::string_view control_name, text::Ref text,
             const WaveFigure& figure);

  /// What the form has, and how the screen shows it where that is something else.
  void open(std::string given, std::string_view shown);
  /// Locked on a text that something else says; with nothing, open to the person and his own text.
  void say(const std::optional<std::string>& text);
  /// The person's own text, also while the field is locked.
  void set_own(std::string_view text);
  /// Tests what the person typed or chose; what is taken is shown as it is kept. False after a
  /// message, or after a question that was not answered with Yes; the same text is asked about
  /// once.
  bool check(ui::Messages& messages, text::Id number_title);
  /// The figure, once its check would take it; nothing for "//" and what is not a number.
  [[nodiscard]] std::optional<double> number() const;
  [[nodiscard]] bool is_as_opened() const { return content == shown_; }
  /// For the form: what it gave where the field shows the same as on opening.
  [[nodiscard]] std::string value() const;
  /// How the smallest height is shown; empty for what is no height.
  [[nodiscard]] std::string smallest() const;

 private:
  const WaveFigure& figure_;
  std::string given_;
  std::string shown_;
  std::string own_;  ///< kept while the field is locked
  bool own_unchecked_ = false;
  std::string confirmed_;  ///< doubted, and said Yes to
};

/// A box that says a figure of waves instead of its field. A choice may set it aside; whether the
/// person had ticked it comes back when it no longer does.
class CWaveBox : public ui::Tick {
 public:
  CWaveBox(ui::Screen& owner, std::string_view control_name, text::Ref text,
           std::string_view says_instead);

  /// Ticked or not by the person, also while it is set aside.
  void set_own(bool ticked);
  [[nodiscard]] bool own() const { return own_; }
  /// Locked, ticked or not; with nothing, open to the person and as he left it.
  void say(std::optional<bool> ticked);

  const std::string instead;  ///< what a tick says: "//", "99"

 private:
  bool own_ = false;
};
