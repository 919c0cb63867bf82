// Runs a fuzz target once over each file that is named on the command line.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

bool Read(const char* path, std::string& bytes) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "rb"), std::fclose);
  if (file == nullptr) return false;
  bytes.clear();
  char part[4096];
  while (const std::size_t count = std::fread(part, 1, sizeof part, file.get())) bytes.append(part, count);
  return std::ferror(file.get()) == 0;
}

}  // namespace

int main(int count, char** paths) {
  if (count < 2) {
    std::fputs("no seeds to run\n", stderr);
    return 1;
  }
  std::string bytes;
  for (int i = 1; i < count; ++i) {
    if (!Read(paths[i], bytes)) {
      std::fprintf(stderr, "can't read %s\n", paths[i]);
      return 1;
    }
    // A copy of just that size, so that a step beyond its end is seen.
    const auto exact = std::make_unique<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), exact.get());
    std::printf("%s\n", paths[i]);
    LLVMFuzzerTestOneInput(exact.get(), bytes.size());
  }
  std::printf("%d seeds\n", count - 1);
  return 0;
}
