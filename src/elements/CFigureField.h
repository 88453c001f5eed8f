#pragma once
// A field that takes a whole number and shows it in so many figures.

#include <optional>
#include <string>

#include "ui/control.h"
#include "ui/services.h"

class CFigureField {
 public:
  /// Takes over the field's on_leave. `message` is the refusal's text id; all must outlive this
  /// object.
  CFigureField(ui::Services& services, ui::Control& field, int lowest, int highest, int digits,
               text::Id message);
  CFigureField(const CFigureField&) = delete;
  CFigureField& operator=(const CFigureField&) = delete;
  ~CFigureField() = default;

  /// Shows a value of the record. It is not refused when the focus merely passes through.
  void open(const std::string& value);
  /// The number shown, nothing when the field is empty or no number of the range.
  [[nodiscard]] std::optional<int> number() const;
  /// number() with zeros in front; empty where that is nothing.
  [[nodiscard]] std::string figures() const;
  [[nodiscard]] text::Id message() const { return message_; }
  [[nodiscard]] ui::Control& field() const { return field_; }

 private:
  bool check();

  ui::Services& services_;
  ui::Control& field_;
  int lowest_;
  int highest_;
  int digits_;
  text::Id message_;
  std::string opened_with_;
};
