#include "demo/FolderWriter.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <utility>

namespace quillmere::demo {

FolderWriter::FolderWriter(QString root) : root_(std::move(root)) {
}

QString FolderWriter::pathOf(const QString& relativePath) const {
  return root_ + u'/' + relativePath;
}

void FolderWriter::fail(const QString& path, const QString& problem) {
  if (!error_) {
    error_ = path + QStringLiteral(": ") + problem;
  }
}

void FolderWriter::folder(const QString& relativePath) {
  if (!error_ && !QDir().mkpath(pathOf(relativePath))) {
    fail(pathOf(relativePath), QStringLiteral("the folder cannot be made"));
  }
}

void FolderWriter::file(const QString& relativePath, const QByteArray& content) {
  folder(QFileInfo(relativePath).path());
  if (error_) {
    return;
  }
  QFile file(pathOf(relativePath));
  if (!file.open(QFile::WriteOnly) || file.write(content) != content.size() || !file.flush()) {
    fail(file.fileName(), file.errorString());
  }
}

void FolderWriter::executable(const QString& relativePath, const QByteArray& content) {
  file(relativePath, content);
  constexpr auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                             QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                             QFile::ExeOther;
  if (!error_ && !QFile::setPermissions(pathOf(relativePath), everybody)) {
    fail(pathOf(relativePath), QStringLiteral("cannot be made executable"));
  }
}

void FolderWriter::sparseFile(const QString& relativePath, qint64 size) {
  file(relativePath, QByteArray());
  if (!error_ && !QFile::resize(pathOf(relativePath), size)) {
    fail(pathOf(relativePath), QStringLiteral("cannot be made large"));
  }
}

void FolderWriter::link(const QString& relativePath, const QString& target) {
  folder(QFileInfo(relativePath).path());
  if (!error_ && !QFile::link(pathOf(target), pathOf(relativePath))) {
    fail(pathOf(relativePath), QStringLiteral("the link cannot be made"));
  }
}

}  // namespace quillmere::demo
