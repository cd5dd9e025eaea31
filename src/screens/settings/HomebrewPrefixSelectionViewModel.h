#pragma once

#include <QCoroTask>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

#include "prefix/HomebrewPrefixProbe.h"
#include "screens/settings/HomebrewPrefixLocationListModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// The choice of the prefix that may be inspected, with a report on the folder that was looked at
/// last. Looking happens on the thread pool; everything else, all changes of state included, on the
/// UI thread. Owned by `SettingsViewModel`.
class HomebrewPrefixSelectionViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the settings")
  Q_PROPERTY(QString selectedPath READ selectedPath NOTIFY selectionChanged)
  Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged)
  Q_PROPERTY(QString chooseTitle READ chooseTitle NOTIFY selectionChanged)
  Q_PROPERTY(QUrl startFolder READ startFolder NOTIFY selectionChanged)
  Q_PROPERTY(bool hasReport READ hasReport NOTIFY reportChanged)
  Q_PROPERTY(bool looksLikePrefix READ looksLikePrefix NOTIFY reportChanged)
  Q_PROPERTY(QString reportPath READ reportPath NOTIFY reportChanged)
  Q_PROPERTY(QString verdict READ verdict NOTIFY reportChanged)
  Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY reportChanged)
  Q_PROPERTY(quillmere::HomebrewPrefixLocationListModel* locations READ locations CONSTANT)

 public:
  using Probe = std::function<HomebrewPrefixProbeSummary(const QUrl& folder)>;

  /// `probe` is called on the thread pool.
  explicit HomebrewPrefixSelectionViewModel(LocalPersistenceStore& store,
                                            Probe probe = &probeHomebrewPrefix,
                                            QObject* parent = nullptr);

  [[nodiscard]] QString selectedPath() const;
  [[nodiscard]] bool hasSelection() const;
  [[nodiscard]] QString chooseTitle() const;
  /// Where the folder chooser opens.
  [[nodiscard]] QUrl startFolder() const;

  [[nodiscard]] bool hasReport() const { return probeSummary_.has_value(); }

  [[nodiscard]] bool looksLikePrefix() const;
  [[nodiscard]] QString reportPath() const;
  [[nodiscard]] QString verdict() const;

  [[nodiscard]] QString errorMessage() const { return errorMessage_.value_or(QString()); }

  [[nodiscard]] HomebrewPrefixLocationListModel* locations() { return &locations_; }

  /// Looks at a folder that the user chose and selects it if it is a prefix. A chooser that was
  /// cancelled does not call this.
  Q_INVOKABLE void chooseFolder(const QUrl& folder, const QUrl& shown = QUrl());
  /// Looks at the selected prefix again.
  Q_INVOKABLE void recheck();
  /// Forgets the selection and the report.
  Q_INVOKABLE void reset();

 Q_SIGNALS:
  void selectionChanged();
  void reportChanged();

 private:
  /// What a look at a folder is for.
  enum class Purpose { choose, recheck };

  QCoro::Task<> probe(QUrl folder, QUrl shown, Purpose purpose);
  void applyChoice(const HomebrewPrefixProbeSummary& summary);
  void applyRecheck(const HomebrewPrefixProbeSummary& summary);
  void followSelection();
  void showReport(std::optional<HomebrewPrefixProbeSummary> summary,
                  std::optional<QString> errorMessage);

  LocalPersistenceStore& store_;
  Probe probe_;
  HomebrewPrefixLocationListModel locations_;
  std::optional<HomebrewPrefixProbeSummary> probeSummary_;
  std::optional<QString> errorMessage_;
  /// Counts what was asked for, so that an answer to an earlier question is not shown.
  int request_ = 0;
  bool changingSelection_ = false;
};

}  // namespace quillmere
