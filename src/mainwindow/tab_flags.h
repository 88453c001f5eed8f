#pragma once
// Which way the officer left a field: two small counters that Tab advances.
//
// They stand right before the check of the field that is being left runs, so that a check may ask
// which way the officer went. None does in this version: a refused group keeps the focus whichever
// way it was left, and where the focus goes after a group is settled by the screen (ui::Screen).

namespace mainwindow {

struct TabFlags {
  int first = 0;   ///< 1 armed; 2 after Shift+Tab, 3 after Tab, 4 when Tab follows Shift+Tab
  int second = 0;  ///< 1 armed; 5 after Shift+Tab, 3 after Tab

  /// A field got the focus: both counters wait for the next Tab.
  void arm() { first = second = 1; }
  /// Tab, with Shift held or not. A counter that is not armed stays, but one that stands at 2 goes
  /// on to 4 with Tab alone.
  void advance(bool shift) {
    first = next(first, shift, 2);
    second = next(second, shift, 5);
  }

 private:
  static constexpr int next(int flag, bool shift, int with_shift) {
    if (flag == 1) return shift ? with_shift : 3;
    if (flag == 2 && !shift) return 4;
    return flag;
  }
};

}  // namespace mainwindow
