#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include "screens/CommandHistoryListModel.h"

namespace quillmere {

class LocalPersistenceStore;

/// The history screen: the records and the question before they are cleared. Never changes a
/// record. Owned by the main window's view model; UI thread only.
class CommandHistoryViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the main window")
  Q_PROPERTY(quillmere::CommandHistoryListModel* records READ records CONSTANT)
  Q_PROPERTY(State state READ state NOTIFY stateChanged)
  Q_PROPERTY(
      bool showsClearConfirmation READ showsClearConfirmation NOTIFY showsClearConfirmationChanged)

 public:
  enum State { Empty, Listed };
  Q_ENUM(State)

  explicit CommandHistoryViewModel(LocalPersistenceStore& store, QObject* parent = nullptr);

  [[nodiscard]] CommandHistoryListModel* records() { return &records_; }

  [[nodiscard]] State state() const { return records_.rowCount() == 0 ? Empty : Listed; }

  [[nodiscard]] bool showsClearConfirmation() const { return showsClearConfirmation_; }

  Q_INVOKABLE void askClear();
  Q_INVOKABLE void confirmClear();
  Q_INVOKABLE void cancelClear();

 Q_SIGNALS:
  void stateChanged();
  void showsClearConfirmationChanged();

 private:
  void setShowsClearConfirmation(bool shows);

  LocalPersistenceStore& store_;
  CommandHistoryListModel records_;
  bool showsClearConfirmation_ = false;
};

}  // namespace quillmere
