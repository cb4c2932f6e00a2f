#pragma once
// The lock under which a file is compared with what was read of it and then saved.

#include <chrono>
#include <filesystem>
#include <optional>

#include "basis/greep.h"

namespace murvane {

/// While it lives no other program, nor another thread, has a slot on this file. The system itself keeps the
/// lock: nothing is left beside the file, and a program that ends in any way gives it up. A path where
/// nothing stands yet, a device, a file that is not ours to write and a file system without locks are not
/// locked.
class Bestandsslot {
 public:
  /// Waits for whoever has the slot: Fout 70, with the file, when that takes longer than this.
  explicit Bestandsslot(const std::filesystem::path& pad,
                        std::chrono::milliseconds geduld = std::chrono::seconds(5));
  Bestandsslot(const Bestandsslot&) = delete;
  Bestandsslot& operator=(const Bestandsslot&) = delete;
  ~Bestandsslot();

 private:
#ifdef _WIN32
  void* mutex_ = nullptr;
#else
  std::optional<Bestandsgreep> greep_;
#endif
};

}  // namespace murvane
