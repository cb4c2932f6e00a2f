#pragma once
// A program of this build as a process of its own.

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace murvane::proef {

class Proces {
 public:
  /// Starts it; what it writes to standard error goes to a file.
  Proces(std::string_view programma, std::vector<std::string> argumenten,
         const std::filesystem::path& fouten);
  Proces(const Proces&) = delete;
  Proces& operator=(const Proces&) = delete;
  ~Proces();

  /// Waits for its end; its exit status, -1 when it did not end by itself.
  int Wacht();
  /// Waits until it has a file open for writing; false when it ended without.
  [[nodiscard]] bool WachtTotOpen(const std::filesystem::path& pad);

 private:
  [[nodiscard]] bool SchrijftNaar(const std::filesystem::path& pad) const;

  std::filesystem::path pad_;
  pid_t pid_;
  bool bezig_ = true;
};

}  // namespace murvane::proef
