#include "desktop/print_queue.h"

#include <cups/cups.h>
#include <sys/socket.h>

#include <QDir>
#include <QFile>
#include <memory>

namespace desktop {
namespace {

struct Close {
  void operator()(http_t* connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, Close>;

// Of its own: the one that Qt's calls share waits a minute for each answer.
Connection connect(Patience patience) {
  Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                     1, static_cast<int>(patience.count()), nullptr));
  if (connection == nullptr) return connection;
  const auto give_up = [](http_t* /*connection*/, void* /*nothing*/) { return 0; };
  httpSetTimeout(connection.get(), std::chrono::duration<double>(patience).count(), give_up,
                 nullptr);
  return connection;
}

// The connections are libcups' own, so they are known by where they lead.
void close_connections(const http_addrlist_t* scheduler) {
  for (const QString& name : QDir("/proc/self/fd").entryList(QDir::System | QDir::Files)) {
    const int descriptor = name.toInt();
    http_addr_t peer{};
    socklen_t size = sizeof peer;
    if (::getpeername(descriptor, &peer.addr, &size) != 0) continue;
    for (const http_addrlist_t* at = scheduler; at != nullptr; at = at->next) {
      if (httpAddrEqual(&peer, &at->addr) != 0 &&
          httpAddrPort(&peer) == httpAddrPort(const_cast<http_addr_t*>(&at->addr)))
        ::shutdown(descriptor, SHUT_RDWR);
    }
  }
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
  const QByteArray queue = job.queue.toUtf8();
  const QByteArray name = job.name.toUtf8();
  const QByteArray file = QFile::encodeName(job.file);
  cups_option_t* options = nullptr;
  int count = 0;
  for (const auto& [option, value] : job.options)
    count = cupsAddOption(option.constData(), value.constData(), count, &options);

  ipp_t* const request = ippNewRequest(IPP_OP_PRINT_JOB);
  char address[HTTP_MAX_URI];
  httpAssembleURIf(HTTP_URI_CODING_ALL, address, sizeof address, "ipp", nullptr, "localhost",
                   ippPort(), "/printers/%s", queue.constData());
  const auto add = [request](ipp_tag_t kind, const char* attribute, const char* value) {
    ippAddString(request, IPP_TAG_OPERATION, kind, attribute, nullptr, value);
  };
  add(IPP_TAG_URI, "printer-uri", address);
  add(IPP_TAG_NAME, "requesting-user-name", cupsUser());
  add(IPP_TAG_NAME, "job-name", name.constData());
  add(IPP_TAG_MIMETYPE, "document-format", CUPS_FORMAT_PDF);
  cupsEncodeOptions2(request, count, options, IPP_TAG_JOB);
  const QByteArray resource = "/printers/" + queue;
  ippDelete(cupsDoFileRequest(connection.get(), request, resource.constData(), file.constData()));
  bool taken = cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE;
  // A printer of the network that has no queue yet: libcups makes one, with its own patience.
  if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
    taken = cupsPrintFile2(connection.get(), queue.constData(), file.constData(), name.constData(),
                           count, options) > 0;
  cupsFreeOptions(count, options);
  return taken;
}

SilenceGuard::SilenceGuard(Patience patience) {
  QObject::connect(&beat_, &QTimer::timeout, [this] { alive_ = true; });
  beat_.start(patience / 4);
  thread_ = std::thread([this, patience] { watch(patience); });
}

SilenceGuard::~SilenceGuard() {
  {
    const std::lock_guard lock(mutex_);
    end_ = true;
  }
  ended_.notify_one();
  thread_.join();
}

void SilenceGuard::watch(Patience patience) {
  std::unique_lock lock(mutex_);
  while (!ended_.wait_for(lock, patience, [this] { return end_; })) {
    if (alive_.exchange(false)) continue;
    http_addrlist_t* const scheduler =
        httpAddrGetList(cupsServer(), AF_UNSPEC, std::to_string(ippPort()).c_str());
    close_connections(scheduler);
    httpAddrFreeList(scheduler);
  }
}

}  // namespace desktop
