#include "platform/SharedText.h"

#include <QtCore/QByteArrayView>

#include <algorithm>

namespace quillmere {
namespace {

/// Large enough that its own cost does not show, small enough that a few texts which outlive the
/// others do not keep them all.
constexpr std::size_t blockSize = std::size_t{64} * 1024;

}  // namespace

SharedText::SharedText(std::string_view utf8)
    : block_(utf8.empty() ? nullptr : new Block(utf8.size())),
      size_(static_cast<std::uint32_t>(utf8.size())) {
  if (block_) {
    std::ranges::copy(utf8, block_->bytes.get());
  }
}

SharedText::SharedText(QStringView text)
    : SharedText(std::string_view(QByteArrayView(text.toUtf8()))) {
}

std::string_view SharedText::view() const {
  return block_ ? std::string_view(block_->bytes.get() + offset_, size_) : std::string_view();
}

QString SharedText::toString() const {
  return QString::fromUtf8(view());
}

SharedText SharedTextBuilder::add(std::string_view utf8) {
  return add(utf8, {});
}

SharedText SharedTextBuilder::add(QStringView text) {
  return add(std::string_view(QByteArrayView(text.toUtf8())));
}

SharedText SharedTextBuilder::intern(std::string_view utf8) {
  const auto known = once_.find(utf8);
  if (known != once_.end()) {
    return known->second;
  }
  SharedText text = add(utf8);
  once_.emplace(text.view(), text);
  return text;
}

SharedText SharedTextBuilder::add(std::string_view first, std::string_view second) {
  SharedText text;
  const std::size_t size = first.size() + second.size();
  if (size == 0) {
    return text;
  }
  if (size > capacity_ - used_) {
    capacity_ = std::max(size, blockSize);
    block_ = new SharedText::Block(capacity_);
    used_ = 0;
  }
  std::ranges::copy(second, std::ranges::copy(first, block_->bytes.get() + used_).out);
  text.block_ = block_;
  text.offset_ = static_cast<std::uint32_t>(used_);
  text.size_ = static_cast<std::uint32_t>(size);
  used_ += size;
  return text;
}

}  // namespace quillmere
