#pragma once
// The queues of the system's print scheduler, for what Qt does not tell: whether the scheduler
// answers at all, and whether it took a file. Nothing here waits longer for an answer than it is told
// to, so no window stands still for minutes because of a scheduler that does.

#include <QByteArray>
#include <QString>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace desktop {

using Patience = std::chrono::milliseconds;

enum class Scheduler {
  kAnswers,
  kAbsent,  ///< nothing runs that could be asked
  kSilent,  ///< something runs and does not answer
};
[[nodiscard]] Scheduler ask_scheduler(Patience patience);

struct PrintJob {
  QString queue;
  QString name;                                                 ///< among the jobs of the queue
  QString file;                                                 ///< a PDF
  std::vector<std::pair<QByteArray, QByteArray>> options = {};  ///< as the scheduler names them
};

/// True when the queue has taken the whole file; a queue that is stopped takes it and prints later.
/// False leaves nothing in the queue.
[[nodiscard]] bool send(const PrintJob& job, Patience patience);

/// Cuts the waiting of calls that have no patience of their own: those of Qt's print dialog wait a
/// minute for an answer, and then ask the next thing. While it lives and the thread that made it has not come to its event
/// loop for so long, the connections of this process to the scheduler are closed; the calls then
/// return with a failure.
class SilenceGuard {
 public:
  explicit SilenceGuard(Patience patience);
  ~SilenceGuard();
  SilenceGuard(const SilenceGuard&) = delete;
  SilenceGuard& operator=(const SilenceGuard&) = delete;

 private:
  void watch(Patience patience);

  QTimer beat_;
  std::atomic<bool> alive_ = true;  ///< since the guard looked last
  std::mutex mutex_;
  std::condition_variable ended_;
  bool end_ = false;
  std::thread thread_;
};

}  // namespace desktop
