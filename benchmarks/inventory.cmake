quillmere_benchmark(inventory
  SOURCES inventory.cpp
  LARGE "/(5000|50000)"
  LINK quillmere_inventory)
