// Opening files by UTF-8 path: which names work alike on both systems, what is refused, and the platform that a test puts in force.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/platform.h"
#include "platform/utf8.h"
#include "testing/fake_platform.h"
#include "testing/temporary_folder.h"

namespace btz {
namespace {

class OpenFileTest : public ::testing::Test {
 protected:
  /// Content of the file at `path`, opened for reading; "(refused)" when it can't be opened.
  static std::string Content(const std::string& path, const char* mode = "rb") {
    std::FILE* file = OpenFileUtf8(path.c_str(), mode);
    if (file == nullptr) {
      return "(refused)";
    }
    char text[64];
    const std::size_t length = std::fread(text, 1, sizeof(text), file);
    std::fclose(file);
    return std::string(text, length);
  }

  static bool Opens(const std::string& path, const char* mode) {
    std::FILE* file = OpenFileUtf8(path.c_str(), mode);
    if (file != nullptr) {
      std::fclose(file);
    }
    return file != nullptr;
  }

  /// Path of a file in the folder that takes `units` UTF-16 units in all, its last part made of `letter`.
  std::string PathOfUnits(std::int32_t units, const std::string& letter) const {
    std::string path = folder.Path("x");
    while (CountUtf16Units(path.c_str()) < 200) {
      path += "/" + std::string(40, 'f');
    }
    std::filesystem::create_directories(test::ToSystemPath(path));
    path += "/";
    while (CountUtf16Units((path + letter).c_str()) <= units) {
      path += letter;
    }
    while (CountUtf16Units(path.c_str()) < units) {
      path += "z";
    }
    return path;
  }

