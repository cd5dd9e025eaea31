#include "start/Keyboard.h"

#include <QtCore/QProcess>
#include <QtCore/QStringList>

using namespace std::chrono_literals;

namespace quillmere {
namespace {

// Shorter than the text cursor takes to blink.
constexpr auto rest = 300ms;

bool xdotool(const QStringList& arguments) {
  QProcess process;
  process.setStandardOutputFile(QProcess::nullDevice());
  process.start(QStringLiteral("xdotool"), arguments);
  return process.waitForFinished() && process.exitCode() == 0;
}

}  // namespace

Keyboard::Keyboard(StartedProgram& program) : program_(program) {
  program_.waitForRest(rest);
  isReady_ =
      xdotool({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
               QStringLiteral("--all"), QStringLiteral("--pid"), QString::number(program_.id()),
               QStringLiteral("--name"), QStringLiteral("."), QStringLiteral("windowfocus"),
               QStringLiteral("--sync")});
  program_.waitForRest(rest);
}

void Keyboard::press(const QString& key, int times) {
  xdotool({QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("10"),
           QStringLiteral("--repeat"), QString::number(times), key});
  program_.waitForRest(rest);
}

void Keyboard::type(const QString& text) {
  xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("50"), text});
  program_.waitForRest(rest);
}

}  // namespace quillmere
