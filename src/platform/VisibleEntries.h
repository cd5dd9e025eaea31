#pragma once

#include <QtCore/QString>

#include <dirent.h>
#include <memory>
#include <system_error>

namespace quillmere {

/// The entries of a folder of this machine, one after another in the order of the disk, without
/// those whose name begins with a full stop. For one thread; blocks on the disk.
class VisibleEntries {
 public:
  enum class Links { followed, refused };

  /// Opens the folder at `path`; a path that ends in a link is refused where that is asked for.
  explicit VisibleEntries(const QString& path, Links links = Links::followed);

  /// The next entry, valid until the one after it; null at the end and after an error.
  [[nodiscard]] const dirent* next();

  /// Why the folder could not be opened or read to its end.
  [[nodiscard]] std::error_code error() const { return error_; }

  /// The folder, for looking at its entries.
  [[nodiscard]] int descriptor() const { return dirfd(folder_.get()); }

 private:
  struct Closer {
    void operator()(DIR* folder) const { closedir(folder); }
  };

  std::unique_ptr<DIR, Closer> folder_;
  std::error_code error_;
};

}  // namespace quillmere
