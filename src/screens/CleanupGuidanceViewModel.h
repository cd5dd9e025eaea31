#pragma once

#include <QCoroTask>
#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "guidance/CleanupGuidance.h"
#include "screens/LocalInventoryInputs.h"
#include "screens/OldVersionListModel.h"
#include "screens/PreviewRequest.h"

namespace quillmere {

/// The Cleanup screen: what a cleanup would be about. The cache is measured on another thread, and
/// only while the screen is shown: it may hold very many files. Owned by `ContentViewModel`; UI
/// thread only.
class CleanupGuidanceViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(State state READ state NOTIFY inputsChanged)
  Q_PROPERTY(QString stateTitle READ stateTitle NOTIFY inputsChanged)
  Q_PROPERTY(QString stateText READ stateText NOTIFY inputsChanged)
  Q_PROPERTY(QString stateSymbolName READ stateSymbolName NOTIFY inputsChanged)
  Q_PROPERTY(QString inventoryFreshnessText READ inventoryFreshnessText NOTIFY inputsChanged)
  Q_PROPERTY(QString oldVersionsText READ oldVersionsText NOTIFY inputsChanged)
  Q_PROPERTY(int oldVersionCount READ oldVersionCount NOTIFY inputsChanged)
  Q_PROPERTY(int currentVersionCount READ currentVersionCount NOTIFY inputsChanged)
  Q_PROPERTY(quillmere::OldVersionListModel* oldVersions READ oldVersions CONSTANT)
  Q_PROPERTY(bool isMeasuringCache READ isMeasuringCache NOTIFY cacheChanged)
  Q_PROPERTY(QString cachePath READ cachePath NOTIFY cacheChanged)
  Q_PROPERTY(QString cacheSizeText READ cacheSizeText NOTIFY cacheChanged)
  Q_PROPERTY(QString cacheText READ cacheText NOTIFY cacheChanged)

 public:
  using Clock = std::function<QDateTime()>;
  using CacheState = CleanupGuidanceSummary::CacheState;
  using CacheMeasure = std::function<CacheState(const std::optional<QUrl>& prefixURL)>;

  enum State { Idle, AccessNeeded, Loading, Failed, Loaded };
  Q_ENUM(State)

  /// `measure` is called on another thread.
  explicit CleanupGuidanceViewModel(PreviewRequest previewRequest,
                                    Clock clock = &QDateTime::currentDateTimeUtc,
                                    CacheMeasure measure = &cleanupCacheState,
                                    QObject* parent = nullptr);

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

  [[nodiscard]] State state() const;
  // What is said in place of the guidance.
  [[nodiscard]] QString stateTitle() const;
  [[nodiscard]] QString stateText() const;
  [[nodiscard]] QString stateSymbolName() const;
  [[nodiscard]] QString inventoryFreshnessText() const;

  [[nodiscard]] QString oldVersionsText() const;
  [[nodiscard]] int oldVersionCount() const;
  /// How many installed versions are the only or the newest of their package.
  [[nodiscard]] int currentVersionCount() const;

  [[nodiscard]] OldVersionListModel* oldVersions() { return &oldVersions_; }

  /// Whether nothing is known of the cache yet.
  [[nodiscard]] bool isMeasuringCache() const { return !cacheState_; }

  /// Empty where there is none.
  [[nodiscard]] QString cachePath() const;
  /// Empty where there is nothing to measure.
  [[nodiscard]] QString cacheSizeText() const;
  /// Why there is nothing to measure; empty where there is.
  [[nodiscard]] QString cacheText() const;

  // The screen comes into view and goes out of it. Each time it comes the cache is measured anew;
  // what was known of it stays until then.
  Q_INVOKABLE void appear();
  Q_INVOKABLE void disappear();

  Q_INVOKABLE void previewCleanup();

 Q_SIGNALS:
  void inputsChanged();
  void cacheChanged();
  /// A scan has ended; `outcome` says how, for assistive technology.
  void scanEnded(const QString& outcome);
  // What the user wants of the main window.
  void scanWanted();
  void cancelScanWanted();
  void selectPrefixWanted();

 private:
  QCoro::Task<> measureCache(std::optional<QUrl> prefixURL);
  void setCacheState(std::optional<CacheState> state);

  PreviewRequest previewRequest_;
  Clock clock_;
  CacheMeasure measure_;
  LocalInventoryInputs inputs_;
  OldVersionListModel oldVersions_;
  std::optional<CacheState> cacheState_;
  bool isShown_ = false;
  /// Whether an answer is under way that will be shown: it is not asked for twice.
  bool isMeasuring_ = false;
  /// Counts what was asked for, so that an answer to an earlier question is not shown.
  int request_ = 0;
};

}  // namespace quillmere
