#include "ChattyPrefix.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

#include "execution/ChildProcess.h"

namespace quillmere {

ChattyPrefix::ChattyPrefix(std::int64_t bytes) {
  QDir(folder_.path()).mkdir(QStringLiteral("bin"));
  QFile script(brew());
  script.open(QFile::WriteOnly);
  script.write("#!/bin/sh\nexec " CHATTER_PROGRAM " " + QByteArray::number(qint64(bytes)) + '\n');
  script.close();
  script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
}

void ChattyPrefix::readInAPlainLoop() const {
  std::vector<char> buffer(64UZ * 1024);
  auto standardOutput = ChildProcess::openPipe();
  auto standardError = ChildProcess::openPipe();
  auto child = ChildProcess::launch({brew().toStdString(), {}, inheritedEnvironment()},
                                    *standardOutput, *standardError);
  fcntl(standardOutput->reading.get(), F_SETFL, 0);
  while (read(standardOutput->reading.get(), buffer.data(), buffer.size()) > 0) {
  }
  benchmark::DoNotOptimize(child->reap());
}

}  // namespace quillmere
