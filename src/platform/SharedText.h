#pragma once

#include <QtCore/QHashFunctions>
#include <QtCore/QSharedData>
#include <QtCore/QString>

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace quillmere {

/// A piece of UTF-8 text, sixteen bytes wide, that shares its storage with its copies and with the
/// texts made beside it. It is for tables of many thousand short texts that are kept whole and
/// shown a screenful at a time: a `QString` would cost an allocation and a header for each of them
/// and two bytes for each letter, so make one where a text is shown. The storage lives as long as
/// any text in it does. An immutable value; any thread.
class SharedText {
 public:
  SharedText() = default;
  explicit SharedText(std::string_view utf8);
  explicit SharedText(QStringView text);

  [[nodiscard]] bool isEmpty() const { return view().empty(); }

  /// Valid as long as this text or a copy of it is.
  [[nodiscard]] std::string_view view() const;
  [[nodiscard]] QString toString() const;

  friend bool operator==(const SharedText& left, const SharedText& right) {
    return left.view() == right.view();
  }

  friend bool operator==(const SharedText& left, std::string_view right) {
    return left.view() == right;
  }

  friend std::size_t qHash(const SharedText& text, std::size_t seed = 0) noexcept {
    return qHashBits(text.view().data(), text.view().size(), seed);
  }

 private:
  friend class SharedTextBuilder;

  struct Block : QSharedData {
    explicit Block(std::size_t size) : bytes(std::make_unique_for_overwrite<char[]>(size)) {}

    std::unique_ptr<char[]> bytes;
  };

  QExplicitlySharedDataPointer<Block> block_;
  std::uint32_t offset_ = 0;
  std::uint32_t size_ = 0;
};

/// Makes many texts in few allocations. Used by one thread at a time; the texts go anywhere.
class SharedTextBuilder {
 public:
  [[nodiscard]] SharedText add(std::string_view utf8);
  [[nodiscard]] SharedText add(QStringView text);
  /// The same for a text that others are likely to repeat: it is stored once.
  [[nodiscard]] SharedText intern(std::string_view utf8);
  /// One text from two pieces.
  [[nodiscard]] SharedText add(std::string_view first, std::string_view second);

 private:
  QExplicitlySharedDataPointer<SharedText::Block> block_;
  std::size_t capacity_ = 0;
  std::size_t used_ = 0;
  /// The keys are views of the texts.
  std::unordered_map<std::string_view, SharedText> once_;
};

}  // namespace quillmere
