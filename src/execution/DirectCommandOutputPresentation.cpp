#include "execution/DirectCommandOutputPresentation.h"

#include <QtCore/QStringList>

namespace quillmere {
namespace {

using Operation = BrewCommandOperation;
using Presentation = DirectCommandOutputPresentation;
using Row = DirectCommandOutputPresentation::Row;
using Step = DirectExecutionProgressStep;
using Tint = DirectCommandOutputPresentation::Tint;

/// What the rows of an operation are and how its steps are called.
enum class Group { change, list, explanation };

/// One line of the table of fixed texts, in the order of the operations.
struct OperationTexts {
  Operation operation;
  Group group;
  QLatin1StringView title;
  QLatin1StringView symbolName;
  /// The empty text of a completed run.
  QLatin1StringView emptyText;
  QLatin1StringView runningLabel;
};

constexpr QLatin1StringView seal("checkmark.seal");
constexpr QLatin1StringView bullets("list.bullet");
constexpr QLatin1StringView noOutput("Homebrew completed without additional output.");

constexpr auto operationTexts = std::to_array<OperationTexts>({
    {Operation::info, Group::explanation, QLatin1StringView("Package Information"),
     QLatin1StringView("info.circle"), noOutput, QLatin1StringView("Requested package info")},
    {Operation::install, Group::change, QLatin1StringView("Install Result"), seal, noOutput,
     QLatin1StringView("Installing package")},
    {Operation::uninstall, Group::change, QLatin1StringView("Uninstall Result"), seal, noOutput,
     QLatin1StringView("Uninstalling package")},
    {Operation::update, Group::change, QLatin1StringView("Update Result"), seal, noOutput,
     QLatin1StringView("Updating Homebrew")},
    {Operation::upgrade, Group::change, QLatin1StringView("Upgrade Result"), seal, noOutput,
     QLatin1StringView("Upgrading packages")},
    {Operation::outdated, Group::list, QLatin1StringView("Outdated Packages"), bullets,
     QLatin1StringView("Homebrew reported no outdated packages."),
     QLatin1StringView("Checking outdated packages")},
    {Operation::cleanup, Group::change, QLatin1StringView("Cleanup Result"), seal, noOutput,
     QLatin1StringView("Cleaning cache")},
    {Operation::dependencies, Group::list, QLatin1StringView("Dependencies"), bullets,
     QLatin1StringView("Homebrew reported no dependencies."),
     QLatin1StringView("Listing dependencies")},
    {Operation::reverseDependencies, Group::list, QLatin1StringView("Used By"), bullets,
     QLatin1StringView("Homebrew reported no formulae using this package."),
     QLatin1StringView("Finding dependents")},
    {Operation::servicesList, Group::list, QLatin1StringView("Services"), bullets,
     QLatin1StringView("Homebrew returned no services."), QLatin1StringView("Listing services")},
    {Operation::doctor, Group::explanation, QLatin1StringView("Doctor Report"),
     QLatin1StringView("stethoscope"), QLatin1StringView("Homebrew did not print diagnostics."),
     QLatin1StringView("Running diagnostics")},
});
static_assert(hasRowForEach(operationTexts, &OperationTexts::operation));

constexpr const OperationTexts& textsOf(Operation operation) {
  return operationTexts[static_cast<std::size_t>(operation)];
}

bool hasFailed(const DirectExecutionSessionStatus& status) {
  return std::holds_alternative<SessionFailed>(status);
}

QString emptyText(Operation operation, const DirectExecutionSessionStatus& status) {
  if (hasFailed(status)) {
    return QStringLiteral(
        "No captured output was available for this failed command. Expand command-line output for "
        "diagnostics if present.");
  }
  if (!hasEnded(status)) {
    return QStringLiteral(
        "Quillmere will summarize captured output here while the command runs. Raw stdout and "
        "stderr stay collapsed below.");
  }
  if (std::holds_alternative<SessionCancelled>(status)) {
    return QStringLiteral("The command was cancelled before Quillmere captured output.");
  }
  return textsOf(operation).emptyText;
}

Row makeRow(const QString& title, const std::optional<QString>& detail,
            QLatin1StringView symbolName, Tint tint) {
  return {QUuid::createUuid(), title, detail, symbolName, tint};
}

/// A line without Homebrew's heading markers.
QString cleaned(const QString& line, QLatin1StringView whenEmpty = {}) {
  const QString title = line.trimmed().remove(QLatin1StringView("==> "));
  return title.isEmpty() ? QString(whenEmpty) : title;
}

std::vector<Row> infoRows(const OutputDigest& digest) {
  std::vector<Row> rows;
  for (const QString& line : digest.firstLines()) {
    rows.push_back(makeRow(cleaned(line, QLatin1StringView("Info")), std::nullopt,
                           QLatin1StringView("info.circle"), Tint::blue));
  }
  return rows;
}

/// Rows that say by symbol and tint whether the run failed.
std::vector<Row> verdictRows(const QStringList& lines, QLatin1StringView whenEmpty, Tint success,
                             bool failed) {
  std::vector<Row> rows;
  for (const QString& line : lines) {
    rows.push_back(makeRow(cleaned(line, whenEmpty), std::nullopt,
                           failed ? QLatin1StringView("exclamationmark.triangle")
                                  : QLatin1StringView("checkmark.circle"),
                           failed ? Tint::red : success));
  }
  return rows;
}

Row countingRow(const OutputDigest& digest, QLatin1StringView singular, QLatin1StringView plural) {
  const qsizetype count = digest.lineCount();
  QString detail = digest.firstLines().join(QLatin1StringView(", "));
  if (const qsizetype more = count - digest.firstLines().size(); more > 0) {
    detail += QStringLiteral(", and %1 more").arg(more);
  }
  return makeRow(QStringLiteral("Found %1 %2").arg(count).arg(count == 1 ? singular : plural),
                 detail, QLatin1StringView("list.bullet.circle"), Tint::blue);
}

Row servicesRow(const OutputDigest& digest) {
  QString detail = QStringLiteral("%1 started, %2 stopped")
                       .arg(digest.startedCount())
                       .arg(digest.stoppedCount());
  if (!digest.firstServiceLines().isEmpty()) {
    detail += u'\n' + digest.firstServiceLines().join(u'\n');
  }
  return makeRow(QStringLiteral("Found %1 services").arg(digest.serviceCount()), detail,
                 QLatin1StringView("switch.2"), Tint::blue);
}

std::vector<Row> makeRows(const OutputDigest& digest, bool failed) {
  if (!digest.hasOutput()) {
    return {};
  }
  switch (digest.operation()) {
    case Operation::info:
      return infoRows(digest);
    case Operation::doctor:
      return verdictRows(digest.firstLines(), QLatin1StringView("Diagnostic message"), Tint::blue,
                         failed);
    case Operation::outdated:
      return {countingRow(digest, QLatin1StringView("package"), QLatin1StringView("packages"))};
    case Operation::dependencies:
      return {
          countingRow(digest, QLatin1StringView("dependency"), QLatin1StringView("dependencies"))};
    case Operation::reverseDependencies:
      return {countingRow(digest, QLatin1StringView("dependent formula"),
                          QLatin1StringView("dependent formulae"))};
    case Operation::servicesList:
      return {servicesRow(digest)};
    case Operation::install:
    case Operation::uninstall:
    case Operation::update:
    case Operation::upgrade:
    case Operation::cleanup:
      break;
  }
  const QStringList& lines =
      digest.notableLines().isEmpty() ? digest.firstLines() : digest.notableLines();
  return verdictRows(lines, {}, Tint::green, failed);
}

QString captureTitle(Group group) {
  switch (group) {
    case Group::change:
      return QStringLiteral("Capturing changes");
    case Group::list:
      return QStringLiteral("Capturing list");
    case Group::explanation:
      return QStringLiteral("Capturing explanation");
  }
  return {};
}

/// The states of the three steps after the first, which is always complete.
struct StepStates {
  Step::State run;
  Step::State capture;
  Step::State finish;
};

StepStates stepStates(const DirectExecutionSessionStatus& status, bool hasOutput) {
  using enum Step::State;
  if (hasFailed(status)) {
    return {failed, complete, failed};
  }
  // A cancelled run is over and nothing in it went wrong: every step is shown as done.
  if (hasEnded(status)) {
    return {complete, complete, complete};
  }
  const Step::State run = std::holds_alternative<SessionRunning>(status) ? active : pending;
  return {run, hasOutput ? active : pending, pending};
}

}  // namespace

QString presentationText(const std::optional<DirectCommandResult>& result,
                         std::span<const DirectExecutionOutputChunk> chunks) {
  if (result) {
    QStringList texts{QString::fromUtf8(result->standardOutput).trimmed(),
                      QString::fromUtf8(result->standardError).trimmed()};
    texts.removeAll(QString());
    return texts.join(QLatin1StringView("\n\n"));
  }
  QByteArray text;
  for (const DirectExecutionOutputChunk& chunk : chunks) {
    if (chunk.stream != DirectExecutionOutputStream::diagnostic) {
      text += chunk.text;
    }
  }
  return QString::fromUtf8(text);
}

DirectCommandOutputPresentation makePresentation(const OutputDigest& digest,
                                                 const DirectExecutionSessionStatus& status) {
  const OperationTexts& texts = textsOf(digest.operation());
  return {texts.title, texts.symbolName, emptyText(digest.operation(), status),
          makeRows(digest, hasFailed(status))};
}

DirectCommandOutputPresentation makePresentation(const BrewCommand& command, QStringView text,
                                                 const DirectExecutionSessionStatus& status) {
  OutputDigest digest(command.operation);
  digest.addOutputLine(text.toUtf8());
  return makePresentation(digest, status);
}

std::array<DirectExecutionProgressStep, 4> makeProgressSteps(
    const BrewCommand& command, const DirectExecutionSessionStatus& status, bool hasOutput) {
  const OperationTexts& texts = textsOf(command.operation);
  const StepStates states = stepStates(status, hasOutput);
  return {
      Step{QStringLiteral("prepare"), QStringLiteral("Prepared command"), Step::State::complete},
      Step{QStringLiteral("run"), texts.runningLabel, states.run},
      Step{QStringLiteral("capture"), captureTitle(texts.group), states.capture},
      Step{QStringLiteral("finish"), QStringLiteral("Finished"), states.finish},
  };
}

QString statusText(const DirectExecutionSessionStatus& status) {
  struct Text {
    QString operator()(const SessionReady&) const { return QStringLiteral("Ready"); }

    QString operator()(const SessionRunning&) const { return QStringLiteral("Running"); }

    QString operator()(const SessionCompleted& completed) const {
      return QStringLiteral("Completed with exit code %1").arg(completed.exitCode);
    }

    QString operator()(const SessionFailed& failed) const { return failed.message; }

    QString operator()(const SessionCancelled&) const { return QStringLiteral("Cancelled"); }
  };

  return std::visit(Text{}, status);
}

QLatin1StringView statusSymbolName(const DirectExecutionSessionStatus& status) {
  struct SymbolName {
    QLatin1StringView operator()(const SessionReady&) const { return QLatin1StringView("clock"); }

    QLatin1StringView operator()(const SessionRunning&) const {
      return QLatin1StringView("terminal");
    }

    QLatin1StringView operator()(const SessionCompleted&) const {
      return QLatin1StringView("checkmark.circle");
    }

    QLatin1StringView operator()(const SessionFailed&) const {
      return QLatin1StringView("xmark.octagon");
    }

    QLatin1StringView operator()(const SessionCancelled&) const {
      return QLatin1StringView("stop.circle");
    }
  };

  return std::visit(SymbolName{}, status);
}

}  // namespace quillmere
