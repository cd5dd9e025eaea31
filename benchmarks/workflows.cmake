quillmere_benchmark(workflows
  SOURCES workflows.cpp
  LINK quillmere_app benchmark_real_catalog quillmere_test_server)
