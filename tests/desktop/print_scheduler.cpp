#include "print_scheduler.h"

#include <cups/cups.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QFile>
#include <QTest>
#include <csignal>

namespace tests {
namespace {

// The last one in the path's place: programs of the system's administrator are no plain user's.
// What they answer is read, so it is not in the language of the locale.
QProcessEnvironment with_system_programs() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("PATH", environment.value("PATH") + ":/usr/sbin:/sbin");
  environment.insert("LC_ALL", "C");
  return environment;
}

// A printer that takes PDF as it is, with edges of three millimetres that it cannot reach.
QByteArray description(const QString& paper) {
  return QString(R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PAPER.PPD"
*Product: "(Paper)"
*Manufacturer: "Paper"
*ModelName: "Paper"
*ShortNickName: "Paper"
*NickName: "Paper"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsFilter: "application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: %1
*PageSize A4/A4: ""
*PageSize Letter/US Letter: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: %1
*PageRegion A4/A4: ""
*PageRegion Letter/US Letter: ""
*CloseUI: *PageRegion
*DefaultImageableArea: %1
*ImageableArea A4/A4: "9 9 586 833"
*ImageableArea Letter/US Letter: "9 9 603 783"
*DefaultPaperDimension: %1
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/US Letter: "612 792"
)ppd")
      .arg(paper)
      .toLatin1();
}

constexpr const char* kConfiguration = R"(Listen %1/socket
LogLevel error
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
)";

constexpr const char* kPlaces = R"(ServerRoot %1/root
ServerBin %1/bin
CacheDir %1/cache
StateDir %1/state
RequestRoot %1/spool
TempDir %1/temporary
ErrorLog %1/errors
AccessLog %1/accesses
PageLog %1/pages
Sandboxing relaxed
)";

// The printer: its papers lie in the folder behind the colon of its address, one file for each job.
constexpr const char* kPrinter = R"(#!/bin/sh
[ $# -gt 0 ] || exit 0
paper=${DEVICE_URI#paper:}/$1
printf 'title=%s copies=%s %s' "$3" "$4" "$5" >"$paper.options"
if [ $# -ge 6 ]; then cat "$6"; else cat; fi >"$paper.part"
mv "$paper.part" "$paper.pdf"
)";

}  // namespace

PrintScheduler::PrintScheduler() {
  const QString top = folder_.path();
  const QDir dir(top);
  for (const char* const name : {"root", "cache", "state", "spool", "temporary", "bin/backend",
                                 "bin/filter", "bin/daemon", "papers", "home"})
    dir.mkpath(name);
  // Where the tests run as root the printer is somebody else, who must reach the papers.
  const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeOther;
  QFile::setPermissions(top, all);
  QFile::setPermissions(top + "/papers", all | QFile::WriteOther);
  write("cupsd.conf", QString(kConfiguration).arg(top).toUtf8());
  write("cups-files.conf", QString(kPlaces).arg(top).toUtf8());
  write("bin/backend/paper", kPrinter, true);
  QFile::link("/usr/lib/cups/daemon/cups-exec", top + "/bin/daemon/cups-exec");

  qputenv("HOME", (top + "/home").toUtf8());
  qputenv("CUPS_SERVER", socket().toUtf8());
  qputenv("CUPS_SERVERROOT", (top + "/root").toUtf8());
  for (const char* const chosen : {"PRINTER", "LPDEST"}) qunsetenv(chosen);
  cupsSetServer(socket().toUtf8().constData());

  scheduler_.setProcessEnvironment(with_system_programs());
  scheduler_.setProcessChannelMode(QProcess::ForwardedChannels);
  // It ends with the test, however that ends.
  scheduler_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  scheduler_.start("/usr/sbin/cupsd",
                   {"-f", "-c", top + "/cupsd.conf", "-s", top + "/cups-files.conf"});
  EXPECT_TRUE(scheduler_.waitForStarted(-1)) << "cupsd: " << scheduler_.errorString().toStdString();
  while (scheduler_.state() == QProcess::Running && !run("lpstat", {"-r"}).contains("is running"))
    QTest::qWait(5);
  EXPECT_EQ(scheduler_.state(), QProcess::Running) << "the print scheduler has ended";
}

PrintScheduler::~PrintScheduler() {
  go_on();
  end();
}

void PrintScheduler::write(const QString& name, const QByteArray& content, bool program) const {
  QFile file(folder_.filePath(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
  file.write(content);
  if (program)
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                        QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup);
}

void PrintScheduler::add_queue(const QString& name, const QString& paper) {
  write(name + ".ppd", description(paper));
  run("/usr/sbin/lpadmin", {"-p", name, "-E", "-v", "paper:" + folder_.filePath("papers"), "-P",
                            folder_.filePath(name + ".ppd")});
}

void PrintScheduler::make_default(const QString& name) {
  run("/usr/sbin/lpadmin", {"-d", name});
}

QString PrintScheduler::run(const QString& command, const QStringList& arguments) {
  QProcess process;
  process.setProcessEnvironment(with_system_programs());
  process.start(command, arguments);
  EXPECT_TRUE(process.waitForFinished(-1)) << command.toStdString();
  return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}

std::string PrintScheduler::next_paper() {
  const QString paper = folder_.filePath("papers/" + QString::number(++jobs_));
  while (scheduler_.state() == QProcess::Running && !QFile::exists(paper + ".pdf")) QTest::qWait(5);
  QFile options(paper + ".options");
  if (options.open(QIODevice::ReadOnly)) options_ = QString::fromUtf8(options.readAll());
  QFile pdf(paper + ".pdf");
  return pdf.open(QIODevice::ReadOnly) ? pdf.readAll().toStdString() : std::string();
}

void PrintScheduler::stop_answering() {
  // Without a process its number is 0, which would stop the test.
  ASSERT_EQ(scheduler_.state(), QProcess::Running);
  ::kill(static_cast<pid_t>(scheduler_.processId()), SIGSTOP);
}

void PrintScheduler::go_on() {
  if (scheduler_.state() == QProcess::Running)
    ::kill(static_cast<pid_t>(scheduler_.processId()), SIGCONT);
}

void PrintScheduler::end() {
  if (scheduler_.state() != QProcess::Running) return;
  scheduler_.terminate();
  scheduler_.waitForFinished(-1);
}

}  // namespace tests
