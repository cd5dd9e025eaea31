#include "screens/settings/HomebrewPrefixSelectionViewModel.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>

#include <utility>

#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"
#include "platform/FileUrl.h"
#include "prefix/HomebrewPrefixStartFolder.h"

namespace quillmere {

HomebrewPrefixSelectionViewModel::HomebrewPrefixSelectionViewModel(LocalPersistenceStore& store,
                                                                   Probe probe, QObject* parent)
    : QObject(parent), store_(store), probe_(std::move(probe)) {
  connect(&store_, &LocalPersistenceStore::prefixSelected, this,
          &HomebrewPrefixSelectionViewModel::followSelection);
}

QString HomebrewPrefixSelectionViewModel::selectedPath() const {
  return store_.selectedHomebrewPrefixPath().value_or(QString());
}

bool HomebrewPrefixSelectionViewModel::hasSelection() const {
  return store_.selectedHomebrewPrefixPath().has_value();
}

QString HomebrewPrefixSelectionViewModel::chooseTitle() const {
  return hasSelection() ? QStringLiteral("Change Prefix")
                        : QStringLiteral("Select Homebrew Prefix");
}

QUrl HomebrewPrefixSelectionViewModel::startFolder() const {
  return homebrewPrefixStartFolder(*platformFileSystem());
}

bool HomebrewPrefixSelectionViewModel::looksLikePrefix() const {
  return probeSummary_ && probeSummary_->looksLikeHomebrewPrefix();
}

QString HomebrewPrefixSelectionViewModel::reportPath() const {
  return probeSummary_ ? filePath(probeSummary_->prefixURL) : QString();
}

QString HomebrewPrefixSelectionViewModel::verdict() const {
  if (!probeSummary_) {
    return {};
  }
  return looksLikePrefix() ? QStringLiteral("Looks like a Homebrew prefix")
                           : QStringLiteral(
                                 "Does not look like a Homebrew prefix. Choose a folder "
                                 "containing `bin/brew`.");
}

void HomebrewPrefixSelectionViewModel::chooseFolder(const QUrl& folder, const QUrl& shown) {
  probe(folder, shown, Purpose::choose);
}

void HomebrewPrefixSelectionViewModel::recheck() {
  const std::optional<QUrl> prefix = store_.resolvedPrefixURL();
  if (!prefix) {
    ++request_;
    showReport(probeSummary_, QStringLiteral("No Homebrew prefix is selected."));
    return;
  }
  probe(*prefix, QUrl(), Purpose::recheck);
}

void HomebrewPrefixSelectionViewModel::reset() {
  ++request_;
  {
    const QScopedValueRollback changing(changingSelection_, true);
    store_.resetPrefix();
  }
  showReport(std::nullopt, std::nullopt);
}

QCoro::Task<> HomebrewPrefixSelectionViewModel::probe(QUrl folder, QUrl shown, Purpose purpose) {
  const int request = ++request_;
  const QPointer<HomebrewPrefixSelectionViewModel> self(this);
  const QFuture<HomebrewPrefixProbeSummary> probing =
      QtConcurrent::run(backgroundThreads(), &probeChosenFolder, probe_, folder, shown);
  const HomebrewPrefixProbeSummary summary = co_await probing;
  if (!self || request != request_) {
    co_return;
  }
  if (purpose == Purpose::choose) {
    applyChoice(summary);
  } else {
    applyRecheck(summary);
  }
}

void HomebrewPrefixSelectionViewModel::applyChoice(const HomebrewPrefixProbeSummary& summary) {
  if (!summary.looksLikeHomebrewPrefix()) {
    showReport(summary, notAHomebrewPrefixText());
    return;
  }
  {
    const QScopedValueRollback changing(changingSelection_, true);
    store_.selectPrefix(summary.prefixURL);
  }
  showReport(summary, std::nullopt);
}

void HomebrewPrefixSelectionViewModel::applyRecheck(const HomebrewPrefixProbeSummary& summary) {
  showReport(summary, summary.looksLikeHomebrewPrefix()
                          ? std::nullopt
                          : std::optional(QStringLiteral(
                                "The saved prefix is no longer readable as a Homebrew prefix. "
                                "Reset it or choose the folder again.")));
}

/// The selection may change elsewhere, in the other window that shows the settings: a report on a
/// folder that is no longer selected goes with it.
void HomebrewPrefixSelectionViewModel::followSelection() {
  Q_EMIT selectionChanged();
  if (changingSelection_) {
    return;
  }
  if (hasSelection()) {
    recheck();
    return;
  }
  ++request_;
  showReport(std::nullopt, std::nullopt);
}

void HomebrewPrefixSelectionViewModel::showReport(std::optional<HomebrewPrefixProbeSummary> summary,
                                                  std::optional<QString> errorMessage) {
  probeSummary_ = std::move(summary);
  errorMessage_ = std::move(errorMessage);
  locations_.setResults(probeSummary_ ? probeSummary_->results
                                      : std::vector<HomebrewPrefixProbeResult>());
  Q_EMIT reportChanged();
}

}  // namespace quillmere
