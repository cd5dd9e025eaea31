#include "screens/run/DirectExecutionSessionViewModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <chrono>
#include <utility>

#include "execution/FailureAdvice.h"
#include "platform/BackgroundThreads.h"
#include "platform/DateTexts.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quillmere {
namespace {

constexpr auto readInterval = 100ms;
/// Between two announcements: the second of two at once would take the first one's place.
constexpr auto announcementPause = 1500ms;
/// How much is read at one look, in bytes. A child that prints faster than we read would make each
/// look longer than the one before, and the screen stand still meanwhile.
constexpr qsizetype mostForALook = 8Z * 1024 * 1024;

QLatin1StringView tintOf(const DirectExecutionSessionStatus& status) {
  struct Tint {
    QLatin1StringView operator()(const SessionReady&) const { return "neutral"_L1; }

    QLatin1StringView operator()(const SessionRunning&) const { return "blue"_L1; }

    QLatin1StringView operator()(const SessionCompleted&) const { return "green"_L1; }

    QLatin1StringView operator()(const SessionFailed&) const { return "red"_L1; }

    QLatin1StringView operator()(const SessionCancelled&) const { return "neutral"_L1; }
  };

  return std::visit(Tint(), status);
}

struct Looks {
  QLatin1StringView symbol;
  QLatin1StringView tint;
};

constexpr Looks looksOf(RunOutcome::Kind kind) {
  switch (kind) {
    case RunOutcome::Kind::success:
      return {"checkmark.circle.fill"_L1, "green"_L1};
    case RunOutcome::Kind::information:
      return {"info.circle"_L1, "blue"_L1};
    case RunOutcome::Kind::failure:
      return {"xmark.octagon"_L1, "red"_L1};
    case RunOutcome::Kind::cancellation:
      return {"stop.circle"_L1, "neutral"_L1};
  }
  return {};
}

}  // namespace

/// What one look at the output starts from.
struct DirectExecutionSessionViewModel::Reading {
  std::shared_ptr<OutputTranscript> transcript;
  std::vector<DirectExecutionOutputChunk> chunks;
  DirectExecutionSessionStatus status;
  bool hasResult = false;
  bool isWhole = false;

  [[nodiscard]] std::shared_ptr<Read> carryOut() const;
};

/// What one look at the output found.
struct DirectExecutionSessionViewModel::Read {
  std::vector<OutputLines> lines;
  std::optional<OutputLines> unfinishedLine;
  DirectCommandOutputPresentation presentation;
  bool hasOutput = false;
  /// Whether nothing of what there was when the look began is left for the next.
  bool isWhole = false;
  bool isLast = false;
};

auto DirectExecutionSessionViewModel::Reading::carryOut() const -> std::shared_ptr<Read> {
  auto read = std::make_shared<Read>();
  read->lines = transcript->add(chunks);
  read->unfinishedLine = transcript->unfinishedLine();
  const OutputDigest digest =
      hasResult && isWhole ? transcript->resultDigest() : transcript->liveDigest();
  read->presentation = makePresentation(digest, status);
  read->hasOutput = digest.hasOutput();
  read->isWhole = isWhole;
  read->isLast = isWhole && hasEnded(status);
  return read;
}

DirectExecutionSessionViewModel::DirectExecutionSessionViewModel(
    DirectExecutionSessionController& controller, QObject* parent)
    : QObject(parent),
      controller_(controller),
      transcript_(std::make_shared<OutputTranscript>(controller.command().operation)),
      presentation_(
          makePresentation(OutputDigest(controller.command().operation), controller.status())),
      progressSteps_(makeProgressSteps(controller.command(), controller.status(), false)) {
  readTimer_.setSingleShot(true);
  readTimer_.setInterval(readInterval);
  connect(&readTimer_, &QTimer::timeout, this, [this] { readOutput(); });
  outcomeTimer_.setSingleShot(true);
  outcomeTimer_.setInterval(announcementPause);
  connect(&outcomeTimer_, &QTimer::timeout, this,
          &DirectExecutionSessionViewModel::announceOutcome);
  connect(&controller_, &DirectExecutionSessionController::outputChunksChanged, this, [this] {
    if (!readTimer_.isActive()) {
      readTimer_.start();
    }
  });
  connect(&controller_, &DirectExecutionSessionController::statusChanged, this,
          &DirectExecutionSessionViewModel::followStatus);
  connect(&controller_, &DirectExecutionSessionController::cancellationRequestedChanged, this,
          &DirectExecutionSessionViewModel::followCancellation);
}

DirectExecutionSessionViewModel::~DirectExecutionSessionViewModel() = default;

QString DirectExecutionSessionViewModel::commandText() const {
  return controller_.command().commandText;
}

QString DirectExecutionSessionViewModel::statusText() const {
  return quillmere::statusText(controller_.status());
}

QString DirectExecutionSessionViewModel::statusSymbol() const {
  return statusSymbolName(controller_.status());
}

QString DirectExecutionSessionViewModel::statusTint() const {
  return tintOf(controller_.status());
}

QString DirectExecutionSessionViewModel::outcomeSymbol() const {
  return looksOf(outcome_.kind).symbol;
}

QString DirectExecutionSessionViewModel::outcomeTint() const {
  return looksOf(outcome_.kind).tint;
}

QString DirectExecutionSessionViewModel::durationText() const {
  const auto duration = controller_.duration();
  return duration ? quillmere::durationText(*duration) : QString();
}

bool DirectExecutionSessionViewModel::isRunning() const {
  return !hasEnded(controller_.status());
}

