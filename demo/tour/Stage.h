#pragma once

#include <QtCore/QTemporaryDir>

#include <functional>
#include <memory>

#include "app/QuillmereApp.h"
#include "demo/DemoHome.h"
#include "demo/tour/Album.h"
#include "support/BlockingFileSystem.h"

namespace quillmere::demo {

/// The real window over a demo home of its own, without a network, and the hands that use it.
class Stage {
 public:
  Stage(Album& album, DemoUser visitor, QSize size);
  ~Stage();
  Q_DISABLE_COPY_MOVE(Stage)

  [[nodiscard]] ContentViewModel& content() { return app_->content(); }

  [[nodiscard]] LocalPersistenceStore& store() { return app_->store(); }

  [[nodiscard]] const DemoHome& home() const { return home_; }

  [[nodiscard]] QUrl prefix() const;

  [[nodiscard]] QQuickWindow* window() const { return app_->window(); }

  /// Replaces the home's `brew`.
  void setBrew(const QByteArray& script) const;

  /// An empty file in the home's prefix.
  void addFile(const QString& relativePath) const;

  void takePicture(const QString& name);
  void takePicture(QQuickWindow& window, const QString& name);

  /// Takes the catalog's cached documents away, or puts them back.
  void putCatalogAside(bool aside) const;

  /// Waits until something is so. Where it never is, the tour ends and says before which picture.
  void waitFor(const QString& nextPicture, const std::function<bool()>& isSo) const;

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

  /// Gives the keyboard to the button with this text, which brings it into view.
  void focusOn(const QString& buttonText) const;

  /// Scrolls the longest list or page that is in view to its end, and to its beginning.
  void scrollToEnd() const;
  void scrollToBeginning() const;

  /// Reads the catalog's cached documents, and the prefix.
  void loadCatalog(const QString& nextPicture);
  void scan(const QString& nextPicture);

  /// Shows a section as it is when one comes to it for the first time.
  void show(AppSection section);

  void openPreview(const BrewCommand& command, const QString& screen);
  /// Runs what the open preview shows, and confirms it where that is asked for.
  void run(const QString& nextPicture);
  void waitForEndOfRun(const QString& nextPicture);

  /// Lets the program find the way to `brew`, or keeps it looking.
  void holdDisk() const { disk_->released.acquire(); }

  void releaseDisk() const { disk_->released.release(); }

 private:
  void activate() const;

  Album& album_;
  QTemporaryDir folder_{QDir::tempPath() + QStringLiteral("/demo-XXXXXX")};
  DemoHome home_;
  std::shared_ptr<test::BlockingFileSystem> disk_ = std::make_shared<test::BlockingFileSystem>();
  std::unique_ptr<QuillmereApp> app_;
};

}  // namespace quillmere::demo
