#pragma once
// Tells when the person pauses: half a second after the last key or click, and in a long row of
// them at least every second and a half, so that nothing waits longer for its turn.

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

namespace desktop {

class IdleTimer : public QObject {
  Q_OBJECT
 public:
  /// `told` is called outside of any event of the person, also while a message is open.
  explicit IdleTimer(std::function<void()> told);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QTimer timer_;
  QElapsedTimer since_;  ///< the first event that nobody was told of
};

}  // namespace desktop
