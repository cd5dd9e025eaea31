#include "demo/tour/Stage.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtQuick/QQuickItem>
#include <QtTest/QTest>

#include <algorithm>

#include "execution/DirectCommandRunner.h"
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

Stage::Stage(Album& album, Visitor visitor, QSize size) : album_(album) {
  home_.folder = folder_.path();
  if (const auto written = home_.write(visitor); !written) {
    throw TourError(written.error());
  }
  // Where the folder chooser begins.
  qputenv("HOME", QFile::encodeName(home_.folder));
  disk_->released.release();
  const auto settings = [this] {
    return std::make_unique<QSettings>(home_.settingsFile(), QSettings::NativeFormat);
  };
  store_ = std::make_unique<LocalPersistenceStore>(settings(), fileUrl(home_.catalogFolder()));
  memory_ = std::make_unique<WindowMemory>(settings());
  content_ = std::make_unique<ContentViewModel>(
      *store_, AppCapabilities::all(), std::make_shared<DirectCommandRunner>(),
      CatalogWorkflows::Clients{.formulae = {.apiURL = nowhere(), .session = &session_},
                                .casks = {.apiURL = nowhere(), .session = &session_}},
      BrewExecutableResolver(disk_));
  engine_.addImportPath(u"qrc:/qt/qml"_s);
  engine_.setInitialProperties({{u"content"_s, QVariant::fromValue(content_.get())},
                                {u"memory"_s, QVariant::fromValue(memory_.get())}});
  engine_.load(QUrl(u"qrc:/qt/qml/Quillmere/App/MainWindow.qml"_s));
  if (engine_.rootObjects().isEmpty()) {
    throw TourError(u"The window does not open"_s);
  }
  window()->resize(size);
}

Stage::~Stage() = default;

QUrl Stage::prefix() const {
  return fileUrl(home_.prefix());
}

QQuickWindow* Stage::window() const {
  return qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
}

void Stage::setPace(int percent) const {
  writeFile(home_.prefix() + u"/var/pace"_s, QByteArray::number(percent) + '\n');
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

void Stage::picture(const QString& name) {
  album_.take(*window(), name);
}

void Stage::picture(QQuickWindow& window, const QString& name) {
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
  FormulaCatalogViewModel& browse = *content_->browse();
  browse.loadCachedAll();
  waitFor(nextPicture, [&] { return browse.state() == FormulaCatalogViewModel::Listed; });
}

void Stage::scan(const QString& nextPicture) {
  content_->installed()->scanWanted();
  waitFor(nextPicture, [this] {
    return content_->inventory().state().packages() != nullptr &&
           !content_->inventory().scanProgress();
  });
}

void Stage::show(AppSection section) {
  content_->details()->clear();
  content_->select(section);
}

void Stage::openPreview(const BrewCommand& command, const QString& screen) {
  content_->openPreview(command, screen);
}

void Stage::run(const QString& nextPicture) {
  content_->preview()->run();
  if (content_->preview()->confirmationPending()) {
    content_->preview()->confirmRun();
  }
  waitFor(nextPicture, [this] { return content_->preview()->session() != nullptr; });
}

void Stage::waitForEndOfRun(const QString& nextPicture) const {
  waitFor(nextPicture, [this] {
    return content_->preview()->session() != nullptr && !content_->preview()->isRunning();
  });
}

}  // namespace quillmere::demo
