#include "screens/CommandHistoryViewModel.h"

#include "persistence/LocalPersistenceStore.h"

namespace quillmere {

CommandHistoryViewModel::CommandHistoryViewModel(LocalPersistenceStore& store, QObject* parent)
    : QObject(parent), store_(store), records_(store) {
  connect(&records_, &QAbstractItemModel::rowsInserted, this,
          &CommandHistoryViewModel::stateChanged);
  connect(&records_, &QAbstractItemModel::modelReset, this, &CommandHistoryViewModel::stateChanged);
}

void CommandHistoryViewModel::askClear() {
  setShowsClearConfirmation(true);
}

void CommandHistoryViewModel::confirmClear() {
  setShowsClearConfirmation(false);
  store_.clearHistory();
}

void CommandHistoryViewModel::cancelClear() {
  setShowsClearConfirmation(false);
}

void CommandHistoryViewModel::setShowsClearConfirmation(bool shows) {
  if (showsClearConfirmation_ == shows) {
    return;
  }
  showsClearConfirmation_ = shows;
  Q_EMIT showsClearConfirmationChanged();
}

}  // namespace quillmere
