#pragma once

#include <QtCore/QString>

#include <functional>

class QWindow;

namespace quillmere {

class ContentViewModel;

namespace test {

/// In `window`, which is active, brings the screens that list packages into each of their states,
/// and has each drawn under a name. The catalog is that of `data`, a folder with formula.json and
/// cask.json, or a generated one if it is empty.
void drawPackageScreens(QWindow& window, ContentViewModel& content, const QString& data,
                        const std::function<void(const QString& what)>& draw);

}  // namespace test
}  // namespace quillmere
