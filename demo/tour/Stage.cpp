#include "demo/tour/Stage.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtQuick/QQuickItem>
#include <QtTest/QTest>

#include <algorithm>

#include "platform/FileUrl.h"

namespace quillmere::demo {
namespace {

using namespace Qt::StringLiterals;

constexpr int patienceMilliseconds = 60'000;

/// A port of this machine at which nobody answers.
QUrl nowhere() {
  return QUrl(u"https://127.0.0.1:1/catalog.json"_s);
}

void writeFile(const QString& path, const QByteArray& content) {
  QFile file(path);
  if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
    throw TourError(u"Cannot write "_s + path);
  }
}

bool focusButton(const QString& text, QQuickItem* from) {
  if (from->isVisible() && from->inherits("QQuickAbstractButton") &&
      from->property("text").toString() == text) {
    from->forceActiveFocus(Qt::TabFocusReason);
    return true;
  }
  const auto children = from->childItems();
  return std::ranges::any_of(children,
                             [&text](QQuickItem* const child) { return focusButton(text, child); });
}

/// The item under `from` that hides the most of its content.
QQuickItem* longestPage(QQuickItem* from) {
  const auto hidden = [](const QQuickItem* item) {
    return item->property("contentHeight").toReal() - item->height();
  };
  QQuickItem* longest = nullptr;
  if (!from->isVisible()) {
    return nullptr;
  }
  if (from->inherits("QQuickFlickable") && from->property("interactive").toBool()) {
    longest = from;
  }
  const auto children = from->childItems();
  for (QQuickItem* const child : children) {
    QQuickItem* const page = longestPage(child);
    if (page != nullptr && (longest == nullptr || hidden(page) > hidden(longest))) {
      longest = page;
    }
  }
  return longest;
}

}  // namespace

Stage::Stage(Album& album, DemoUser visitor, QSize size) : album_(album) {
  home_.folder = folder_.path();
  if (const auto written = home_.write(visitor); !written) {
    throw TourError(written.error());
  }
  // Where the folder chooser begins.
  qputenv("HOME", QFile::encodeName(home_.folder));
  disk_->released.release();
  app_ = std::make_unique<QuillmereApp>(
      AppEnvironment{.settings =
                         [file = home_.settingsFile()] {
                           return std::make_unique<QSettings>(file, QSettings::NativeFormat);
                         },
                     .cacheDirectoryURL = fileUrl(home_.catalogFolder()),
                     .formulaeURL = nowhere(),
                     .casksURL = nowhere(),
                     .resolver = BrewExecutableResolver(disk_)});
  if (!app_->open()) {
    throw TourError(u"The window does not open"_s);
  }
  window()->resize(size);
}

Stage::~Stage() = default;

QUrl Stage::prefix() const {
  return fileUrl(home_.prefix());
}

void Stage::setBrew(const QByteArray& script) const {
  writeFile(home_.prefix() + u"/bin/brew"_s, script);
}

void Stage::addFile(const QString& relativePath) const {
  writeFile(home_.prefix() + u'/' + relativePath, QByteArray());
}

void Stage::putCatalogAside(bool aside) const {
  const QString usual = QDir::cleanPath(home_.catalogFolder());
  const QString away = usual + u".aside"_s;
  if (!QDir().rename(aside ? usual : away, aside ? away : usual)) {
    throw TourError(u"The catalog cannot be moved: "_s + usual);
  }
}

void Stage::takePicture(const QString& name) {
  album_.take(*window(), name);
}

void Stage::takePicture(QQuickWindow& window, const QString& name) {
  album_.take(window, name);
}

void Stage::waitFor(const QString& nextPicture, const std::function<bool()>& isSo) const {
  if (!QTest::qWaitFor(isSo, patienceMilliseconds)) {
    throw TourError(u"The picture %1 cannot be taken: what it shows does not come"_s.arg(
        album_.nextName(nextPicture)));
  }
}

void Stage::activate() const {
  window()->requestActivate();
  waitFor(u"of the active window"_s, [this] { return window()->isActive(); });
}

void Stage::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  activate();
  QTest::keyClick(window(), key, modifiers);
}

void Stage::focusOn(const QString& buttonText) const {
  activate();
  if (!focusButton(buttonText, window()->contentItem())) {
    throw TourError(u"There is no button "_s + buttonText);
  }
}

void Stage::scrollToEnd() const {
  QQuickItem* const page = longestPage(window()->contentItem());
  if (page == nullptr) {
    throw TourError(u"There is nothing to scroll"_s);
  }
  const qreal begin = page->property("originY").toReal();
  const qreal hidden = page->property("contentHeight").toReal() - page->height();
  page->setProperty("contentY", begin + std::max(hidden, 0.0));
}

void Stage::scrollToBeginning() const {
  QQuickItem* const page = longestPage(window()->contentItem());
  if (page != nullptr) {
    page->setProperty("contentY", page->property("originY"));
  }
}

void Stage::loadCatalog(const QString& nextPicture) {
  FormulaCatalogViewModel& browse = *content().browse();
  browse.loadCachedAll();
  waitFor(nextPicture, [&] { return browse.state() == FormulaCatalogViewModel::Listed; });
}

void Stage::scan(const QString& nextPicture) {
  content().installed()->scanRequested();
  waitFor(nextPicture, [this] {
    return content().inventory().state().packages() != nullptr &&
           !content().inventory().scanProgress();
  });
}

void Stage::show(AppSection section) {
  content().details()->clear();
  content().select(section);
}

void Stage::openPreview(const BrewCommand& command, const QString& screen) {
  content().commands()->openPreview(command, screen);
}

void Stage::run(const QString& nextPicture) {
  content().commands()->preview()->run();
  if (content().commands()->preview()->confirmationPending()) {
    content().commands()->preview()->confirmRun();
  }
  waitFor(nextPicture, [this] { return content().commands()->session() != nullptr; });
}

void Stage::waitForEndOfRun(const QString& nextPicture) {
  waitFor(nextPicture, [this] {
    return content().commands()->session() != nullptr &&
           !content().commands()->preview()->isRunning();
  });
}

}  // namespace quillmere::demo
