#pragma once

#include <QCoroTask>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "prefix/HomebrewPrefixProbe.h"

namespace quillmere {

class LocalPersistenceStore;

/// Lets the user choose the prefix from anywhere in the main window: the window opens its folder
/// chooser when it is wanted, and says so when the folder is refused. Looking at the folder happens
/// on another thread, everything else on the UI thread. Owned by `ContentViewModel`.
class PrefixSelectionWorkflow : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window's view model")
  Q_PROPERTY(QUrl startFolder READ startFolder CONSTANT)
  Q_PROPERTY(bool isRefused READ isRefused NOTIFY isRefusedChanged)
  Q_PROPERTY(QString refusalTitle READ refusalTitle CONSTANT)
  Q_PROPERTY(QString refusalText READ refusalText CONSTANT)

 public:
  using Probe = std::function<HomebrewPrefixProbeSummary(const QUrl& folder)>;

  /// `probe` is called on another thread.
  explicit PrefixSelectionWorkflow(LocalPersistenceStore& store, Probe probe = &probeHomebrewPrefix,
                                   QObject* parent = nullptr);

  /// Where the chooser opens.
  [[nodiscard]] QUrl startFolder() const;

  /// Whether the folder that was chosen last is no prefix, which the user has yet to be told.
  [[nodiscard]] bool isRefused() const { return isRefused_; }

  [[nodiscard]] QString refusalTitle() const;
  [[nodiscard]] QString refusalText() const;

  /// Asks the window for its chooser.
  Q_INVOKABLE void requestChooser();

  /// Selects a folder that the user chose, or the one that the chooser showed, if it is a prefix;
  /// the selection stays if neither is.
  Q_INVOKABLE void choose(const QUrl& folder, const QUrl& shown = QUrl()) {
    selectPrefix(folder, shown);
  }

  QCoro::Task<> selectPrefix(QUrl folder, QUrl shown = QUrl());

  /// The user has been told.
  Q_INVOKABLE void acknowledgeRefusal();

 Q_SIGNALS:
  void chooserRequested();
  /// The folder that was chosen is a prefix and is selected now.
  void prefixSelected();
  void isRefusedChanged();

 private:
  void setRefused(bool refused);

  LocalPersistenceStore& store_;
  Probe probe_;
  bool isRefused_ = false;
  /// Counts the folders that were chosen: only the last one is of interest.
  int choice_ = 0;
};

}  // namespace quillmere
