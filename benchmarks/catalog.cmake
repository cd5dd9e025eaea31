add_library(benchmark_real_catalog STATIC RealCatalog.cpp)
target_link_libraries(benchmark_real_catalog
  PUBLIC quillmere_platform quillmere_test_support
  PRIVATE simdjson::simdjson benchmark::benchmark quillmere_compiler)
target_compile_definitions(benchmark_real_catalog PRIVATE
  QUILLMERE_REAL_DATA="${PROJECT_SOURCE_DIR}/../shared/data")

quillmere_benchmark(catalog
  SOURCES catalog.cpp
  LARGE "/(3|10)"
  LINK quillmere_catalog benchmark_real_catalog)
