add_library(benchmark_installed_prefix STATIC InstalledPrefix.cpp)
target_link_libraries(benchmark_installed_prefix
  PUBLIC quillmere_inventory PRIVATE benchmark::benchmark quillmere_compiler)

quillmere_benchmark(inventory
  SOURCES inventory.cpp
  LARGE "/(5000|50000)"
  LINK quillmere_inventory benchmark_installed_prefix)
