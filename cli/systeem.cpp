#include "cli/systeem.h"

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>

#include "basis/bestand.h"
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

#include <algorithm>
#include <ctime>
#include <iostream>

#include "basis/fout.h"

namespace murvane {

namespace {

std::tm Kalender(std::time_t tijd) {
  std::tm uit{};
#ifdef _WIN32
  localtime_s(&uit, &tijd);
#else
  ::localtime_r(&tijd, &uit);
#endif
  return uit;
}

}  // namespace

std::chrono::year_month_day Vandaag() {
  const std::tm nu = Kalender(std::time(nullptr));
  return {std::chrono::year(nu.tm_year + 1900), std::chrono::month(static_cast<unsigned>(nu.tm_mon + 1)),
          std::chrono::day(static_cast<unsigned>(nu.tm_mday))};
}

#ifdef _WIN32

std::vector<std::string> Argumenten(int, char**) {
  int aantal = 0;
  wchar_t** woorden = CommandLineToArgvW(GetCommandLineW(), &aantal);
  std::vector<std::string> uit;
  for (int i = 1; i < aantal; ++i) uit.push_back(PadTekst(woorden[i]));
  LocalFree(woorden);
  return uit;
}

void BereidUitvoerVoor() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

namespace {

constexpr int Invoernummer = 0;
constexpr int Uitvoernummer = 1;
constexpr int Foutnummer = 2;

bool IsTerminal(int nummer) {
  return _isatty(nummer) != 0;
}

int Lees(char* naar, std::size_t n) {
  return _read(Invoernummer, naar, static_cast<unsigned>(n));
}

}  // namespace

#else

std::vector<std::string> Argumenten(int argc, char** argv) {
  // A caller may leave out even the program's name.
  return argc < 1 ? std::vector<std::string>() : std::vector<std::string>(argv + 1, argv + argc);
}

void BereidUitvoerVoor() {
  // open() gives the lowest free number, which is the closed one; writing to it has to go on failing for
  // results.
  for (const int nummer : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(nummer, F_GETFD) == -1)
      (void)::open("/dev/null", nummer == STDERR_FILENO ? O_WRONLY : O_RDONLY);
  // A file that may not grow any further is a full disk, with a message, and not the end of the program.
  (void)std::signal(SIGXFSZ, SIG_IGN);
}

namespace {

constexpr int Uitvoernummer = STDOUT_FILENO;
constexpr int Foutnummer = STDERR_FILENO;

bool IsTerminal(int nummer) {
  return ::isatty(nummer) == 1;
}

ssize_t Lees(char* naar, std::size_t n) {
  for (;;) {
    const ssize_t gelezen = ::read(STDIN_FILENO, naar, n);
    if (gelezen >= 0 || errno != EINTR) return gelezen;
  }
}

}  // namespace

#endif

namespace {

std::string LeesInvoer(std::size_t hoogstens) {
  constexpr std::size_t Brok = std::size_t{1} << 16;
  std::string uit;
  while (uit.size() < hoogstens) {
    const std::size_t had = uit.size();
    uit.resize(had + std::min(Brok, hoogstens - had));
    const auto n = Lees(uit.data() + had, uit.size() - had);
    if (n < 0) throw Fout(FoutNummer::PadToegang).MetBestand("standaardinvoer");
    uit.resize(had + static_cast<std::size_t>(n));
    if (n == 0) break;
  }
  return uit;
}

}  // namespace

Kanalen Systeemkanalen() {
  return {std::cout, std::cerr, IsTerminal(Foutnummer), IsTerminal(Uitvoernummer), LeesInvoer};
}

}  // namespace murvane
