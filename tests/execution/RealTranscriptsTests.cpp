#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>

#include "execution/DirectCommandOutputPresentation.h"

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;
using Operation = BrewCommandOperation;

/// Runs of the real thing, kept beside the checkout: NAME.out and NAME.err are what it printed.
class RealTranscripts : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = qEnvironmentVariable("QUILLMERE_REAL_DATA", QStringLiteral(QUILLMERE_REAL_DATA)) +
              u"/transcripts"_s;
    if (!QDir(folder_).exists()) {
      GTEST_SKIP() << "no transcripts in " << folder_.toStdString();
    }
  }

  [[nodiscard]] QStringList names() const {
    QStringList names = QDir(folder_).entryList({u"*.out"_s}, QDir::Files);
    return names.replaceInStrings(u".out"_s, QString());
  }

  [[nodiscard]] DirectCommandResult resultOf(const QString& name) const {
    DirectCommandResult result;
    result.standardOutput = contentOf(name + u".out"_s);
    result.standardError = contentOf(name + u".err"_s);
    return result;
  }

 private:
  [[nodiscard]] QByteArray contentOf(const QString& fileName) const {
    QFile file(folder_ + u'/' + fileName);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << fileName.toStdString();
    return file.readAll();
  }

  QString folder_;
};

std::size_t maxRows(Operation operation) {
  switch (operation) {
    case Operation::outdated:
    case Operation::dependencies:
    case Operation::reverseDependencies:
    case Operation::servicesList:
      return 1;
    case Operation::doctor:
      return 5;
    default:
      return 6;
  }
}

OutputDigest digestOf(Operation operation, const DirectCommandResult& result) {
  OutputDigest digest(operation);
  for (const QByteArray& text : {result.standardOutput, result.standardError}) {
    for (const QByteArray& line : text.split('\n')) {
      digest.addOutputLine(line);
    }
  }
  return digest;
}

TEST_F(RealTranscripts, GiveRowsExactlyWhenThereIsOutput) {
  EXPECT_FALSE(names().isEmpty());
  for (const QString& name : names()) {
    const DirectCommandResult result = resultOf(name);
    const QString text = presentationText(result, {});
    for (const auto& operation : rawValues<Operation>) {
      const OutputDigest digest = digestOf(operation.value, result);
      const auto presentation = makePresentation(digest, SessionCompleted{0});
      EXPECT_EQ(presentation.rows.empty(), text.trimmed().isEmpty()) << name.toStdString();
      EXPECT_EQ(digest.hasOutput(), !text.trimmed().isEmpty()) << name.toStdString();
      EXPECT_LE(presentation.rows.size(), maxRows(operation.value)) << name.toStdString();
    }
  }
}

TEST_F(RealTranscripts, GiveTitlesWithoutMarkersAndControlCharacters) {
  for (const QString& name : names()) {
    for (const auto& operation : rawValues<Operation>) {
      const auto presentation =
          makePresentation(digestOf(operation.value, resultOf(name)), SessionRunning());
      for (const auto& row : presentation.rows) {
        EXPECT_FALSE(row.title.isEmpty());
        EXPECT_FALSE(row.title.contains(u"==> "_s)) << row.title.toStdString();
        EXPECT_TRUE(std::ranges::none_of(row.title, [](QChar c) {
          return c.category() == QChar::Other_Control && c != u'\t';
        })) << row.title.toStdString();
      }
    }
  }
}

TEST_F(RealTranscripts, DigestTheSameLineByLineAndAsAWhole) {
  for (const QString& name : names()) {
    const DirectCommandResult result = resultOf(name);
    for (const auto& operation : rawValues<Operation>) {
      OutputDigest whole(operation.value);
      whole.addOutputLine(presentationText(result, {}).toUtf8());
      EXPECT_EQ(digestOf(operation.value, result), whole) << name.toStdString();
    }
  }
}

}  // namespace
}  // namespace quillmere
