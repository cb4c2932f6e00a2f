#include "tests/hulp/proces.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <stdexcept>
#include <system_error>
#include <thread>

#include "tests/hulp/paden.h"

namespace murvane::proef {

namespace fs = std::filesystem;

Proces::Proces(std::string_view programma, std::vector<std::string> argumenten, const fs::path& fouten) {
  pad_ = fs::canonical(Programma(programma));
  std::string pad = pad_.string();
  std::string bestand = fouten.string();
  std::vector<char*> woorden{pad.data()};
  for (std::string& argument : argumenten) woorden.push_back(argument.data());
  woorden.push_back(nullptr);
  pid_ = ::fork();
  if (pid_ < 0) throw std::runtime_error("fork");
  if (pid_ != 0) return;
  ::dup2(::open(bestand.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
  ::execv(woorden[0], woorden.data());
  ::_exit(127);
}

Proces::~Proces() {
  if (!bezig_) return;
  ::kill(pid_, SIGKILL);
  Wacht();
}

int Proces::Wacht() {
  int status = 0;
  const bool gewacht = bezig_ && ::waitpid(pid_, &status, 0) == pid_;
  bezig_ = false;
  return gewacht && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool Proces::WachtTotOpen(const fs::path& pad) {
  for (; !SchrijftNaar(pad); std::this_thread::yield()) {
    siginfo_t einde{};
    if (::waitid(P_PID, static_cast<id_t>(pid_), &einde, WEXITED | WNOHANG | WNOWAIT) == 0 &&
        einde.si_pid != 0)
      return false;
  }
  return true;
}

bool Proces::SchrijftNaar(const fs::path& pad) const {
  const fs::path proces = "/proc/" + std::to_string(pid_);
  std::error_code code;
  if (fs::read_symlink(proces / "exe", code) != pad_) return false;  // still a copy of this process
  for (fs::directory_iterator greep(proces / "fd", code), einde; !code && greep != einde;
       greep.increment(code)) {
    std::error_code weg;
    if (fs::read_symlink(greep->path(), weg) != pad) continue;
    std::ifstream info(proces / "fdinfo" / greep->path().filename());
    std::string woord;
    unsigned vlaggen = 0;
    while (info >> woord && woord != "flags:") {
    }
    if (info >> std::oct >> vlaggen && (vlaggen & O_ACCMODE) != O_RDONLY) return true;
  }
  return false;
}

}  // namespace murvane::proef
