#pragma once
// The queues of the system's print scheduler, for what Qt does not tell: whether the scheduler
// answers at all, and whether it took a file. Nothing here waits longer than it is told to, so no
// window stands still for ever because of a scheduler that does.

#include <QByteArray>
#include <QString>
#include <chrono>
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

}  // namespace desktop
