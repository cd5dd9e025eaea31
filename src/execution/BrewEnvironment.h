#pragma once

#include <QtCore/QUrl>

#include <map>
#include <optional>
#include <string>

namespace quillmere {

/// Names and values as bytes: an inherited value need not be text in any encoding.
using Environment = std::map<std::string, std::string>;

/// The environment of this process. Any thread, while no other thread changes the environment.
[[nodiscard]] Environment inheritedEnvironment();

/// `inherited` with what every run of `brew` gets: a search path of the prefix's own tools and the
/// system's, and the variables that ask Homebrew for no automatic update, no questions, no
/// analytics, no hints and no colours. Files of the machine or the prefix may override these
/// variables, so that no text may promise that one is in force. Pure; any thread.
[[nodiscard]] Environment brewEnvironment(Environment inherited,
                                          const std::optional<QUrl>& prefixURL);

}  // namespace quillmere
