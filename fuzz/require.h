#pragma once

#include <cstdlib>

namespace quillmere {

/// Ends the program where `holds` is false, by which a fuzzer knows that it found something.
inline void require(bool holds) {
  if (!holds) {
    std::abort();
  }
}

}  // namespace quillmere
