#pragma once

#include <QtCore/QStringList>

#include <string_view>

#include "execution/RunFacts.h"

namespace quillmere {

/// Reads one stream after the other, line by line.
class RunFactsReader {
 public:
  explicit RunFactsReader(BrewCommandOperation operation) : operation_(operation) {}

  void readOutput(QByteArrayView text) {
    isError_ = false;
    read(text);
  }

  void readError(QByteArrayView text) {
    isError_ = true;
    read(text);
  }

  [[nodiscard]] RunFacts facts() && { return std::move(facts_); }

 private:
  /// What the lines after a heading are.
  enum class Section { none, caveats, versions, pinned, autoremoved, news, buildLog };

  void read(QByteArrayView text);
  void readLine(QByteArrayView line);
  /// Whether the operation answers with one package in each line.
  [[nodiscard]] bool isList() const;
  [[nodiscard]] bool mayMatter(std::string_view line) const;
  void readText(const QString& text);
  void readHeading(const QString& heading);
  bool readChangeHeading(const QString& heading);
  void readSectionHeading(const QString& heading);
  void readSectionLine(const QString& text);
  void readMessage(const QString& text);
  void readStatement(const QString& text);
  void readRemoval(const QString& text);
  void readListed(const QString& text);
  void readService(const QString& text);
  void readNews(const QString& text);
  void readVersions(const QString& text);
  void readAlreadyInstalled(const QString& warning);
  void begin(RunFacts::Activity activity, const QString& target);
  void endCaveat();
  void finishMessage();

  RunFacts facts_;
  BrewCommandOperation operation_;
  bool isError_ = false;
  Section section_ = Section::none;
  QString caveatPackage_;
  QStringList caveatLines_;
  qsizetype caveatsLength_ = 0;
  /// An error or a warning; an error's sentence may go on in the next line.
  QString message_;
  bool messageIsError_ = false;
  /// Whether what is uninstalled goes because nothing needs it.
  bool isAutoremoving_ = false;
  /// Whether standard output told what is under way.
  bool hasBegun_ = false;
};

/// Adds what is not there yet, until the list is full.
template <typename T>
void keep(QList<T>& list, const T& value, qsizetype limit = 200) {
  if (list.size() < limit && !list.contains(value)) {
    list += value;
  }
}

/// How many lines of one kind are kept where they are whole sentences.
inline constexpr qsizetype mostMessages = 20;

/// How many packages of an answer are kept.
inline constexpr qsizetype mostListed = 200;

/// Whether `text` may name a package, with or without its tap.
[[nodiscard]] bool isPackageName(std::string_view text);
[[nodiscard]] bool isPackageName(QStringView text);

}  // namespace quillmere
