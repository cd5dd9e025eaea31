#pragma once

#include <QtCore/QtGlobal>

namespace quillmere::test {

/// How often to try: `longForm` times where the tests soak, `shortForm` times with all the others.
inline int rounds(int shortForm, int longForm) {
  return qEnvironmentVariableIsSet("QUILLMERE_SOAK") ? longForm : shortForm;
}

}  // namespace quillmere::test
