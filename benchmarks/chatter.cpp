#include <cstdio>
#include <cstdlib>

// Prints as a long build does: line after line through the standard library's buffer, most of them
// dull, some of them headings, of uneven length. The last argument is the size in bytes.
int main(int argc, char** argv) {
  const long long size = argc > 1 ? std::atoll(argv[argc - 1]) : 0;
  long long printed = 0;
  for (int line = 0; printed < size; ++line) {
    const int step = line * 7919 % 100000;
    const int count =
        line % 500 == 0
            ? std::printf("==> Building target %d\n", step)
            : std::printf("  cc -O2 -c source/module_%d%.*s.c -o build/module_%d.o\n", step,
                          line * 31 % 60,
                          "_with_a_name_of_the_length_that_generated_sources_tend_to_have", step);
    if (count < 0) {
      return 1;
    }
    printed += count;
  }
  return 0;
}
