quillmere_benchmark(window
  SOURCES
    window/BenchmarkHome.cpp
    window/SeenWindow.cpp
    window/browse.cpp
    window/history.cpp
    window/installed.cpp
    window/main.cpp
    window/run.cpp
  LARGE "/(10|100|5000)"
  LINK quillmere_app benchmark_real_catalog benchmark_chatty_prefix
    benchmark_installed_prefix benchmark_long_history quillmere_test_server Qt6::Test)
target_include_directories(benchmark_window PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
