#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace quillmere {

/// The pages outside the program that its screens point to, and the one way to open a page: in the
/// user's browser, when it was chosen. One per QML engine, owned by it. UI thread only.
class ExternalLinks : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QUrl privacyPolicy READ privacyPolicy CONSTANT)
  Q_PROPERTY(QUrl support READ support CONSTANT)
  Q_PROPERTY(QUrl homebrew READ homebrew CONSTANT)

 public:
  /// Hands a page to the browser; false when there is none.
  using Opener = std::function<bool(const QUrl& page)>;

  explicit ExternalLinks(QObject* parent = nullptr);
  explicit ExternalLinks(Opener opener, QObject* parent = nullptr);

  [[nodiscard]] QUrl privacyPolicy() const;
  [[nodiscard]] QUrl support() const;
  [[nodiscard]] QUrl homebrew() const;

  /// Opens a page of the web and returns whether it went to a browser; refuses any other address.
  Q_INVOKABLE bool open(const QUrl& page) const;

 private:
  Opener opener_;
};

}  // namespace quillmere
