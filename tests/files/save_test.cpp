// Writing pictures: the bytes on disk, and that no failure ever costs a drawing.
#include <sys/stat.h>

#include <cstring>
#include <future>
#include <memory>

#include "files/disk.h"
#include "files/picture_files.h"
#include "support/errors.h"
#include "support/script.h"

using namespace surface;
using namespace picture_files;

namespace {

constexpr std::size_t Room = 256 * 1024;  // bytes, a quarter of the sheet's file

Rgb colorful(int x, int y) {
  return static_cast<Rgb>(x % 256) << 16 | static_cast<Rgb>(y % 256) << 8 |
         static_cast<Rgb>((x * 7 + y) % 256);
}

Picture picture(int width, int height) {
  auto bitmap = std::make_shared<raster::Bitmap>(width, height, 0);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) bitmap->row(y)[x] = 0xFF000000 | colorful(x, y);
  return Picture(std::move(bitmap));
}

void expectSaved(const std::string& path, int width, int height) {
  const SavedBmp saved(path);
  ASSERT_EQ(saved.width(), width);
  ASSERT_EQ(saved.height(), height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) ASSERT_EQ(saved.at(x, y), colorful(x, y)) << x << ',' << y;
}

}  // namespace

class Saving : public script::Stage {
 protected:
  std::string path(const std::string& name = "tekening.bmp") { return folder() + "/" + name; }

  /// A file that was there before, and must be there after a failure.
  void bystander(std::size_t size) {
    former = Bytes(size, 'x');
    for (std::size_t i = 0; i < size; i += 17) former[i] = static_cast<char>(i);
    write(path(), former);
  }
  void expectUntouched() {
    EXPECT_TRUE(read(path()) == former) << "the older file is damaged";
    EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"tekening.bmp"}) << "debris";
  }
  /// Nothing can be made in the folder, but the file itself may be written.
  void closeTheFolder() {
    disk::give(path(), std::filesystem::perms{0600});
    std::filesystem::permissions(folder(), std::filesystem::perms{0555});
  }
  ~Saving() override { std::filesystem::permissions(folder(), std::filesystem::perms{0755}); }

  const Picture sheet = picture(617, 537);
  Bytes former;
};

TEST_F(Saving, WritesAnUncompressedBitmapOfTwentyFourBits) {
  // Every length of padding at the end of a row.
  for (const int width : {1, 2, 3, 4, 617}) {
    SavePicture(picture(width, 5), path());
    expectSaved(path(), width, 5);
  }
}

TEST_F(Saving, WhatIsSavedIsReadBackAlike) {
  SavePicture(sheet, path());
  const Picture again = LoadPicture(path());
  ASSERT_EQ(again.width(), 617);
  ASSERT_EQ(again.height(), 537);
  for (int y = 0; y < 537; ++y)
    ASSERT_EQ(std::memcmp(again.bitmap()->row(y), sheet.bitmap()->row(y), 617 * 4), 0) << y;
}

TEST_F(Saving, LeavesNothingButTheFile) {
  SavePicture(sheet, path());
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"tekening.bmp"});
}

TEST_F(Saving, ANewFileMayBeReadByOthersAsAnyNewFile) {
  SavePicture(sheet, path());
  write(path("gewoon"), "x");
  EXPECT_EQ(std::filesystem::status(path()).permissions(),
            std::filesystem::status(path("gewoon")).permissions());
}

TEST_F(Saving, AnOlderFileIsReplacedWhole) {
  bystander(3'000'000);
  SavePicture(sheet, path());
  expectSaved(path(), 617, 537);
}

TEST_F(Saving, ALinkStaysALinkToTheNewContents) {
  SavePicture(picture(2, 2), path("echt.bmp"));
  std::filesystem::create_symlink(path("echt.bmp"), path());
  SavePicture(sheet, path());
  EXPECT_TRUE(std::filesystem::is_symlink(path()));
  expectSaved(path("echt.bmp"), 617, 537);
}

TEST_F(Saving, AnEmptyPictureCannotBeSaved) {
  EXPECT_ERROR(BadPropertyValue, SavePicture(LoadPicture(), path()));
  EXPECT_FALSE(std::filesystem::exists(path()));
}

TEST_F(Saving, APictureOfNoSizeCannotBeSaved) {
  bystander(100);
  EXPECT_ERROR(CannotWrite, SavePicture(picture(0, 0), path()));
  expectUntouched();
}

TEST_F(Saving, AFolderThatIsNotThereIsAnError) {
  EXPECT_ERROR(CannotWrite, SavePicture(sheet, path("nergens/tekening.bmp")));
  EXPECT_TRUE(disk::names(folder()).empty());
}

TEST_F(Saving, AFolderIsNotWrittenOver) {
  std::filesystem::create_directory(path());
  EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  EXPECT_TRUE(std::filesystem::is_directory(path()));
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"tekening.bmp"});
}

TEST_F(Saving, NoNameIsAnError) { EXPECT_ERROR(CannotWrite, SavePicture(sheet, "")); }

TEST_F(Saving, APipeIsRefusedWithoutWaitingForItsReader) {
  ASSERT_EQ(mkfifo(path().c_str(), 0600), 0);
  auto attempt = std::async(std::launch::async,
                            [&] { return trapAndLeave([&] { SavePicture(sheet, path()); }); });
  const bool waits = attempt.wait_for(std::chrono::seconds(5)) != std::future_status::ready;
  // Whoever waits is let go, so that the test ends.
  if (waits) std::ifstream(path()).get();
  EXPECT_FALSE(waits);
  EXPECT_FALSE(attempt.get());
}

