quillmere_benchmark(execution
  SOURCES streaming.cpp
  LARGE "/(10|100)"
  LINK quillmere_screens Qt6::Gui)
add_executable(chatter chatter.cpp)
target_link_libraries(chatter PRIVATE quillmere_compiler)
add_dependencies(benchmark_execution chatter)
target_compile_definitions(benchmark_execution PRIVATE CHATTER_PROGRAM="$<TARGET_FILE:chatter>")
