#include "support/ToolOutput.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quillmere::test {

// Not with QProcess: the thread sanitizer does not survive its way of making a child.
QByteArray toolOutput(const QString& program, const QStringList& arguments,
                      const QByteArray& input) {
  QTemporaryFile given;
  QTemporaryFile printed;
  if (!given.open() || !printed.open() || given.write(input) != input.size() || !given.seek(0)) {
    qFatal("no temporary files");
  }
  std::vector<QByteArray> words = {QFile::encodeName(program)};
  for (const QString& argument : arguments) {
    words.push_back(QFile::encodeName(argument));
  }
  std::vector<char*> pointers;
  for (QByteArray& word : words) {
    pointers.push_back(word.data());
  }
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, given.handle(), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, printed.handle(), STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  int status = posix_spawnp(&child, pointers[0], &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (status != 0 || waitpid(child, &status, 0) != child || status != 0) {
    qFatal("%s failed", pointers[0]);
  }
  // The child moved the place in the file that it shares with us.
  lseek(printed.handle(), 0, SEEK_SET);
  return printed.readAll();
}

}  // namespace quillmere::test
