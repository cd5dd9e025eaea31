# Warnings and hardening that every target of ours is built with.
add_library(quillmere_compiler INTERFACE)

# A record may be made from the fields that matter, by name; the others have their defaults.
target_compile_options(quillmere_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
  -Wimplicit-fallthrough -Wno-missing-field-initializers
  -fstack-protector-strong)
# g++ 12 sees overlapping copies in the standard library's own strings.
target_compile_options(quillmere_compiler INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(QUILLMERE_WARNINGS_AS_ERRORS)
  target_compile_options(quillmere_compiler INTERFACE -Werror)
endif()

target_compile_definitions(quillmere_compiler INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_NO_FOREACH
  QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400
  # What a later Qt gave up has no replacement in the oldest that we build with.
  QT_WARN_DEPRECATED_UP_TO=0x060400
  $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(QUILLMERE_SANITIZE)
  target_compile_options(quillmere_compiler INTERFACE
    -fsanitize=${QUILLMERE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quillmere_compiler INTERFACE -fsanitize=${QUILLMERE_SANITIZE})
else()
  target_compile_options(quillmere_compiler INTERFACE
    $<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
endif()
target_link_options(quillmere_compiler INTERFACE -Wl,-z,relro,-z,now)

if(QUILLMERE_SANITIZE STREQUAL "thread")
  add_library(quillmere_tsan STATIC "${PROJECT_SOURCE_DIR}/tests/tsan/ThreadPoolHandOver.cpp")
  target_compile_options(quillmere_tsan PRIVATE -fsanitize=thread)
  target_link_libraries(quillmere_tsan PRIVATE Qt6::Core)
  target_link_libraries(quillmere_compiler INTERFACE quillmere_tsan)
  target_link_options(quillmere_compiler INTERFACE
    -Wl,--wrap=_ZN11QThreadPool5startEP9QRunnablei)
endif()
