#pragma once
// The binary project file *.mrv: the records field by field, little-endian, without header or padding.

#include <filesystem>
#include <string>
#include <string_view>

#include "basis/stempel.h"
#include "project/records.h"

namespace murvane {

/// Whether a name can be that of a project that is opened: its last three characters are "mrv", in any case.
[[nodiscard]] bool IsProjectNaam(std::string_view naam);

/// The project of a file image; what stands behind its logical end is ignored. Fout 62 when the image ends
/// too early, Fout 9 when its element count is above 500 and the image does hold 500 elements. A negative
/// count reads no elements and stays as it is.
[[nodiscard]] Project ProjectUitBytes(std::string_view bytes);

/// The file image up to its logical end. Fout 9 for an ElementCount above 500, Fout 5 for a room text above
/// 65535 characters.
[[nodiscard]] std::string ProjectBytes(const Project& project);

/// Reads a project file; failures of LeesInhoud and ProjectUitBytes, with the file's name.
[[nodiscard]] Project LeesProject(const std::filesystem::path& pad);
/// The same, with what there is to remember of the file.
struct GelezenProject {
  murvane::Project Project;
  Herinnering Bestand;
};
[[nodiscard]] GelezenProject LeesProjectBestand(const std::filesystem::path& pad);

/// Saves a project so that at no moment half a file stands there. An existing longer file keeps its length
/// and its old bytes behind the new logical end. Fout 52 unless the name's last three characters are exactly
/// "mrv"; failures of VervangBestand. Whatever stands there is overwritten.
void SchrijfProject(const Project& project, const std::filesystem::path& pad);

/// Fout 52 unless a project can be saved under the name: its last three characters are exactly "mrv".
void EisOpslagNaam(const std::filesystem::path& pad);

}  // namespace murvane
