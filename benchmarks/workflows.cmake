quillmere_benchmark(workflows
  SOURCES workflows.cpp
  LARGE "/5000"
  LINK quillmere_app benchmark_real_catalog quillmere_test_server)