  test::TemporaryFolder folder;
};

TEST_F(OpenFileTest, ReadsBytesAsTheyAreInBinaryMode) {
  const std::string content("GRID\r\n\x1A\xE9\0end", 12);
  EXPECT_EQ(Content(folder.Write("a.bdf", content)), content);
}

TEST_F(OpenFileTest, GivesNullForAFileThatIsNotThere) {
  EXPECT_EQ(Content(folder.Path("none.bdf")), "(refused)");
  EXPECT_FALSE(Opens(folder.Path("no_folder/a.txt"), "w"));
  EXPECT_FALSE(Opens("", "rb"));
  EXPECT_FALSE(Opens("", "w"));
}

TEST_F(OpenFileTest, GivesNullForANullPath) { EXPECT_EQ(OpenFileUtf8(nullptr, "rb"), nullptr); }

TEST_F(OpenFileTest, OpensNamesBeyondAscii) {
  EXPECT_EQ(Content(folder.Write("gr\xC3\xB6\xC3\x9F"
                                 "e.bdf",
                                 "umlaut")),
            "umlaut");
  EXPECT_EQ(Content(folder.Write("\xE4\xB8\xAD\xE6\x96\x87/\xE6\xA8\xA1\xE5\x9E\x8B.bdf", "han")), "han");
  EXPECT_EQ(Content(folder.Write("\xF0\x9F\x98\x80.bdf", "surrogates")), "surrogates");
}

TEST_F(OpenFileTest, AcceptsBothSlashes) {
  folder.Write("parts/left/a.bdf", "left");
  folder.Write("parts/right/b.bdf", "right");
  EXPECT_EQ(Content(folder.Path() + "/parts/left/a.bdf"), "left");
  EXPECT_EQ(Content(folder.Path() + "\\parts\\left\\a.bdf"), "left");
  EXPECT_EQ(Content(folder.Path() + "/parts\\left/a.bdf"), "left");
  EXPECT_EQ(Content(folder.Path() + "/parts/right\\../left\\a.bdf"), "left");
}

TEST_F(OpenFileTest, RefusesAFolder) {
  EXPECT_FALSE(Opens(folder.Path(), "rb"));
  EXPECT_FALSE(Opens(folder.Path(), "w"));
  EXPECT_FALSE(Opens(folder.Path(), "a+"));
}

TEST_F(OpenFileTest, WritesAndAppends) {
  const std::string path = folder.Path("log.txt");
  for (const char* mode : {"w", "a+", "a+"}) {
    std::FILE* file = OpenFileUtf8(path.c_str(), mode);
    ASSERT_NE(file, nullptr);
    std::fputs(mode, file);
    std::fputs("\n", file);
    std::fclose(file);
  }
  EXPECT_EQ(folder.ReadText("log.txt"), "w\na+\na+\n");
  EXPECT_TRUE(Opens(path, "w"));
  EXPECT_EQ(folder.ReadText("log.txt"), "") << "w truncates";
}

TEST_F(OpenFileTest, APathOf259UnitsOpens) {
  for (const char* letter : {"a", "\xC3\xB6", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80"}) {
    const std::string path = PathOfUnits(259, letter);
    ASSERT_EQ(CountUtf16Units(path.c_str()), 259);
    EXPECT_TRUE(Opens(path, "w")) << path;
  }
}

TEST_F(OpenFileTest, APathOf260UnitsIsRefused) {
  for (const char* letter : {"a", "\xC3\xB6", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80"}) {
    const std::string path = PathOfUnits(260, letter);
    ASSERT_EQ(CountUtf16Units(path.c_str()), 260);
    EXPECT_FALSE(Opens(path, "w")) << path;
    EXPECT_FALSE(std::filesystem::exists(test::ToSystemPath(path))) << path;
  }
  EXPECT_FALSE(Opens(folder.Path(std::string(5000, 'a')), "w"));
}

#ifndef _WIN32
TEST_F(OpenFileTest, APathThatIsNoUtf8IsRefused) {
  EXPECT_FALSE(Opens(folder.Path() + "/caf\xE9", "w"));
  EXPECT_FALSE(Opens(folder.Path() + "/caf\xC3", "w"));
}

TEST_F(OpenFileTest, WhatIsNoRegularFileIsRefused) {
  EXPECT_FALSE(Opens("/dev/null", "rb"));
  EXPECT_FALSE(Opens("/dev/null", "w"));
}

TEST_F(OpenFileTest, ALinkToAFileOpens) {
  folder.Write("a.bdf", "target");
  std::filesystem::create_symlink(test::ToSystemPath(folder.Path("a.bdf")), test::ToSystemPath(folder.Path("link.bdf")));
  EXPECT_EQ(Content(folder.Path("link.bdf")), "target");
}
#endif

TEST_F(OpenFileTest, FileLengthIsInBytes) {
  std::FILE* file = OpenFileUtf8(folder.Write("a.bdf", "GRID\r\n\r\n").c_str(), "rb");
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(FileLength(file), 8);
  EXPECT_EQ(std::fgetc(file), EOF) << "the position is the end";
  std::fclose(file);
  file = OpenFileUtf8(folder.Write("empty.bdf", "").c_str(), "rb");
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(FileLength(file), 0);
  std::fclose(file);
}

TEST_F(OpenFileTest, APlatformIsInForceForItsScope) {
  const std::string path = folder.Write("a.bdf", "GRID\n");
  EXPECT_EQ(&CurrentPlatform(), &SystemPlatform());
  test::FakePlatform outer;
  {
    const ScopedPlatform outerScope(outer);
    EXPECT_EQ(&CurrentPlatform(), &outer);
    test::FakePlatform inner;
    inner.refusedPaths.insert(path);
    {
      const ScopedPlatform innerScope(inner);
      EXPECT_EQ(Content(path), "(refused)");
    }
    EXPECT_EQ(inner.openings.size(), 1u);
    EXPECT_EQ(Content(path), "GRID\n");
  }
  EXPECT_EQ(&CurrentPlatform(), &SystemPlatform());
  EXPECT_EQ(outer.CountOpenings(path, "rb"), 1);
  EXPECT_EQ(Content(path), "GRID\n");
  EXPECT_EQ(outer.openings.size(), 1u);
}

}  // namespace
}  // namespace btz
