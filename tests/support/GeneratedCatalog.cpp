#include "support/GeneratedCatalog.h"

#include <QtCore/QCryptographicHash>

#include <array>

namespace quillmere {
namespace {

constexpr auto words = std::to_array<const char*>(
    {"fast", "command-line", "tool", "library", "for", "parsing", "large", "files", "caf\u00e9",
     "server", "with", "colours", "audio", "editor", "and", "viewer", "\u4e2d\u6587", "<b>", "&"});

/// Real digests, because records without them pack so well that a download of them, packed, is
/// refused as an archive bomb.
QByteArray digestOf(const QByteArray& text) {
  return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

/// What a real record holds in keys that nobody reads.
QByteArray ignoredKeys(int number) {
  QByteArray files;
  for (const char* platform : {"arm64_tahoe", "arm64_sequoia", "sonoma", "x86_64_linux"}) {
    const QByteArray digest = digestOf(QByteArray::number(number) + platform);
    files += QByteArray(files.isEmpty() ? "" : ",") + '"' + platform +
             R"(":{"cellar":":any","url":"https://registry.example/v2/blobs/sha256:)" + digest +
             R"(","sha256":")" + digest + R"("})";
  }
  return R"(,"urls":{"stable":{"url":"https://downloads.example/)" + QByteArray::number(number) +
         R"(.tar.gz","tag":null}},"bottle":{"stable":{"rebuild":0,"files":{)" + files +
         R"(}}},"deprecated":false,"variations":{},"requirements":[],"caveats":")" +
         QByteArray("Read this with care.\\n").repeated(100) + R"("})";
}

QByteArray sentence(int number) {
  QByteArray text;
  for (int i = 0; i < 3 + number % 6; ++i) {
    const auto word = static_cast<std::size_t>(number * 7 + i * 5) % words.size();
    text += QByteArray(i == 0 ? "" : " ") + words[word];
  }
  return text;
}

QByteArray optionalText(const QByteArray& text, bool present) {
  return present ? '"' + text + '"' : QByteArray("null");
}

QByteArray formula(int number) {
  const QByteArray id = QByteArray::number(number);
  QByteArray dependencies;
  for (int i = 1; i <= number % 8; ++i) {
    dependencies +=
        QByteArray(i == 1 ? "" : ",") + "\"package-" + QByteArray::number(number / i) + '"';
  }
  return R"({"name":"package-)" + id + R"(","full_name":"package-)" + id +
         R"(","tap":"homebrew/core","desc":)" + optionalText(sentence(number), number % 50 != 0) +
         R"(,"license":)" + optionalText("MIT", number % 20 != 0) +
         R"(,"homepage":"https://package-)" + id + R"(.example.org/docs/","versions":{"stable":)" +
         optionalText("1." + id, number % 100 != 0) +
         R"(,"head":"HEAD","bottle":true},"dependencies":[)" + dependencies + ']' +
         ignoredKeys(number);
}

QByteArray cask(int number) {
  const QByteArray id = QByteArray::number(number);
  return R"({"token":"application-)" + id + R"(","tap":"homebrew/cask","name":["Application )" +
         id + R"("],"desc":)" + optionalText(sentence(number), number % 3 != 0) +
         R"(,"homepage":"https://application-)" + id + R"(.example.com/","version":)" +
         optionalText("2." + id + ",7", number % 100 != 0) +
         R"(,"artifacts":[{"app":["Application.app"],"target":"A.app"},{"zap":[{"trash":"~/A"}]}])" +
         ignoredKeys(number);
}

QByteArray document(int count, QByteArray (*record)(int)) {
  QByteArray json = "[";
  for (int number = 0; number < count; ++number) {
    json += (number == 0 ? "" : ",") + record(number);
  }
  return json + ']';
}

}  // namespace

QByteArray generatedFormulaDocument(int count) {
  return document(count, formula);
}

QByteArray generatedCaskDocument(int count) {
  return document(count, cask);
}

}  // namespace quillmere
