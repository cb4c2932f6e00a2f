// The project file: what reads writes back the same, through JSON too.

#include "basis/fout.h"
#include "fuzz/bestook.h"
#include "project/projectfile.h"
#include "project/projectjson.h"

using namespace murvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte) {
  const std::string_view bytes = AlsTekst(data, lengte);
  try {
    const Project project = ProjectUitBytes(bytes);
    const std::string terug = ProjectBytes(project);
    Eis(bytes.starts_with(terug));
    Eis(ProjectBytes(ProjectUitJson(ProjectNaarJson(project))) == terug);
  } catch (const Fout& fout) {
    Eis(fout.Nummer() == FoutNummer::VoorbijEinde || fout.Nummer() == FoutNummer::IndexBuitenBereik);
  }
  return 0;
}
