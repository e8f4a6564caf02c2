#include "cli/paths.h"

#include <gtest/gtest.h>

#include "testing/temporary_folder.h"

namespace btz::cli {
namespace {

TEST(FileName, BeginsBehindTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(FileNameOf("deck.bdf"), "deck.bdf");
  EXPECT_EQ(FileNameOf("/a/b\\deck.bdf"), "deck.bdf");
  EXPECT_EQ(FileNameOf("a\\b/deck.bdf"), "deck.bdf");
  EXPECT_EQ(FileNameOf("a/"), "");
}

TEST(Path, KeepsCharactersOfAllScripts) {
  const std::string name = "Fl\xC3\xBCgel_\xE7\xBF\xBC.bdf";
  EXPECT_EQ(Utf8Of(PathOf(name)), name);
}

#ifndef _WIN32
// On Windows arguments are UTF-16, so a path is valid UTF-8 by the time it gets here.
TEST(UnusableDeck, BytesThatAreNoUtf8AreToldApart) { EXPECT_EQ(WhyNotUsable("d\xFFn.bdf"), "the path is not valid UTF-8"); }
#endif

TEST(UnusableDeck, LengthCountsInUtf16Units) {
  // One unit each, but two bytes: 259 of them are allowed, and then there is just no such file.
  std::string path;
  for (int i = 0; i < 259; ++i) {
    path += i % 2 == 0 ? "\xC3\xBC" : "/";
  }
  EXPECT_EQ(WhyNotUsable(path), "no such file");
  EXPECT_EQ(WhyNotUsable(path + "x"), "the path is longer than 259 characters");
}

TEST(UnusableDeck, BackslashesSeparateFolders) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(WhyNotUsable(folder.Write("empty.bdf", "")), "the file is empty");
  std::string path = folder.Write("empty.bdf", "");
  path[path.rfind('/')] = '\\';
  EXPECT_EQ(WhyNotUsable(path), "the file is empty");
}

}  // namespace
}  // namespace btz::cli
