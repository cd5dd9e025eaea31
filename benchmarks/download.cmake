quillmere_benchmark(download
  SOURCES download.cpp
  LINK quillmere_catalog quillmere_test_server quillmere_test_support)
target_compile_definitions(benchmark_download PRIVATE
  QUILLMERE_REAL_DATA="${PROJECT_SOURCE_DIR}/../shared/data")
