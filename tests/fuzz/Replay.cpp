// Runs a fuzzer on each file of the folder that is given, so that what it once found is tested in
// every build.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (entry->is_regular_file()) {
      files.push_back(entry->path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

bool Run(const fs::path& path) {
  std::printf("%s\n", path.filename().string().c_str());
  std::fflush(stdout);
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return static_cast<bool>(file);
}

}  // namespace

int main(int argc, char** argv) {
  const auto files = argc == 2 ? FilesOf(argv[1]) : std::vector<fs::path>();
  if (files.empty()) {
    std::fprintf(stderr, "give a folder that holds files\n");
    return 1;
  }
  return std::all_of(files.begin(), files.end(), Run) ? 0 : 1;
}
