quillmere_benchmark(commands SOURCES commands.cpp LINK quillmere_commands)
