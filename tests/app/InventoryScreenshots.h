#pragma once

#include <QtCore/QString>

#include <functional>

#include "support/DemoPrefix.h"

namespace quillmere {

class ContentViewModel;

namespace test {

/// Brings Updates, Cleanup and the page of a package into each of their states, and has each drawn
/// under a name. Fills the download cache of `prefix`.
void drawInventoryScreens(ContentViewModel& content, DemoPrefix& prefix,
                          const std::function<void(Qt::Key, Qt::KeyboardModifiers)>& pressKey,
                          const std::function<void(const QString& what)>& draw);

}  // namespace test
}  // namespace quillmere
