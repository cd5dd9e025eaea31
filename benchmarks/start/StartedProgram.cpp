#include "start/StartedProgram.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcessEnvironment>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quillmere {
namespace {

constexpr std::chrono::seconds patience(30);
constexpr double bytesPerKilobyte = 1024;

QProcessEnvironment environmentFor(const QString& home) {
  auto variables = QProcessEnvironment::systemEnvironment();
  variables.insert(QStringLiteral("HOME"), home);
  variables.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
  variables.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"));
  variables.insert(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/.cache"));
  variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), home);
  variables.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
  variables.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
  variables.insert(QStringLiteral("QT_LOGGING_RULES"),
                   QStringLiteral("qt.scenegraph.time.renderloop=true"));
  // Nobody asks for a document of the network here; one that did would measure the network.
  variables.insert(QStringLiteral("https_proxy"), QStringLiteral("http://127.0.0.1:9"));
  // Where there is no session bus, the display's library would start one, now and then.
  if (!variables.contains(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"))) {
    variables.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
  }
  if (!variables.contains(QStringLiteral("DISPLAY")) &&
      !variables.contains(QStringLiteral("WAYLAND_DISPLAY"))) {
    variables.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  }
  return variables;
}

std::vector<char*> pointersTo(QByteArrayList& texts) {
  std::vector<char*> pointers;
  for (QByteArray& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

/// The sum of the lines "`key` number" in a file of /proc.
double numberIn(const QString& fileName, const QByteArray& key) {
  QFile file(fileName);
  double sum = 0;
  if (file.open(QFile::ReadOnly)) {
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (line.startsWith(key)) {
        sum += line.mid(key.size()).simplified().split(' ').constFirst().toDouble();
      }
    }
  }
  return sum;
}

}  // namespace

StartedProgram::StartedProgram(const QString& program, const QString& home) {
  std::array<int, 2> pipe = {};
  if (pipe2(pipe.data(), O_CLOEXEC) != 0) {
    return;
  }
  errors_ = pipe[0];
  QByteArrayList arguments = {QFile::encodeName(program)};
  QByteArrayList variables;
  for (const QString& variable : environmentFor(home).toStringList()) {
    variables += variable.toLocal8Bit();
  }
  const std::vector<char*> argumentPointers = pointersTo(arguments);
  const std::vector<char*> variablePointers = pointersTo(variables);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, pipe[1], STDERR_FILENO);
  listener_ = std::jthread([this] { listen(); });
  began_ = Clock::now();
  if (posix_spawn(&id_, argumentPointers.front(), &actions, nullptr, argumentPointers.data(),
                  variablePointers.data()) != 0) {
    id_ = -1;
  }
  posix_spawn_file_actions_destroy(&actions);
  close(pipe[1]);
}

StartedProgram::~StartedProgram() {
  if (id_ > 0) {
    kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
  }
}

void StartedProgram::listen() {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> lines(fdopen(errors_, "r"), &std::fclose);
  std::array<char, 4096> line = {};
  while (lines != nullptr && std::fgets(line.data(), line.size(), lines.get()) != nullptr) {
    const Clock::time_point now = Clock::now();
    if (!QByteArrayView(line.data()).contains("Frame rendered")) {
      std::fputs(line.data(), stderr);
      continue;
    }
    const std::lock_guard lock(mutex_);
    firstFrame_ = firstFrame_.value_or(now);
    lastFrame_ = now;
    ++frames_;
    painted_.notify_all();
  }
}

auto StartedProgram::timeToFirstFrame() -> std::optional<Duration> {
  std::unique_lock lock(mutex_);
  if (!painted_.wait_for(lock, patience, [this] { return firstFrame_.has_value(); })) {
    return std::nullopt;
  }
  return *firstFrame_ - began_;
}

void StartedProgram::waitForRest(Duration rest) {
  const auto length = std::chrono::duration_cast<Clock::duration>(rest);
  const Clock::time_point asked = Clock::now();
  std::unique_lock lock(mutex_);
  for (;;) {
    const Clock::time_point end = std::max(lastFrame_, asked) + length;
    if (painted_.wait_until(lock, end) == std::cv_status::timeout &&
        std::max(lastFrame_, asked) + length <= end) {
      return;
    }
  }
}

int StartedProgram::frames() {
  const std::lock_guard lock(mutex_);
  return frames_;
}

QString StartedProgram::procFile(const QString& name) const {
  return QStringLiteral("/proc/%1/%2").arg(id_).arg(name);
}

double StartedProgram::residentBytes() const {
  return numberIn(procFile(QStringLiteral("status")), "VmRSS:") * bytesPerKilobyte;
}

double StartedProgram::peakBytes() const {
  return numberIn(procFile(QStringLiteral("status")), "VmHWM:") * bytesPerKilobyte;
}

double StartedProgram::readMegabytes() const {
  return numberIn(procFile(QStringLiteral("io")), "rchar:") / 1e6;
}

double StartedProgram::sleeps() const {
  const QString tasks = procFile(QStringLiteral("task"));
  double sum = 0;
  for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    sum += numberIn(tasks + u'/' + task + QStringLiteral("/status"), "voluntary_ctxt_switches:");
  }
  return sum;
}

}  // namespace quillmere
