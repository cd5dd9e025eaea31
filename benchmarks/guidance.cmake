quillmere_benchmark(guidance
  SOURCES guidance.cpp
  LARGE "/50000"
  LINK quillmere_guidance)
