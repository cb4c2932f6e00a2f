// Hand-written project JSON: refused with a Fout, or a project that survives its own JSON.

#include "basis/fout.h"
#include "fuzz/bestook.h"
#include "project/projectfile.h"
#include "project/projectjson.h"

using namespace murvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte) {
  try {
    const Project project = ProjectUitJson(AlsTekst(data, lengte));
    const std::string bytes = ProjectBytes(project);
    Eis(ProjectBytes(ProjectUitJson(ProjectNaarJson(project))) == bytes);
  } catch (const Fout& fout) {
    Eis(fout.what()[0] != '\0');
  }
  return 0;
}
