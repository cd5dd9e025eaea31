#include "screens/cleanup/CleanupGuidanceViewModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>

#include <utility>

#include "commands/BrewCommandBuilder.h"
#include "guidance/FreshnessIndicator.h"
#include "platform/BackgroundThreads.h"
#include "platform/ByteTexts.h"
#include "platform/Plural.h"

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

using CacheState = CleanupGuidanceSummary::CacheState;

QString idleText(const std::optional<QString>& prefix) {
  return prefix ? "Selected prefix: "_L1 + *prefix +
                      ". Scan local formula and cask directories in read-only mode to estimate old "
                      "versions and cache availability. "_L1
                : u"Select a Homebrew prefix before deriving cleanup guidance."_s;
}

/// The path of a state that has one.
struct PathOf {
  QString operator()(const CacheState::Unknown& /*state*/) const { return {}; }

  template <typename State>
  QString operator()(const State& state) const {
    return state.path;
  }
};

struct ExplanationOf {
  QString operator()(const CacheState::Readable& /*state*/) const { return {}; }

  QString operator()(const CacheState::Missing& /*state*/) const {
    return u"The standard Homebrew cache location was not found. There may be nothing to estimate, "
           "or this prefix may use another cache path."_s;
  }

  QString operator()(const CacheState::NotReadable& /*state*/) const {
    return u"The cache location exists but is not readable from the sandbox, so Quillmere cannot "
           "estimate its size."_s;
  }

  QString operator()(const CacheState::Unknown& /*state*/) const {
    return u"Cache location is unavailable until a readable Homebrew prefix is selected."_s;
  }
};

}  // namespace

CleanupGuidanceViewModel::CleanupGuidanceViewModel(PreviewCallback previewCallback, Clock clock,
                                                   CacheMeasure measure, QObject* parent)
    : LocalInventoryViewModel(std::move(clock), parent),
      previewCallback_(std::move(previewCallback)),
      measure_(std::move(measure)) {
}

void CleanupGuidanceViewModel::applyInputs(const LocalInventoryInputs& previous) {
  const bool otherPackages = !(inputs().state == previous.state);
  const bool otherPrefix = inputs().selectedPrefixURL != previous.selectedPrefixURL;
  if (otherPackages) {
    const auto* const packages = inputs().state.packages();
    oldVersions_.setPackages(packages != nullptr
                                 ? oldVersionPackages(*packages)
                                 : std::vector<CleanupGuidanceSummary::OldVersionPackage>());
  }
  if (otherPrefix) {
    setCacheState(std::nullopt);
  }
  // What was just run may have been a cleanup.
  const bool ranSomething = inputs().endedRuns != previous.endedRuns;
  if (otherPackages || otherPrefix || ranSomething) {
    ++request_;
    isMeasuring_ = false;
    if (isShown_ && phase() == Loaded) {
      measureCache(inputs().selectedPrefixURL);
    }
  }
}

QString CleanupGuidanceViewModel::spokenResult() const {
  return "Scan finished. "_L1 + oldVersionsText();
}

QString CleanupGuidanceViewModel::title() const {
  switch (phase()) {
    case Idle:
      return u"Scan For Cleanup Guidance"_s;
    case AccessNeeded:
      return u"Local Access Needed"_s;
    case Loading:
      return u"Scanning installed packages before deriving cleanup guidance..."_s;
    case Failed:
      return u"Could Not Derive Cleanup Guidance"_s;
    case Loaded:
      break;
  }
  return {};
}

QString CleanupGuidanceViewModel::text() const {
  switch (phase()) {
    case Idle:
      return idleText(inputs().selectedPrefixPath);
    case AccessNeeded:
      return u"Cleanup guidance needs read-only local inventory. Quillmere Direct can run cleanup "
             "only after showing the command and asking for stronger confirmation."_s;
    case Loading:
      return {};
    case Failed:
      return failure();
    case Loaded:
      break;
  }
  return {};
}

QString CleanupGuidanceViewModel::symbolName() const {
  return phase() == Failed ? u"externaldrive.badge.exclamationmark"_s : u"sparkles"_s;
}

QString CleanupGuidanceViewModel::inventoryFreshnessText() const {
  return inventoryFreshness(inputs().lastScanDate, now()).longText(u"Local inventory"_s);
}

QString CleanupGuidanceViewModel::oldVersionsText() const {
  const auto& packages = oldVersions_.packages();
  if (packages.empty()) {
    return u"No old formula or cask versions were detected in the latest read-only scan."_s;
  }
  return "Detected "_L1 +
         pluralized(quillmere::oldVersionCount(packages), u"older installed version"_s) +
         " across "_L1 + pluralized(static_cast<qsizetype>(packages.size()), u"package"_s) + u'.';
}

int CleanupGuidanceViewModel::oldVersionCount() const {
  return static_cast<int>(quillmere::oldVersionCount(oldVersions_.packages()));
}

int CleanupGuidanceViewModel::currentVersionCount() const {
  const auto* const packages = inputs().state.packages();
  return packages != nullptr ? static_cast<int>(packages->size()) : 0;
}

QString CleanupGuidanceViewModel::oldShareText() const {
  return QString::number(oldVersionCount()) + " older"_L1;
}

QString CleanupGuidanceViewModel::currentShareText() const {
  return QString::number(currentVersionCount()) + " current"_L1;
}

QString CleanupGuidanceViewModel::cachePath() const {
  return cacheState_ ? std::visit(PathOf(), cacheState_->value) : QString();
}

QString CleanupGuidanceViewModel::cacheSizeText() const {
  const auto* const readable =
      cacheState_ ? std::get_if<CacheState::Readable>(&cacheState_->value) : nullptr;
  if (readable == nullptr) {
    return {};
  }
  return readable->estimatedBytes ? byteCountText(*readable->estimatedBytes) : u"Unknown"_s;
}

QString CleanupGuidanceViewModel::cacheText() const {
  return cacheState_ ? std::visit(ExplanationOf(), cacheState_->value)
                     : u"Estimating the size of the cache..."_s;
}

void CleanupGuidanceViewModel::appear() {
  isShown_ = true;
  if (phase() == Loaded && !isMeasuring_) {
    measureCache(inputs().selectedPrefixURL);
  }
}

void CleanupGuidanceViewModel::disappear() {
  isShown_ = false;
}

void CleanupGuidanceViewModel::previewCleanup() {
  previewCallback_(BrewCommandBuilder().cleanup(), u"Cleanup"_s);
}

QCoro::Task<> CleanupGuidanceViewModel::measureCache(std::optional<QUrl> prefixURL) {
  const int request = ++request_;
  isMeasuring_ = true;
  const QPointer<CleanupGuidanceViewModel> self(this);
  const QFuture<CacheState> measuring = QtConcurrent::run(backgroundThreads(), measure_, prefixURL);
  const CacheState measured = co_await measuring;
  if (self && request == request_) {
    isMeasuring_ = false;
    setCacheState(measured);
  }
}

void CleanupGuidanceViewModel::setCacheState(std::optional<CacheState> state) {
  if (cacheState_ != state) {
    cacheState_ = std::move(state);
    Q_EMIT cacheChanged();
  }
}

}  // namespace quillmere
