quillmere_benchmark(guidance
  SOURCES guidance.cpp
  LINK quillmere_guidance)
