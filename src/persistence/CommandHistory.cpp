#include "persistence/CommandHistory.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "persistence/ExecutionOutputSummary.h"
#include "platform/AbbreviatedText.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

/// 2001-01-01T00:00:00Z, from which the dates of the history count.
constexpr qint64 referenceMSecs = 978'307'200'000;
/// The years 1 and 10,000: outside of them lie numbers, not dates.
constexpr qint64 firstMSecs = -62'135'596'800'000;
constexpr qint64 endMSecs = 253'402'300'800'000;

/// In bytes; how much to reserve for a record.
constexpr qsizetype usualRecordSize = 512;

/// The keys of a record, for the writer and the reader alike. Stops where `visit` returns false.
/// Keys that were added later say so: to earlier versions they are keys that nobody knows.
template <typename Record, typename Visit>
bool visitFields(Record& record, Visit&& visit) {
  return visit("id"_L1, record.id) && visit("command"_L1, record.command) &&
         visit("copiedAt"_L1, record.copiedAt) && visit("operationType"_L1, record.operationType) &&
         visit("packageTarget"_L1, record.packageTarget) &&
         visit("sourceScreen"_L1, record.sourceScreen) && visit("copied"_L1, record.copied) &&
         visit("executed"_L1, record.executed) &&
         visit("executionStartedAt"_L1, record.executionStartedAt) &&
         visit("executionEndedAt"_L1, record.executionEndedAt) &&
         visit("executionExitCode"_L1, record.executionExitCode) &&
         visit("executionCancelled"_L1, record.executionCancelled) &&
         visit("executionOutputSummary"_L1, record.executionOutputSummary) &&
         visit.added("executionOutcome"_L1, record.executionOutcome);
}

// Not written by QJsonDocument, because the whole history is written after every command, and
// building a tree of JSON values first takes ten times as long.

void append(QByteArray& json, bool flag) {
  json += flag ? "true" : "false";
}

void append(QByteArray& json, std::int32_t number) {
  json += QByteArray::number(number);
}

/// Everything but printable ASCII is escaped, so that the bytes are ASCII and a text that is not
/// valid Unicode comes back as it was.
char* writeEscaped(char* out, char16_t c) {
  constexpr std::string_view digits = "0123456789abcdef";
  *out++ = '\\';
  if (c == u'"' || c == u'\\') {
    *out++ = static_cast<char>(c);
    return out;
  }
  *out++ = 'u';
  for (const int shift : {12, 8, 4, 0}) {
    *out++ = digits[(c >> shift) & 0xfU];
  }
  return out;
}

void append(QByteArray& json, const QString& text) {
  constexpr qsizetype longestEscape = 6;
  const qsizetype start = json.size();
  json.resize(start + longestEscape * text.size() + 2);
  char* out = json.data() + start;
  *out++ = '"';
  for (const QChar character : text) {
    const char16_t c = character.unicode();
    const bool isPlain = c >= 0x20 && c < 0x7f && c != u'"' && c != u'\\';
    if (isPlain) {
      *out++ = static_cast<char>(c);
    } else {
      out = writeEscaped(out, c);
    }
  }
  *out++ = '"';
  json.truncate(out - json.constData());
}

void append(QByteArray& json, const QUuid& id) {
  json += '"' + id.toByteArray(QUuid::WithoutBraces).toUpper() + '"';
}

void append(QByteArray& json, const QDateTime& date) {
  const qint64 msecs = date.toMSecsSinceEpoch() - referenceMSecs;
  const qint64 magnitude = std::abs(msecs);
  if (msecs < 0) {
    json += '-';
  }
  json += QByteArray::number(magnitude / 1000);
  if (const qint64 fraction = magnitude % 1000; fraction != 0) {
    json += '.' + QByteArray::number(fraction).rightJustified(3, '0');
  }
}

struct FieldWriter {
  QByteArray& json;

  template <typename T>
  bool operator()(QLatin1StringView key, const T& value) const {
    json += json.endsWith('{') ? "\"" : ",\"";
    json += QByteArrayView(key.data(), key.size());
    json += "\":";
    append(json, value);
    return true;
  }

  template <typename T>
  bool operator()(QLatin1StringView key, const std::optional<T>& value) const {
    return !value || (*this)(key, *value);
  }

