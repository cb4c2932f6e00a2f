#include <gtest/gtest.h>

#include "shell/hoofdvenster.h"

namespace murvane {
namespace {

TEST(Openmaat, StaysOnTheScreen) {
  const struct {
    Maat Vrij, Verwacht;
  } rijen[] = {
      {{1920, 1080}, {1024, 740}}, {{1024, 768}, {1024, 740}},
      {{1024, 767}, {1024, 739}},  {{819, 614}, {819, 586}},  // 1024 x 768 at 125 %
      {{640, 508}, {640, 480}},    {{512, 384}, {640, 480}},  // 1024 x 768 at 200 %: its least size
  };
  for (const auto& rij : rijen) {
    const Maat maat = OpenMaat(rij.Vrij);
    EXPECT_EQ(maat.Breedte, rij.Verwacht.Breedte) << rij.Vrij.Breedte;
    EXPECT_EQ(maat.Hoogte, rij.Verwacht.Hoogte) << rij.Vrij.Hoogte;
  }
}

}  // namespace
}  // namespace murvane
