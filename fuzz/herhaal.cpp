// Replays the files of the directories named on the command line through one fuzz target.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "fuzz/bestook.h"

int main(int argc, char** argv) {
  int aantal = 0;
  for (int i = 1; i < argc; ++i) {
    if (!std::filesystem::is_directory(argv[i])) continue;
    for (const auto& ingang : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream bestand(ingang.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(bestand), {}};
      std::cout << ingang.path().string() << std::endl;
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++aantal;
    }
  }
  std::cout << aantal << " keer herhaald\n";
  return aantal > 0 ? 0 : 1;
}
