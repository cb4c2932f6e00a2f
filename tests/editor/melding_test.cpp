#include "editor/melding.h"

#include <gtest/gtest.h>

#include "basis/tekst.h"

namespace murvane {
namespace {

TEST(Melding, OfAnUnexpectedFailureNamesProcedureWindowAndFault) {
  const Melding melding = OnverwachteFout("OpSlag", "frmMurvane", Fout(FoutNummer::SchijfVol));
  EXPECT_EQ(melding.Soort, MeldingSoort::Kritiek);
  EXPECT_EQ(melding.Titel, "MurVane");
  EXPECT_EQ(melding.Tekst,
            "Onverwachte fout in procedure OpSlag van Form frmMurvane.\nFout 61 - Schijf vol.");
  EXPECT_EQ(melding.Knoppen, Knoppen::OK);
}

TEST(Melding, ShowsTheDescriptionInTheCodePage) {
  const Fout fout(FoutNummer::OngeldigArgument, "Het teken 'Ω' is één teken te veel");
  const std::string_view rest = " - Het teken '?' is één teken te veel."_cp;
  EXPECT_EQ(OnverwachteFout("P", "F", fout).Tekst,
            "Onverwachte fout in procedure P van Form F.\nFout 5" + std::string(rest));
}

TEST(Melding, DiffersInEveryPart) {
  const Melding een{MeldingSoort::Vraag, "Titel", "Tekst", Knoppen::YesNo};
  EXPECT_EQ(een, (Melding{MeldingSoort::Vraag, "Titel", "Tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Uitroep, "Titel", "Tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Vraag, "titel", "Tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Vraag, "Titel", "tekst", Knoppen::YesNo}));
  EXPECT_NE(een, (Melding{MeldingSoort::Vraag, "Titel", "Tekst", Knoppen::OkCancel}));
}

}  // namespace
}  // namespace murvane
