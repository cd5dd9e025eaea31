quillmere_benchmark(catalog
  SOURCES catalog.cpp
  LINK quillmere_catalog quillmere_test_support simdjson::simdjson)
target_compile_definitions(benchmark_catalog PRIVATE
  QUILLMERE_REAL_DATA="${PROJECT_SOURCE_DIR}/../shared/data")
