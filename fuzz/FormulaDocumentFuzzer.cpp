#include "catalog_document.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  quillmere::check(quillmere::decodeFormulae(quillmere::bytesOf(data, size)));
  return 0;
}
