#include "InstalledPrefix.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <map>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quillmere {
namespace {

/// As long as real ones are.
std::string receipt() {
  return R"({"homebrew_version":"6.0.18","used_options":[],"unused_options":[],)"
         R"("built_as_bottle":true,"poured_from_bottle":true,"loaded_from_api":true,)"
         R"("installed_on_request":false,"changed_files":null,"time":1795205799,)"
         R"("source_modified_time":1785542400,"compiler":"gcc-12","aliases":[],)"
         R"("runtime_dependencies":[)" +
         [] {
           std::string dependencies;
           for (int i = 0; i < 8; ++i) {
             dependencies += (i == 0 ? "" : ",") +
                             std::string(R"({"full_name":"some-library","version":"4.5.1",)"
                                         R"("revision":0,"declared_directly":false})");
           }
           return dependencies;
         }() +
         R"(],"source":{"spec":"stable","versions":{"stable":"1.0","head":null}},)"
         R"("arch":"x86_64"})";
}

/// The names in a folder, as the system lists them.
std::vector<std::string> list(const std::string& path) {
  std::vector<std::string> names;
  if (DIR* const folder = opendir(path.c_str())) {
    while (const dirent* const entry = readdir(folder)) {
      if (entry->d_name[0] != '.') {
        names.emplace_back(entry->d_name);
      }
    }
    closedir(folder);
  }
  return names;
}

bool isReadable(const std::string& path) {
  return access(path.c_str(), F_OK) == 0 && access(path.c_str(), R_OK) == 0;
}

std::vector<std::string> listIfReadable(const std::string& path) {
  return isReadable(path) ? list(path) : std::vector<std::string>();
}

void readFile(const std::string& path) {
  std::array<char, 4096> buffer = {};
  struct stat status = {};
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fstat(file, &status) == 0) {
    benchmark::DoNotOptimize(read(file, buffer.data(), buffer.size()));
  }
  close(file);
}

/// The seven locations, of which a prefix of this kind has two.
void readLocations(const std::string& prefix) {
  for (const char* location : {"/bin/brew", "/Cellar", "/Caskroom", "/var/homebrew/linked",
                               "/Library/Homebrew", "/Library/Taps", "/var/homebrew/cache"}) {
    benchmark::DoNotOptimize(listIfReadable(prefix + location));
  }
}

}  // namespace

InstalledPrefix::InstalledPrefix(int formulae) {
  makeFolder("/Cellar");
  makeFolder("/Caskroom");
  const std::string json = receipt();
  for (int i = 0; i < formulae; ++i) {
    const std::string name = "formula-" + std::to_string(i);
    const std::string keg = "/Cellar/" + name;
    makeFolder(keg);
    makeFolder(keg + "/1.2." + std::to_string(i % 30));
    makeFile(keg + "/1.2." + std::to_string(i % 30) + "/INSTALL_RECEIPT.json", json);
    catalog_.push_back({.name = SharedText(std::string_view(name))});
  }
  for (int i = 0; i < formulae / 10; ++i) {
    const std::string token = "cask-" + std::to_string(i);
    makeFolder("/Caskroom/" + token);
    makeFolder("/Caskroom/" + token + "/2." + std::to_string(i));
    makeFolder("/Caskroom/" + token + "/.metadata");
    casks_.push_back({.token = SharedText(std::string_view(token))});
  }
}

const InstalledPrefix& InstalledPrefix::ofSize(int formulae) {
  static std::map<int, std::unique_ptr<InstalledPrefix>> prefixes;
  std::unique_ptr<InstalledPrefix>& prefix = prefixes[formulae];
  if (!prefix) {
    prefix = std::make_unique<InstalledPrefix>(formulae);
  }
  return *prefix;
}

void InstalledPrefix::callTheSystemAlike() const {
  const std::string cellar = path_ + "/Cellar";
  const std::string caskroom = path_ + "/Caskroom";
  readLocations(path_);
  for (const std::string& name : list(cellar)) {
    const std::string keg = cellar + '/' + name;
    for (const std::string& version : listIfReadable(keg)) {
      readFile(keg + '/' + version + "/INSTALL_RECEIPT.json");
    }
  }
  readLocations(path_);
  for (const std::string& token : list(caskroom)) {
    benchmark::DoNotOptimize(listIfReadable(caskroom + '/' + token));
  }
}

void InstalledPrefix::makeFolder(const std::string& relativePath) const {
  mkdir((path_ + relativePath).c_str(), 0755);
}

void InstalledPrefix::makeFile(const std::string& relativePath, const std::string& content) const {
  const int file = open((path_ + relativePath).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  if (write(file, content.data(), content.size()) != static_cast<ssize_t>(content.size())) {
    std::abort();
  }
  close(file);
}

}  // namespace quillmere
