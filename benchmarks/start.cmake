# The floor: the least window that the same tools make.
add_executable(empty_window start/empty_window.cpp)
qt_add_qml_module(empty_window
  URI EmptyWindow
  VERSION 1.0
  RESOURCE_PREFIX /qt/qml
  DEPENDENCIES QtQuick
  QML_FILES start/EmptyWindow.qml)
quillmere_compiled_qml(empty_window)
target_link_libraries(empty_window PRIVATE Qt6::Quick Qt6::QuickControls2 quillmere_compiler)

# Both are started as processes of their own, as they ship. The walk needs a display for its keys.
quillmere_benchmark(start
  LARGE "memoryAfterAWalkThroughTheCatalog"
  SOURCES start/Keyboard.cpp start/StartedProgram.cpp start/start.cpp
  LINK quillmere_demo benchmark_long_history benchmark_real_catalog)
target_include_directories(benchmark_start PRIVATE "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
add_dependencies(benchmark_start quillmere empty_window)
target_compile_definitions(benchmark_start PRIVATE
  EMPTY_WINDOW="$<TARGET_FILE:empty_window>"
  QUILLMERE_PROGRAM="$<TARGET_FILE:quillmere>")
