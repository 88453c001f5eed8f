#include "desktop/print_queue.h"

#include <cups/cups.h>

#include <QFile>
#include <memory>

namespace desktop {
namespace {

struct Close {
  void operator()(http_t* connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, Close>;

// Of its own: the one that Qt's calls share waits for ever.
Connection connect(Patience patience) {
  Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                     1, static_cast<int>(patience.count()), nullptr));
  if (connection == nullptr) return connection;
  const auto give_up = [](http_t* /*connection*/, void* /*nothing*/) { return 0; };
  httpSetTimeout(connection.get(), std::chrono::duration<double>(patience).count(), give_up,
                 nullptr);
  return connection;
}

}  // namespace

Scheduler ask_scheduler(Patience patience) {
  const Connection connection = connect(patience);
  if (connection == nullptr) return Scheduler::kAbsent;
  ipp_t* const answer =
      cupsDoRequest(connection.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
  ippDelete(answer);
  // "There is no default" is an answer as well.
  return answer == nullptr ? Scheduler::kSilent : Scheduler::kAnswers;
}

bool send(const PrintJob& job, Patience patience) {
  const Connection connection = connect(patience);
  if (connection == nullptr) return false;
  cups_option_t* options = nullptr;
  int count = 0;
  for (const auto& [name, value] : job.options)
    count = cupsAddOption(name.constData(), value.constData(), count, &options);
  const int number = cupsPrintFile2(connection.get(), job.queue.toUtf8().constData(),
                                    QFile::encodeName(job.file).constData(),
                                    job.name.toUtf8().constData(), count, options);
  cupsFreeOptions(count, options);
  return number > 0;
}

}  // namespace desktop
