#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <array>

#include "execution/DirectCommandOutputPresentation.h"

namespace quillmere {

/// The four steps of a run. Owned by the session's view model; UI thread only.
class ProgressStepListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  using Steps = std::array<DirectExecutionProgressStep, 4>;

  enum Role { TitleRole = Qt::UserRole, StateRole, TintRole };

  explicit ProgressStepListModel(Steps steps, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// `cancelled`: whether the run was, whose complete steps are no success.
  void setSteps(Steps steps, bool cancelled = false);

 private:
  Steps steps_;
  bool cancelled_ = false;
};

}  // namespace quillmere
