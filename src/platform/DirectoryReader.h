#pragma once

#include <QtCore/QString>

#include <dirent.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <system_error>

namespace quillmere {

/// The entries of a folder of this machine, one after another in the order of the disk, without
/// those whose name begins with a full stop. For one thread; blocks on the disk.
class DirectoryReader {
 public:
  enum class LinkPolicy { follow, refuse };

  /// Opens the folder at `path`; a path that ends in a link is refused where that is asked for.
  explicit DirectoryReader(const QString& path, LinkPolicy links = LinkPolicy::follow);

  /// The next entry, valid until the one after it; null at the end and after an error.
  [[nodiscard]] const dirent* next();

  /// Why the folder could not be opened or read to its end.
  [[nodiscard]] std::error_code error() const { return error_; }

  /// What an entry of this folder is, a link itself and not what it leads to; absent when that
  /// cannot be told. Opens nothing.
  [[nodiscard]] std::optional<struct stat> status(const dirent& entry) const;

 private:
  struct Closer {
    void operator()(DIR* folder) const { closedir(folder); }
  };

  std::unique_ptr<DIR, Closer> folder_;
  std::error_code error_;
};

}  // namespace quillmere
