#pragma once
// What the form asks and tells by itself. ui::Messages does it; when the form hands its answers to
// the window instead, this goes.

#include <initializer_list>
#include <string_view>

#include "text/texts.h"

namespace text {

inline constexpr int kYes = 6;

/// Which buttons a question has.
enum class QuestionMode { kOkCancel = 1, kYesNoCancel = 3, kYesNo = 4 };

class Messages {
 public:
  virtual ~Messages() = default;
  virtual void error(Id id, std::string_view literal = {}) = 0;
  virtual void error_filled(Id id, std::initializer_list<std::string_view> arguments,
                            std::string_view below = {}) = 0;
  virtual int question(Id id, QuestionMode mode, std::string_view title = {}) = 0;
};

}  // namespace text