TEST_F(Saving, AFullDiskLeavesTheOlderFileWholeAndNoDebris) {
  bystander(100'000);
  {
    const disk::SizeLimit full(Room);
    EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  }
  expectUntouched();
}

TEST_F(Saving, AFullDiskLeavesNoHalfNewFile) {
  {
    const disk::SizeLimit full(Room);
    EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  }
  EXPECT_TRUE(disk::names(folder()).empty());
}

TEST_F(Saving, ADiskWithRoomForAllButTheLastByteIsFullToo) {
  bystander(100);
  {
    const disk::SizeLimit full(54 + 1852 * 537 - 1);
    EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  }
  expectUntouched();
  const disk::SizeLimit enough(54 + 1852 * 537);
  EXPECT_NO_THROW(SavePicture(sheet, path()));
}

TEST_F(Saving, WhereNothingMayBeMadeBesideTheFileItIsWrittenOver) {
  bystander(3'000'000);
  closeTheFolder();
  {
    const disk::OrdinaryUser user;
    SavePicture(sheet, path());
  }
  expectSaved(path(), 617, 537);
}

TEST_F(Saving, AFullDiskBringsTheContentsOfAFileBackThatIsWrittenOver) {
  for (const std::size_t size : {0, 1000, 100'000, 200'000}) {
    std::filesystem::permissions(folder(), std::filesystem::perms{0755});
    bystander(size);
    closeTheFolder();
    {
      const disk::SizeLimit full(Room);
      const disk::OrdinaryUser user;
      EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
    }
    expectUntouched();
  }
}

// A folder that many share, as the one for what is temporary: nobody may take the name of another's
// file, but whoever may write into it may write over it.
TEST_F(Saving, AnotherUsersFileInASharedFolderIsWrittenOver) {
  bystander(100);
  std::filesystem::permissions(path(), std::filesystem::perms{0666});
  std::filesystem::permissions(folder(), std::filesystem::perms{01777});
  {
    const disk::OrdinaryUser user;
    SavePicture(sheet, path());
  }
  expectSaved(path(), 617, 537);
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"tekening.bmp"}) << "debris";
}

TEST_F(Saving, ANameNeedNotBeText) {
  for (int times = 0; times < 2; ++times) {
    SavePicture(sheet, path("caf\xE9.bmp"));
    expectSaved(path("caf\xE9.bmp"), 617, 537);
  }
  EXPECT_EQ(disk::names(folder()), std::vector<std::string>{"caf\xE9.bmp"});
}

TEST_F(Saving, ALinkToNothingYetMakesTheFileBehindIt) {
  std::filesystem::create_symlink("nieuw.bmp", path());
  SavePicture(sheet, path());
  EXPECT_TRUE(std::filesystem::is_symlink(path()));
  expectSaved(path("nieuw.bmp"), 617, 537);
}

// 115 centimetres a side.
TEST_F(Saving, TheLargestSheetsAreReadBack) {
  SavePicture(Picture(std::make_shared<raster::Bitmap>(4346, 4346, 0xFF123456)), path());
  const Picture again = LoadPicture(path());
  ASSERT_EQ(again.width(), 4346);
  ASSERT_EQ(again.height(), 4346);
  EXPECT_EQ(again.bitmap()->at(4345, 4345), 0xFF123456);
}

TEST_F(Saving, AClosedFolderTakesNoNewFile) {
  bystander(100);
  closeTheFolder();
  {
    const disk::OrdinaryUser user;
    EXPECT_ERROR(CannotWrite, SavePicture(sheet, path("nieuw.bmp")));
  }
  expectUntouched();
}

TEST_F(Saving, AFileThatMayNotBeWrittenInAClosedFolderStaysAsItIs) {
  bystander(100);
  closeTheFolder();
  disk::give(path(), std::filesystem::perms{0400});
  {
    const disk::OrdinaryUser user;
    EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  }
  expectUntouched();
}

// Only where the test may make a disk of its own; elsewhere the limit of sizes above stands for it.
class SavingOnATinyDisk : public Saving, public testing::WithParamInterface<std::size_t> {};

namespace {

std::vector<std::size_t> sizesOfOlderFiles() {
  const std::string folder = testing::TempDir() + "kraspret-schijfje-" + std::to_string(getpid());
  std::filesystem::create_directories(folder);
  const bool possible = disk::TinyDisk(folder, Room).there();
  std::filesystem::remove(folder);
  return possible ? std::vector<std::size_t>{0, 1000, 100'000, 200'000}
                  : std::vector<std::size_t>{};
}

}  // namespace

TEST_P(SavingOnATinyDisk, LeavesTheOlderFileWhole) {
  const disk::TinyDisk tiny(folder(), Room);
  bystander(GetParam());
  EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  expectUntouched();
}

TEST_P(SavingOnATinyDisk, BringsTheContentsOfAFileBackThatIsWrittenOver) {
  const disk::TinyDisk tiny(folder(), Room);
  bystander(GetParam());
  closeTheFolder();
  {
    const disk::OrdinaryUser user;
    EXPECT_ERROR(CannotWrite, SavePicture(sheet, path()));
  }
  expectUntouched();
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SavingOnATinyDisk);
INSTANTIATE_TEST_SUITE_P(OlderFile, SavingOnATinyDisk, testing::ValuesIn(sizesOfOlderFiles()),
                         testing::PrintToStringParamName());
