#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

#include "execution/OutputTranscript.h"

namespace quillmere {

/// The log of a session as rows, one a line. Adding rows costs by the rows added, not by those that
/// are there; a row's text is made when a view asks for it. Owned by the session's view model; UI
/// thread only.
class RawOutputListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  enum Role { TextRole = Qt::UserRole, StreamRole, MarkerRole };

  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  /// Adds complete lines, and in place of the line that was open so far the one that is open now.
  void append(std::vector<OutputLines> lines, std::optional<OutputLines> unfinishedLine);

  /// The texts of some rows, each on a line of its own.
  [[nodiscard]] QString text(int first, int last) const;

 private:
  struct Block {
    int firstRow = 0;
    OutputLines lines;
  };

  /// A row's lines and its place in them.
  [[nodiscard]] std::pair<const OutputLines*, qsizetype> find(int row) const;

  std::vector<Block> blocks_;
  int closedRows_ = 0;
  std::optional<OutputLines> openLine_;
};

}  // namespace quillmere