bool DirectExecutionSessionViewModel::isCancelled() const {
  return std::holds_alternative<SessionCancelled>(controller_.status());
}

bool DirectExecutionSessionViewModel::cancellationPending() const {
  return isRunning() && controller_.cancellationRequested();
}

QString DirectExecutionSessionViewModel::cancellationText() const {
  return QStringLiteral("Homebrew was asked to end and is still finishing what it has begun.");
}

QString DirectExecutionSessionViewModel::cancelTitle() const {
  return cancellationPending() ? QStringLiteral("Cancelling\u2026") : QStringLiteral("Cancel");
}

void DirectExecutionSessionViewModel::setShowsRawOutput(bool shows) {
  if (std::exchange(showsRawOutput_, shows) != shows) {
    Q_EMIT showsRawOutputChanged();
  }
}

QString DirectExecutionSessionViewModel::rawOutputToggleTitle() const {
  return showsRawOutput_ ? QStringLiteral("Hide Command-Line Output")
                         : QStringLiteral("Show Command-Line Output");
}

QString DirectExecutionSessionViewModel::rawOutputToggleAccessibleName() const {
  return showsRawOutput_ ? QStringLiteral("Hide command-line output")
                         : QStringLiteral("Show command-line output");
}

void DirectExecutionSessionViewModel::cancel() {
  controller_.cancel();
}

void DirectExecutionSessionViewModel::copyRawOutput(int first, int last) {
  first = std::max(first, 0);
  last = std::min(last, rawOutput_.rowCount() - 1);
  if (first > last) {
    return;
  }
  QGuiApplication::clipboard()->setText(rawOutput_.text(first, last));
  const int lines = last - first + 1;
  const QString text =
      lines == 1 ? QStringLiteral("1 line copied") : QStringLiteral("%1 lines copied").arg(lines);
  Q_EMIT rawOutputCopied(text);
  Q_EMIT announced(text);
}

void DirectExecutionSessionViewModel::followStatus() {
  Q_EMIT statusChanged();
  Q_EMIT announced(statusText());
  if (isRunning()) {
    showSteps();
  } else {
    readTimer_.stop();
    readOutput();
  }
}

void DirectExecutionSessionViewModel::followCancellation() {
  Q_EMIT statusChanged();
  if (cancellationPending()) {
    Q_EMIT announced(cancellationText());
  }
}

void DirectExecutionSessionViewModel::showSteps() {
  progressSteps_.setSteps(
      makeProgressSteps(controller_.command(), controller_.status(), hasOutput_), isCancelled());
}

QCoro::Task<> DirectExecutionSessionViewModel::readOutput() {
  if (std::exchange(isReading_, true)) {
    co_return;
  }
  const QPointer<DirectExecutionSessionViewModel> self(this);
  // Another look follows at once only where this one left something, or the run ended meanwhile.
  bool isWhole = false;
  do {
    const QFuture<std::shared_ptr<Read>> reading = startReading();
    const std::shared_ptr<Read> read = co_await reading;
    if (!self) {
      co_return;
    }
    isWhole = read->isWhole;
    show(std::move(*read));
  } while (!isWhole || (!isRunning() && !isSettled_));
  isReading_ = false;
  if (chunksRead_ < controller_.outputChunks().size() && !readTimer_.isActive()) {
    readTimer_.start();
  }
}

auto DirectExecutionSessionViewModel::startReading() -> QFuture<std::shared_ptr<Read>> {
  const auto& chunks = controller_.outputChunks();
  const std::size_t first = chunksRead_;
  for (qsizetype size = 0; chunksRead_ < chunks.size() && size < mostForALook; ++chunksRead_) {
    size += chunks[chunksRead_].text.size();
  }
  const auto place = [&chunks](std::size_t index) {
    return chunks.begin() + static_cast<std::ptrdiff_t>(index);
  };
  return QtConcurrent::run(
      backgroundThreads(),
      [reading = Reading{.transcript = transcript_,
                         .chunks = {place(first), place(chunksRead_)},
                         .status = controller_.status(),
                         .hasResult = controller_.result().has_value(),
                         .isWhole = chunksRead_ == chunks.size()}] { return reading.carryOut(); });
}

void DirectExecutionSessionViewModel::show(Read read) {
  if (!read.lines.empty() || read.unfinishedLine) {
    rawOutput_.append(std::move(read.lines), std::move(read.unfinishedLine));
    Q_EMIT rawOutputGrew();
  }
  summaryRows_.setRows(read.presentation.rows, isCancelled());
  presentation_ = std::move(read.presentation);
  hasOutput_ = read.hasOutput;
  if (read.isLast) {
    showOutcome();
  }
  Q_EMIT presentationChanged();
  showSteps();
  if (read.isLast) {
    isSettled_ = true;
    Q_EMIT outputSettled();
  }
}

void DirectExecutionSessionViewModel::showOutcome() {
  const auto& result = controller_.result();
  if (!result) {
    return;
  }
  outcome_ = result->outcome;
  if (std::holds_alternative<SessionFailed>(controller_.status())) {
    adviceText_ = failureAdvice(*result);
  }
  if (!outcome_.sentence.isEmpty() || !adviceText_.isEmpty()) {
    outcomeTimer_.start();
  }
}

void DirectExecutionSessionViewModel::announceOutcome() {
  QStringList said{outcome_.sentence, adviceText_};
  said.removeAll(QString());
  Q_EMIT announced(said.join(". "_L1));
}

}  // namespace quillmere
