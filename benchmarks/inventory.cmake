quillmere_benchmark(inventory
  SOURCES inventory.cpp
  LINK quillmere_inventory)
