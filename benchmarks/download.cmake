quillmere_benchmark(download
  SOURCES download.cpp
  LINK quillmere_catalog benchmark_real_catalog quillmere_test_server)
