#include "app/PrefixSelectionWorkflow.h"

#include <QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>
#include <QtCore/QPointer>

#include <utility>

#include "persistence/LocalPersistenceStore.h"
#include "platform/BackgroundThreads.h"
#include "prefix/HomebrewPrefixStartFolder.h"

namespace quillmere {

PrefixSelectionWorkflow::PrefixSelectionWorkflow(LocalPersistenceStore& store, Probe probe,
                                                 QObject* parent)
    : QObject(parent), store_(store), probe_(std::move(probe)) {
}

QUrl PrefixSelectionWorkflow::startFolder() const {
  return homebrewPrefixStartFolder(*platformFileSystem());
}

QString PrefixSelectionWorkflow::refusalTitle() const {
  return QStringLiteral("Select a Homebrew Prefix");
}

QString PrefixSelectionWorkflow::refusalText() const {
  return notAHomebrewPrefixText();
}

void PrefixSelectionWorkflow::requestChooser() {
  setRefused(false);
  Q_EMIT chooserRequested();
}

QCoro::Task<> PrefixSelectionWorkflow::selectPrefix(QUrl folder, QUrl shown) {
  const QPointer<PrefixSelectionWorkflow> self(this);
  const int choice = ++choice_;
  const QFuture<HomebrewPrefixProbeSummary> probing =
      QtConcurrent::run(backgroundThreads(), &probeChosenFolder, probe_, folder, shown);
  const HomebrewPrefixProbeSummary summary = co_await probing;
  if (!self || choice != choice_) {
    co_return;
  }
  setRefused(!summary.looksLikeHomebrewPrefix());
  if (summary.looksLikeHomebrewPrefix()) {
    store_.selectPrefix(summary.prefixURL);
    Q_EMIT prefixSelected();
  }
}

void PrefixSelectionWorkflow::acknowledgeRefusal() {
  setRefused(false);
}

void PrefixSelectionWorkflow::setRefused(bool refused) {
  if (std::exchange(isRefused_, refused) != refused) {
    Q_EMIT isRefusedChanged();
  }
}

}  // namespace quillmere
