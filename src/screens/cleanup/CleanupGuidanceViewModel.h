#pragma once

#include <QCoroTask>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "guidance/CleanupGuidance.h"
#include "screens/cleanup/OldVersionListModel.h"
#include "screens/shared/LocalInventoryViewModel.h"
#include "screens/shared/PreviewCallback.h"

namespace quillmere {

/// The Cleanup screen: what a cleanup would be about. The cache is measured on another thread, and
/// only while the screen is shown: it may hold very many files. Owned by `ContentViewModel`; UI
/// thread only.
class CleanupGuidanceViewModel : public quillmere::LocalInventoryViewModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(QString inventoryFreshnessText READ inventoryFreshnessText NOTIFY changed)
  Q_PROPERTY(QString oldVersionsText READ oldVersionsText NOTIFY changed)
  Q_PROPERTY(int oldVersionCount READ oldVersionCount NOTIFY changed)
  Q_PROPERTY(int currentVersionCount READ currentVersionCount NOTIFY changed)
  Q_PROPERTY(QString oldShareText READ oldShareText NOTIFY changed)
  Q_PROPERTY(QString currentShareText READ currentShareText NOTIFY changed)
  Q_PROPERTY(quillmere::OldVersionListModel* oldVersions READ oldVersions CONSTANT)
  Q_PROPERTY(bool isMeasuringCache READ isMeasuringCache NOTIFY cacheChanged)
  Q_PROPERTY(QString cachePath READ cachePath NOTIFY cacheChanged)
  Q_PROPERTY(QString cacheSizeText READ cacheSizeText NOTIFY cacheChanged)
  Q_PROPERTY(QString cacheText READ cacheText NOTIFY cacheChanged)

 public:
  using CacheState = CleanupGuidanceSummary::CacheState;
  using CacheMeasure = std::function<CacheState(const std::optional<QUrl>& prefixURL)>;

  /// `measure` is called on another thread.
  explicit CleanupGuidanceViewModel(PreviewCallback previewCallback,
                                    Clock clock = &QDateTime::currentDateTimeUtc,
                                    CacheMeasure measure = &cleanupCacheState,
                                    QObject* parent = nullptr);

  [[nodiscard]] QString title() const override;
  [[nodiscard]] QString text() const override;
  [[nodiscard]] QString symbolName() const override;
  [[nodiscard]] QString inventoryFreshnessText() const;

  [[nodiscard]] QString oldVersionsText() const;
  [[nodiscard]] int oldVersionCount() const;
  /// How many installed versions are the only or the newest of their package.
  [[nodiscard]] int currentVersionCount() const;
  // Both in words, for the picture.
  [[nodiscard]] QString oldShareText() const;
  [[nodiscard]] QString currentShareText() const;

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
  void cacheChanged();

 private:
  void applyInputs(const LocalInventoryInputs& previous) override;
  [[nodiscard]] QString spokenResult() const override;

  /// Old versions are old whatever the catalog says.
  [[nodiscard]] bool usesCatalog() const override { return false; }

  QCoro::Task<> measureCache(std::optional<QUrl> prefixURL);
  void setCacheState(std::optional<CacheState> state);

  PreviewCallback previewCallback_;
  CacheMeasure measure_;
  OldVersionListModel oldVersions_;
  std::optional<CacheState> cacheState_;
  bool isShown_ = false;
  /// Whether an answer is under way that will be shown: it is not asked for twice.
  bool isMeasuring_ = false;
  /// Counts what was asked for, so that an answer to an earlier question is not shown.
  int request_ = 0;
};

}  // namespace quillmere
