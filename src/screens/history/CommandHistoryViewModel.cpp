#include "screens/history/CommandHistoryViewModel.h"

#include "persistence/LocalPersistenceStore.h"

namespace quillmere {

CommandHistoryViewModel::CommandHistoryViewModel(LocalPersistenceStore& store,
                                                 const QLocale& locale, QObject* parent)
    : QObject(parent), store_(store), records_(store, locale) {
  connect(&records_, &CommandHistoryListModel::changed, this,
          &CommandHistoryViewModel::stateChanged);
}

CommandHistoryViewModel::State CommandHistoryViewModel::state() const {
  if (!store_.isHistoryLoaded()) {
    return Reading;
  }
  if (records_.recordCount() == 0) {
    return Empty;
  }
  return records_.rowCount() == 0 ? NoMatch : Listed;
}

void CommandHistoryViewModel::setSearchText(const QString& text) {
  if (searchText_ == text) {
    return;
  }
  searchText_ = text;
  records_.search(QStringView(searchText_).trimmed());
  Q_EMIT searchTextChanged();
  Q_EMIT stateChanged();
}

QString CommandHistoryViewModel::matchesText() const {
  if (!records_.isFiltered()) {
    return {};
  }
  const int found = records_.rowCount();
  return found == 0 ? QStringLiteral("No History Matches")
                    : QStringLiteral("%1 of %2 commands").arg(found).arg(records_.recordCount());
}

void CommandHistoryViewModel::appear() {
  clearSearch();
  records_.prepareSearch();
}

void CommandHistoryViewModel::clearSearch() {
  setSearchText(QString());
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
