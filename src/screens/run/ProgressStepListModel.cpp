#include "screens/run/ProgressStepListModel.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quillmere {
namespace {

QLatin1StringView stateName(DirectExecutionProgressStep::State state) {
  switch (state) {
    case DirectExecutionProgressStep::State::complete:
      return "complete"_L1;
    case DirectExecutionProgressStep::State::active:
      return "active"_L1;
    case DirectExecutionProgressStep::State::pending:
      return "pending"_L1;
    case DirectExecutionProgressStep::State::failed:
      return "failed"_L1;
  }
  return {};
}

QLatin1StringView tintName(DirectExecutionProgressStep::State state) {
  switch (state) {
    case DirectExecutionProgressStep::State::complete:
      return "green"_L1;
    case DirectExecutionProgressStep::State::active:
      return "blue"_L1;
    case DirectExecutionProgressStep::State::pending:
      return "neutral"_L1;
    case DirectExecutionProgressStep::State::failed:
      return "red"_L1;
  }
  return {};
}

}  // namespace

ProgressStepListModel::ProgressStepListModel(Steps steps, QObject* parent)
    : QAbstractListModel(parent), steps_(std::move(steps)) {
}

int ProgressStepListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(steps_.size());
}

QVariant ProgressStepListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const auto& step = steps_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
      return step.title;
    case StateRole:
      return QString(stateName(step.state));
    case TintRole:
      return cancelled_ ? u"neutral"_s : QString(tintName(step.state));
    default:
      return {};
  }
}

QHash<int, QByteArray> ProgressStepListModel::roleNames() const {
  return {{TitleRole, "title"}, {StateRole, "stepState"}, {TintRole, "tint"}};
}

void ProgressStepListModel::setSteps(Steps steps, bool cancelled) {
  if (steps == steps_ && cancelled == cancelled_) {
    return;
  }
  cancelled_ = cancelled;
  steps_ = std::move(steps);
  Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

}  // namespace quillmere
