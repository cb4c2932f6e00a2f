#pragma once
// A project as JSON and back, without loss. Objects "ProjectRec", "FanRec" and "RuimteRec", the list
// "Elementen" (from element 1), and "ElementCount", "FanPrognose" and "VrijVeld"; the fields carry their own
// names.
//
// Texts are UTF-8 without the blanks that pad them; null is a text that was never assigned (all NUL). Spectra
// are lists of up to 8 numbers. Numbers are shortest round-trip; what JSON cannot say is a text: "NaN",
// "Infinity", "-Infinity", and any other not-a-number as "NaN:" and its 16 hexadecimal digits.

#include <string>
#include <string_view>

#include "project/records.h"

namespace murvane {

/// Every field in declared order, a shared field under the name that fits the element's type; "ElementCount"
/// only when it is negative. Fout 9 for an ElementCount above 500.
[[nodiscard]] std::string ProjectNaarJson(const Project& project);

/// Reads hand-written JSON too: absent fields are 0 or blank, both names of a shared field are accepted,
/// ElementCount defaults to the length of "Elementen", a text longer than its field is cut. Fout 13 for a
/// wrong type or a number that does not fit its field, Fout 6 for one too large for a double, Fout 5 for an
/// unknown or doubled key, for two names of a field that differ, for a count that contradicts the list, for
/// text that is not JSON or has a character that the code page lacks, Fout 9 for more than 500 elements or 8
/// bands; the Fout's place is the path, as "Elementen[2].Hoogte", items counted from 1, or line and column.
[[nodiscard]] Project ProjectUitJson(std::string_view json);

}  // namespace murvane
