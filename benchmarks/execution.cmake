add_executable(chatter chatter.cpp)
target_link_libraries(chatter PRIVATE quillmere_compiler)
add_library(benchmark_chatty_prefix STATIC ChattyPrefix.cpp)
target_link_libraries(benchmark_chatty_prefix
  PUBLIC quillmere_execution PRIVATE benchmark::benchmark quillmere_compiler)
target_compile_definitions(benchmark_chatty_prefix PRIVATE
  CHATTER_PROGRAM="$<TARGET_FILE:chatter>")
add_dependencies(benchmark_chatty_prefix chatter)

quillmere_benchmark(execution
  SOURCES streaming.cpp
  LARGE "/(10|100)"
  LINK quillmere_screens_run benchmark_chatty_prefix Qt6::Gui)
