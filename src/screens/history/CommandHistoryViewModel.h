#pragma once

#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include "screens/history/CommandHistoryListModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// The history screen: the records, the search in them and the question before they are cleared.
/// Never changes a record. Owned by the main window's view model; UI thread only.
class CommandHistoryViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")
  Q_PROPERTY(quillmere::CommandHistoryListModel* records READ records CONSTANT)
  Q_PROPERTY(State state READ state NOTIFY stateChanged)
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
  Q_PROPERTY(QString matchesText READ matchesText NOTIFY stateChanged)
  Q_PROPERTY(
      bool showsClearConfirmation READ showsClearConfirmation NOTIFY showsClearConfirmationChanged)

 public:
  enum State {
    /// A long history is still being read after the start.
    Reading,
    Empty,
    NoMatch,
    Listed,
  };
  Q_ENUM(State)

  explicit CommandHistoryViewModel(LocalPersistenceStore& store,
                                   const QLocale& locale = QLocale::system(),
                                   QObject* parent = nullptr);

  [[nodiscard]] CommandHistoryListModel* records() { return &records_; }

  [[nodiscard]] State state() const;

  [[nodiscard]] const QString& searchText() const { return searchText_; }

  /// Shows the records that contain `text`; white space around it does not count.
  void setSearchText(const QString& text);
  /// How many records the search found; empty while nothing is searched.
  [[nodiscard]] QString matchesText() const;

  [[nodiscard]] bool showsClearConfirmation() const { return showsClearConfirmation_; }

  /// The screen is shown anew: nothing is searched, and the first letter will not have to wait.
  Q_INVOKABLE void appear();
  Q_INVOKABLE void clearSearch();
  Q_INVOKABLE void askClear();
  Q_INVOKABLE void confirmClear();
  Q_INVOKABLE void cancelClear();

 Q_SIGNALS:
  void stateChanged();
  void searchTextChanged();
  void showsClearConfirmationChanged();

 private:
  void setShowsClearConfirmation(bool shows);

  LocalPersistenceStore& store_;
  CommandHistoryListModel records_;
  QString searchText_;
  bool showsClearConfirmation_ = false;
};

}  // namespace quillmere
