// From the start of the process to the painted window, against a program with an empty main window. Both end
// as soon as their window has been painted; what ending costs is counted on both sides.

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>

#include "basis/bestand.h"
#include "bench/vensters/meting.h"

extern char** environ;

namespace murvane::bench {
namespace {

/// Runs one of our programs in the data directory; whether it ended well.
bool Draai(const std::string& naam, const std::string& argument) {
  std::string pad = (ProgrammaMap() / naam).string();
  std::string deel = argument;
  const std::array<char*, 3> argumenten = {pad.data(), deel.empty() ? nullptr : deel.data(), nullptr};
  posix_spawn_file_actions_t acties;
  posix_spawn_file_actions_init(&acties);
  posix_spawn_file_actions_addchdir_np(&acties, MURVANE_BRON "/data");
  pid_t kind = 0;
  const int code = posix_spawn(&kind, pad.c_str(), &acties, nullptr, argumenten.data(), environ);
  posix_spawn_file_actions_destroy(&acties);
  int status = 0;
  if (code != 0 || waitpid(kind, &status, 0) != kind) return false;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void MeetStart(benchmark::State& state, const std::string& project, double grens, const std::string& wat) {
  constexpr int Keer = 41;
  const auto duur = [&](const char* naam, const std::string& argument) {
    return Duur([&] {
      if (!Draai(naam, argument)) state.SkipWithError("een programma start niet");
    });
  };
  for (auto _ : state) {
    (void)duur("murvane", project);  // its files come into the cache
    const Paar paar = InBeurten(
        Keer, [&] { return duur("murvane-kaalvenster", ""); }, [&] { return duur("murvane", project); });
    Toon(state, paar, grens, wat);
  }
}

void Start(benchmark::State& state) {
  MeetStart(state, "", 1.6, "start");
}
BENCHMARK(Start)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace murvane::bench
