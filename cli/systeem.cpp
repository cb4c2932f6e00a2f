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

#include <csignal>
#endif

#include <ctime>

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
  _setmode(_fileno(stdout), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

bool FoutuitvoerIsTerminal() {
  return _isatty(_fileno(stderr)) != 0;
}

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

bool FoutuitvoerIsTerminal() {
  return ::isatty(STDERR_FILENO) == 1;
}

#endif

}  // namespace murvane
