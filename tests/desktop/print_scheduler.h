#pragma once
// A print scheduler of a test's own: the system's real one, on a socket in a temporary folder, with
// queues whose printer puts each job into a file. Runs as any user.

#include <QByteArray>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <string>

namespace tests {

class PrintScheduler {
 public:
  /// Starts it and makes it the scheduler of this process; what the user has chosen for printing
  /// does not count.
  PrintScheduler();
  ~PrintScheduler();
  PrintScheduler(const PrintScheduler&) = delete;
  PrintScheduler& operator=(const PrintScheduler&) = delete;

  /// A queue for A4 and Letter; `paper` is "A4" or "Letter".
  void add_queue(const QString& name, const QString& paper);
  void make_default(const QString& name);
  /// One of the scheduler's commands (cupsdisable, cupsreject …); what it printed.
  QString run(const QString& command, const QStringList& arguments);

  /// The PDF of the next job; waits until a printer has it.
  [[nodiscard]] std::string next_paper();
  /// The options of that job.
  [[nodiscard]] QString options() const { return options_; }

  void stop_answering();
  void go_on();
  void end();
  [[nodiscard]] QString socket() const { return folder_.filePath("socket"); }

 private:
  void write(const QString& name, const QByteArray& content, bool program = false) const;

  QTemporaryDir folder_;
  QProcess scheduler_;
  QString options_;
  int jobs_ = 0;
};

}  // namespace tests
