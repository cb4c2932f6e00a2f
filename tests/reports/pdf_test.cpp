#include "reports/pdf.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

/// The least that a document has; its table is at `xref`.
const std::string Klein =
    "%PDF-1.4\n"
    "1 0 obj\n<<\n/Title (x)\n>>\nendobj\n"  // at 9
    "2 0 obj\n<< /Type /Catalog >>\nendobj\n"
    "xref\n0 3\n0000000000 65535 f \n0000000009 00000 n \n0000000042 00000 n \n"
    "trailer\n<<\n/Size 3\n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n78\n%%EOF\n";

TEST(MetAuteur, AppendsAnUpdateThatNamesTheAuthor) {
  const std::string uit = MetAuteur(Klein, "\xC9\xE9n \x80");
  ASSERT_EQ(uit.substr(0, Klein.size()), Klein);
  // The information dictionary anew, with the author as UTF-16: É is 00C9, é 00E9, the euro sign 20AC.
  const std::string object = "1 0 obj\n<< /Author <FEFF00C900E9006E002020AC>\n/Title (x)\n>>\nendobj\n";
  std::string plaats = std::to_string(Klein.size());
  plaats.insert(0, 10 - plaats.size(), '0');
  EXPECT_EQ(uit.substr(Klein.size()),
            object + "xref\n1 1\n" + plaats +
                " 00000 n \ntrailer\n<< /Size 3 /Info 1 0 R /Root 2 0 R /Prev 78 >>\n" + "startxref\n" +
                std::to_string(Klein.size() + object.size()) + "\n%%EOF\n");
}

TEST(MetAuteur, LeavesADocumentOfNobodyAlone) {
  EXPECT_EQ(MetAuteur(Klein, ""), Klein);
}

TEST(MetAuteur, BeginsOnALineOfItsOwn) {
  const std::string zonder = Klein.substr(0, Klein.size() - 1);
  EXPECT_EQ(MetAuteur(zonder, "A"), MetAuteur(Klein, "A"));
}

TEST(MetAuteur, RefusesWhatIsNoDocument) {
  for (const std::string& bytes : {std::string(), std::string("%PDF-1.4\n"), Klein.substr(0, 100),
                                   Klein.substr(90), std::string("trailer\nstartxref\nx"),
                                   std::string("trailer\n<< /Info 9 0 R >>\nstartxref\n1\n%%EOF\n")})
    EXPECT_EQ(proef::NummerVan([&] { return MetAuteur(bytes, "A").size(); }), 51) << bytes;
}

}  // namespace
}  // namespace murvane
