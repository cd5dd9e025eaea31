#pragma once

#include <QtCore/QtGlobal>

#include <functional>

namespace quillmere {

/// Hears how far a scan has come: first that none of `total` packages is scanned, then again after
/// each of them. Called on the thread that scans, so let it hand the numbers over and return.
using ScanProgress = std::function<void(qsizetype scanned, qsizetype total)>;

}  // namespace quillmere
