// Every declared export has at least one row in a family's table, except
// the few whose behaviour is not an image operation (tested by hand in
// core_test.cpp). A family that declares an export without a row fails here.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include "support/rows.h"

namespace {

bool TestedByHand(const std::string& name) {
  return name.rfind("peliMalloc_", 0) == 0 || name == "peliFree" || name == "peliGetLibVersion";
}

TEST(Coverage, EveryExportHasARow) {
  std::set<std::string> covered;
  for (const peltest::Family& f : peltest::Families())
    for (const peltest::Row& r : f.rows()) covered.insert(r.name);
  std::ifstream list(PEL_EXPORT_LIST_FILE);
  ASSERT_TRUE(list.good()) << "cannot read " << PEL_EXPORT_LIST_FILE;
  std::string name, missing;
  std::set<std::string> declared;
  int exports = 0, withoutRow = 0;
  while (std::getline(list, name)) {
    if (name.empty()) continue;
    declared.insert(name);
    ++exports;
    if (TestedByHand(name) || covered.count(name)) continue;
    ++withoutRow;
    if (withoutRow <= 40) missing += " " + name;
  }
  EXPECT_EQ(withoutRow, 0) << withoutRow << " of " << exports << " exports have no row:" << missing;
  for (const std::string& n : covered) EXPECT_TRUE(declared.count(n)) << "a row names no export: " << n;
}

}  // namespace
