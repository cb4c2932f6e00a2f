#include "tests/hulp/bestanden.h"

#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace murvane::proef {

namespace fs = std::filesystem;

namespace {

void Eis(bool goed, const char* wat) {
  if (!goed) throw std::runtime_error(wat);
}

}  // namespace

TijdelijkeMap::TijdelijkeMap() {
  std::string naam = (fs::temp_directory_path() / "murvane proef één µ XXXXXX").string();
  Eis(::mkdtemp(naam.data()) != nullptr, "mkdtemp");
  pad_ = naam;
  fs::permissions(pad_, fs::perms::all);
}

TijdelijkeMap::~TijdelijkeMap() {
  std::error_code geen;
  fs::remove_all(pad_, geen);
}

std::vector<std::string> TijdelijkeMap::Namen() const {
  std::vector<std::string> namen;
  for (const auto& ingang : fs::directory_iterator(pad_)) namen.push_back(ingang.path().filename().string());
  std::sort(namen.begin(), namen.end());
  return namen;
}

void Schrijf(const fs::path& pad, std::string_view bytes) {
  std::ofstream uit(pad, std::ios::binary | std::ios::trunc);
  uit.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  Eis(bool{uit.flush()}, "schrijven");
}

std::string Lees(const fs::path& pad) {
  std::ifstream in(pad, std::ios::binary);
  Eis(in.is_open(), "openen");
  return {std::istreambuf_iterator<char>(in), {}};
}

Schijfgrens::Schijfgrens(std::size_t bytes) : oudSignaal_(std::signal(SIGXFSZ, SIG_IGN)) {
  rlimit grens{};
  Eis(::getrlimit(RLIMIT_FSIZE, &grens) == 0, "getrlimit");
  oud_ = grens.rlim_cur;
  grens.rlim_cur = bytes;
  Eis(::setrlimit(RLIMIT_FSIZE, &grens) == 0, "setrlimit");
}

Schijfgrens::~Schijfgrens() {
  rlimit grens{};
  ::getrlimit(RLIMIT_FSIZE, &grens);
  grens.rlim_cur = oud_;
  ::setrlimit(RLIMIT_FSIZE, &grens);
  std::signal(SIGXFSZ, oudSignaal_);
}

int AlsGewoneGebruiker(const std::function<int()>& roep) {
  const pid_t kind = ::fork();
  Eis(kind >= 0, "fork");
  if (kind == 0) {
    constexpr id_t Niemand = 65534;
    const bool gewoon = ::geteuid() != 0 ||
                        (::setgroups(0, nullptr) == 0 && ::setgid(Niemand) == 0 && ::setuid(Niemand) == 0);
    ::_exit(gewoon ? roep() : 255);
  }
  int status = 0;
  Eis(::waitpid(kind, &status, 0) == kind, "waitpid");
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace murvane::proef
