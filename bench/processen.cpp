// Whole processes: what starting murvane-cli costs beside an empty process, and how much memory a batch
// takes. Linux only; elsewhere there is nothing to measure here.

#ifdef __linux__

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "basis/bestand.h"
#include "bench/keten.h"
#include "project/projectfile.h"
#include "shell/settings.h"

extern char** environ;

namespace murvane {
namespace {

namespace fs = std::filesystem;

/// A directory that is removed at the end of its benchmark.
class WerkMap {
 public:
  WerkMap() {
    std::string naam = (fs::temp_directory_path() / "murvane meting XXXXXX").string();
    pad_ = ::mkdtemp(naam.data());
    SchrijfInstellingen({}, pad_ / "murvane.set");
  }
  WerkMap(const WerkMap&) = delete;
  WerkMap& operator=(const WerkMap&) = delete;
  ~WerkMap() {
    std::error_code geen;
    fs::remove_all(pad_, geen);
  }
  [[nodiscard]] const fs::path& Pad() const { return pad_; }

 private:
  fs::path pad_;
};

/// Runs a program with its output thrown away; its largest memory in KiB, or -1 when it failed.
long Draai(const std::vector<std::string>& opdracht) {
  std::vector<char*> argumenten;
  for (const auto& deel : opdracht) argumenten.push_back(const_cast<char*>(deel.c_str()));
  argumenten.push_back(nullptr);
  posix_spawn_file_actions_t acties;
  posix_spawn_file_actions_init(&acties);
  posix_spawn_file_actions_addopen(&acties, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t kind = 0;
  const int code = posix_spawn(&kind, argumenten[0], &acties, nullptr, argumenten.data(), environ);
  posix_spawn_file_actions_destroy(&acties);
  if (code != 0) return -1;
  int status = 0;
  rusage verbruik{};
  wait4(kind, &status, 0, &verbruik);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? verbruik.ru_maxrss : -1;
}

void LeegProces(benchmark::State& state) {
  for (auto _ : state) {
    if (Draai({"/bin/true"}) < 0) state.SkipWithError("/bin/true start niet");
  }
}
BENCHMARK(LeegProces)->UseRealTime()->Unit(benchmark::kMillisecond);

void RekenProces(benchmark::State& state) {
  const WerkMap map;
  const fs::path project = map.Pad() / "keten.mrv";
  SchrijfProject(GemengdeKeten(12), project);
  const std::string cli = (ProgrammaMap() / "murvane-cli").string();
  for (auto _ : state) {
    if (Draai({cli, "reken", "--data", map.Pad().string(), project.string()}) < 0)
      state.SkipWithError("murvane-cli reken mislukt");
  }
}
BENCHMARK(RekenProces)->UseRealTime()->Unit(benchmark::kMillisecond);

/// Memory of a batch by its number of projects; the counter is the whole measurement.
void ReeksGeheugen(benchmark::State& state) {
  const WerkMap map;
  const std::string bytes = ProjectBytes(GemengdeKeten(99));
  std::vector<std::string> opdracht = {(ProgrammaMap() / "murvane-cli").string(),
                                       "reken",
                                       "--data",
                                       map.Pad().string(),
                                       "--uit",
                                       (map.Pad() / "uit").string()};
  for (int k = 0; k < state.range(0); ++k) {
    const fs::path pad = map.Pad() / ("keten" + std::to_string(k) + ".mrv");
    VervangBestand(pad, bytes);
    opdracht.push_back(pad.string());
  }
  long geheugen = 0;
  for (auto _ : state) {
    geheugen = Draai(opdracht);
    if (geheugen < 0) state.SkipWithError("murvane-cli reken --uit mislukt");
  }
  state.counters["KiB"] = static_cast<double>(geheugen);
}
BENCHMARK(ReeksGeheugen)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace murvane

#endif
