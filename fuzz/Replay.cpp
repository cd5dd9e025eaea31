// Stands in for libFuzzer where the compiler has none: runs a target over the files of a folder and
// over a fixed number of small changes to them, which are the same on every machine.
//   fuzz_NAME CORPUS FOUND [CHANGES]
// An input that ends the program is left in the file FOUND.

#include <algorithm>
#include <array>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::size_t longest = 4096;
constexpr int usualChanges = 5000;

/// What a signal handler has to know.
const char* found = nullptr;
const std::string* current = nullptr;

extern "C" void keepInput(int signal) {
  const int file = open(found, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  const bool isKept = write(file, current->data(), current->size()) >= 0;
  constexpr std::string_view note = "The input at fault is in the found/ folder of the build.\n";
  if (isKept && write(STDERR_FILENO, note.data(), note.size()) < 0) {
    _exit(1);
  }
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

/// Changes texts by chance, but always the same way.
class Changer {
 public:
  explicit Changer(const std::vector<std::string>& seeds) : seeds_(seeds) {}

  std::string next() {
    std::string text = anySeed();
    for (std::size_t count = 1 + below(4); count > 0; --count) {
      change(text);
    }
    text.resize(std::min(text.size(), longest));
    return text;
  }

 private:
  // Not a distribution of the library: each has one of its own.
  std::size_t below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }

  const std::string& anySeed() { return seeds_[below(seeds_.size())]; }

  char anyByte() {
    static constexpr std::string_view telling("\0\n\r\t\x1b\"\\{}[]:,;/-.@0919\x7f\x80\xe2\xff",
                                              28);
    return below(2) == 0 ? telling[below(telling.size())] : static_cast<char>(below(256));
  }

  std::string anyPieceOf(const std::string& text) {
    return text.substr(below(text.size() + 1), 1 + below(32));
  }

  void change(std::string& text) {
    const std::size_t place = below(text.size() + 1);
    switch (below(5)) {
      case 0:
        text.insert(place, 1, anyByte());
        break;
      case 1:
        text.erase(place, 1 + below(16));
        break;
      case 2:
        text.insert(place, anyPieceOf(text));
        break;
      case 3:
        text.insert(place, anyPieceOf(anySeed()));
        break;
      default:
        if (place < text.size()) {
          text[place] = anyByte();
        }
    }
  }

  const std::vector<std::string>& seeds_;
  std::mt19937 random_;
};

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> seedsIn(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    paths.push_back(entry.path());
  }
  std::ranges::sort(paths);
  std::vector<std::string> seeds;
  std::ranges::transform(paths, std::back_inserter(seeds), contentOf);
  return seeds;
}

void run(const std::string& input) {
  current = &input;
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) {
    std::fputs("Usage: fuzz_NAME CORPUS FOUND [CHANGES]\n", stderr);
    return 2;
  }
  found = arguments[2];
  for (const int signal : std::to_array({SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL})) {
    std::signal(signal, keepInput);
  }
  int changes = usualChanges;
  if (count > 3) {
    const std::string_view text(arguments[3]);
    std::from_chars(text.data(), text.data() + text.size(), changes);
  }
  const std::vector<std::string> seeds = seedsIn(arguments[1]);
  std::ranges::for_each(seeds, run);
  Changer changer(seeds);
  for (int i = 0; i < changes; ++i) {
    run(changer.next());
  }
  std::printf("%zu inputs and %d changes of them\n", seeds.size(), changes);
  return seeds.empty() ? 1 : 0;
}
