#pragma once

#include <QtCore/QByteArray>

#include <memory>
#include <optional>

namespace quillmere {

/// What is of use here of the "INSTALL_RECEIPT.json" that Homebrew leaves in every version folder.
struct HomebrewInstallReceipt {
  /// Absent in receipts of old versions of Homebrew, and where it was not known.
  std::optional<bool> installedOnRequest;

  bool operator==(const HomebrewInstallReceipt&) const = default;
};

/// Reads one receipt after another and keeps its working memory in between. For one thread at a
/// time.
class HomebrewInstallReceiptReader {
 public:
  HomebrewInstallReceiptReader();
  ~HomebrewInstallReceiptReader();
  HomebrewInstallReceiptReader(const HomebrewInstallReceiptReader&) = delete;
  HomebrewInstallReceiptReader& operator=(const HomebrewInstallReceiptReader&) = delete;

  /// Absent when `json` is no receipt: not a JSON object in UTF-8, or one whose
  /// "installed_on_request" is neither a truth value nor null. Other keys may hold anything that
  /// fits a JSON reader: no number beyond 64 bits, nothing a thousand levels deep. Text with
  /// `parserPadding` of capacity behind it is read where it stands.
  [[nodiscard]] std::optional<HomebrewInstallReceipt> read(const QByteArray& json);

 private:
  class Parser;
  std::unique_ptr<Parser> parser_;
};

}  // namespace quillmere
