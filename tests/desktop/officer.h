#pragma once
// An officer at the keyboard: what he does when a certain window is the one on top, step by step.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

struct Step {
  std::string window;  ///< class of a screen; "box" for a message or question
  std::function<void()> act;
};

class Officer {
 public:
  explicit Officer(std::deque<Step> steps) : steps_(std::move(steps)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
  }

  void begin() { timer_.start(1); }
  void expect_done() const {
    EXPECT_TRUE(steps_.empty()) << "waited for " << steps_.front().window;
  }
  /// What the boxes said.
  [[nodiscard]] const std::vector<std::string>& told() const { return told_; }

 private:
  static std::string on_top() {
    QWidget* const window = QApplication::activeModalWidget();
    // Nobody types before the window has the keyboard, or when it has closed.
    if (window == nullptr || !window->isVisible()) return {};
    // What a window manager does when the window above has gone.
    if (QApplication::focusWidget() == nullptr) window->activateWindow();
    if (!window->isAncestorOf(QApplication::focusWidget())) return {};
    return qobject_cast<QMessageBox*>(window) != nullptr ? "box"
                                                         : window->objectName().toStdString();
  }

  void look() {
    if (acting_ || steps_.empty() || on_top() != steps_.front().window) return;
    if (busy_with_ != nullptr && busy_with_ == QApplication::activeModalWidget()) return;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
      told_.push_back(box->text().toStdString());
    // A timer does not ring again while its own handler runs, and a key may open the next window.
    acting_ = true;
    QTimer::singleShot(0, QApplication::activeModalWidget(), [this, step] {
      acting_ = false;
      // The next step is not for the window that this one is still pressing keys in.
      const QWidget* const before = std::exchange(busy_with_, QApplication::activeModalWidget());
      step.act();
      busy_with_ = before;
    });
  }

  std::deque<Step> steps_;
  std::vector<std::string> told_;
  QTimer timer_;
  bool acting_ = false;
  const QWidget* busy_with_ = nullptr;
};

}  // namespace tests