  bool added(QLatin1StringView key, const std::optional<QString>& value) const {
    return (*this)(key, value);
  }
};

bool read(const QJsonValue& json, QString& text) {
  text = json.toString();
  return json.isString();
}

bool read(const QJsonValue& json, bool& flag) {
  flag = json.toBool();
  return json.isBool();
}

bool read(const QJsonValue& json, QUuid& id) {
  const QString text = json.toString();
  id = QUuid::fromString(text);
  return id.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) == 0;
}

bool read(const QJsonValue& json, QDateTime& date) {
  const double msecs = std::round(json.toDouble() * 1000) + referenceMSecs;
  if (!json.isDouble() || !(msecs >= firstMSecs && msecs < endMSecs)) {
    return false;
  }
  date = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(msecs), Qt::UTC);
  return true;
}

bool read(const QJsonValue& json, std::int32_t& number) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double value = json.toDouble();
  if (!json.isDouble() || value != std::trunc(value) || value < Limits::min() ||
      value > Limits::max()) {
    return false;
  }
  number = static_cast<std::int32_t>(value);
  return true;
}

/// Takes what the object holds. A value of another type than its field's makes the record
/// unreadable, whether or not the field may be missing.
struct FieldReader {
  const QJsonObject& object;

  template <typename T>
  bool operator()(QLatin1StringView key, T& value) const {
    return read(object[key], value);
  }

  /// The flags are younger than the first records: where one is missing its default holds.
  bool operator()(QLatin1StringView key, bool& flag) const {
    return isAbsent(key) || read(object[key], flag);
  }

  template <typename T>
  bool operator()(QLatin1StringView key, std::optional<T>& value) const {
    return isAbsent(key) || read(object[key], value.emplace());
  }

  /// Whatever stands there, the record stays readable.
  bool added(QLatin1StringView key, std::optional<QString>& value) const {
    if (object[key].isString()) {
      value = object[key].toString();
    }
    return true;
  }

  [[nodiscard]] bool isAbsent(QLatin1StringView key) const {
    const QJsonValue value = object[key];
    return value.isUndefined() || value.isNull();
  }
};

}  // namespace

QByteArray encodeCommandHistory(const CommandHistory& history) {
  QByteArray json = "[";
  json.reserve(history.size() * usualRecordSize);
  for (const CommandHistoryRecord& record : history) {
    json += json.size() == 1 ? "{" : ",{";
    visitFields(record, FieldWriter{json});
    json += '}';
  }
  return json += ']';
}

std::optional<CommandHistory> decodeCommandHistory(const QByteArray& json) {
  const QJsonDocument document = QJsonDocument::fromJson(json);
  if (!document.isArray()) {
    return std::nullopt;
  }
  const QJsonArray array = document.array();
  CommandHistory history;
  history.reserve(array.size());
  for (const QJsonValue value : array) {
    const QJsonObject object = value.toObject();
    if (!visitFields(history.emplaceBack(), FieldReader{object})) {
      return std::nullopt;
    }
  }
  return history;
}

namespace {

/// A sentence is one line; an error that Homebrew quotes may be long.
constexpr qsizetype longestOutcome = 300;

std::optional<QString> keptOutcome(const RunOutcome& outcome, const Secrets& secrets) {
  return outcome.sentence.isEmpty()
             ? std::nullopt
             : std::optional(abbreviated(secrets.redacted(outcome.sentence), longestOutcome));
}

}  // namespace

CommandHistoryRecord makeExecutionRecord(const DirectCommandResult& result,
                                         const std::optional<QString>& sourceScreen) {
  const Secrets secrets(QProcessEnvironment::systemEnvironment());
  return {
      .id = QUuid::createUuid(),
      .command = result.command.commandText,
      .copiedAt = result.endedAt,
      .operationType = rawValue(result.command.operation),
      .packageTarget = result.command.target.name,
      .sourceScreen = sourceScreen,
      .copied = false,
      .executed = true,
      .executionStartedAt = result.startedAt,
      .executionEndedAt = result.endedAt,
      .executionExitCode = result.exitCode,
      .executionCancelled = result.wasCancelled,
      .executionOutputSummary =
          executionOutputSummary(result.standardOutput, result.standardError, secrets),
      .executionOutcome = keptOutcome(result.outcome, secrets),
  };
}

}  // namespace quillmere
