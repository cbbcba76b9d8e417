#include "forms/files.h"

#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <sys/stat.h>

#include "support/file_size_limit.h"
#include "support/scratch_folder.h"

namespace
{
    namespace fs = std::filesystem;

    constexpr std::size_t plenty = 1000;
    constexpr const char* gone = "the file has been removed or replaced since it was opened; open it again";

    TEST(ReadFile, ReadsEveryByte)
    {
        const ScratchFolder folder;
        const std::string bytes("line\r\n\0\xff\x1a end", 13);
        writeBytes(folder.path / "file", bytes);
        EXPECT_EQ(readFile(folder.path / "file", plenty), bytes);
        EXPECT_EQ(readFile(folder.path / "file", bytes.size()), bytes);
    }

    TEST(ReadFile, StopsAtItsLimit)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "0123456789");
        EXPECT_EQ(readFile(folder.path / "file", 4), "0123");
        EXPECT_EQ(readFile(folder.path / "file", 0), "");
    }

    TEST(ReadFile, KnowsAnEmptyFileFromNone)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "empty", "");
        EXPECT_EQ(readFile(folder.path / "empty", plenty), "");
        EXPECT_EQ(readFile(folder.path / "none", plenty), std::nullopt);
    }

    TEST(ReadFile, ReadsNothingButFiles)
    {
        const ScratchFolder folder;
        ASSERT_EQ(mkfifo((folder.path / "pipe").c_str(), 0600), 0);
        EXPECT_EQ(readFile(folder.path, plenty), std::nullopt);
        EXPECT_EQ(readFile(folder.path / "pipe", plenty), std::nullopt);
        EXPECT_EQ(readFile("/dev/zero", plenty), std::nullopt);
        EXPECT_EQ(readFile("", plenty), std::nullopt);
    }

    constexpr fs::perms ownersAndGroups =
        fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;   // 0640

    TEST(ReplaceFile, MakesAFileAsAnyNewOneIs)
    {
        const ScratchFolder folder;
        const mode_t old = umask(0027);
        EXPECT_EQ(replaceFile(folder.path / "file", "new"), std::nullopt);
        umask(old);
        EXPECT_EQ(readBytes(folder.path / "file"), "new");
        EXPECT_EQ(folder.entryCount(), 1U);
        EXPECT_EQ(fs::status(folder.path / "file").permissions(), ownersAndGroups);
    }

    TEST(ReplaceFile, KeepsWhoMayUseTheOldFile)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "old");
        fs::permissions(folder.path / "file", ownersAndGroups);
        EXPECT_EQ(replaceFile(folder.path / "file", "new"), std::nullopt);
        EXPECT_EQ(fs::status(folder.path / "file").permissions(), ownersAndGroups);
    }

    TEST(ReplaceFile, FollowsALink)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "old");
        fs::create_symlink("file", folder.path / "link");
        EXPECT_EQ(replaceFile(folder.path / "link", "new"), std::nullopt);
        EXPECT_TRUE(fs::is_symlink(folder.path / "link"));
        EXPECT_EQ(readBytes(folder.path / "file"), "new");
        EXPECT_EQ(folder.entryCount(), 2U);
    }

    TEST(ReplaceFile, TakesAPathWithoutAFolder)
    {
        const ScratchFolder folder;
        const fs::path before = fs::current_path();
        fs::current_path(folder.path);
        EXPECT_EQ(replaceFile("file", "new"), std::nullopt);
        fs::current_path(before);
        EXPECT_EQ(readBytes(folder.path / "file"), "new");
    }

    TEST(ReplaceFile, LeavesNothingOfALongerOldFile)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "a much longer old file");
        EXPECT_EQ(replaceFile(folder.path / "file", "new"), std::nullopt);
        EXPECT_EQ(readBytes(folder.path / "file"), "new");
        EXPECT_EQ(folder.entryCount(), 1U);
    }

    TEST(ReplaceFile, WritesAnEmptyFile)
    {
        const ScratchFolder folder;
        EXPECT_EQ(replaceFile(folder.path / "file", ""), std::nullopt);
        EXPECT_EQ(readBytes(folder.path / "file"), "");
    }

    struct NoPlace
    {
        const char* name;
        const char* path;   // below a folder that holds the file `file` and the folder `folder`
        const char* why;
    };

    class ReplaceFails : public testing::TestWithParam<NoPlace>
    {};

    TEST_P(ReplaceFails, AndSaysWhyAndLeavesNoTrace)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "old");
        fs::create_directory(folder.path / "folder");
        EXPECT_EQ(replaceFile(folder.path / GetParam().path, "new"), GetParam().why);
        EXPECT_EQ(readBytes(folder.path / "file"), "old");
        EXPECT_TRUE(fs::is_empty(folder.path / "folder"));
        EXPECT_EQ(folder.entryCount(), 2U);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, ReplaceFails,
                             testing::Values(NoPlace{"missing_folder", "none/file", "No such file or directory"},
                                             NoPlace{"folder_that_is_a_file", "file/file", "Not a directory"},
                                             NoPlace{"target_that_is_a_folder", "folder", "Is a directory"}),
                             [](const auto& row) { return row.param.name; });

    TEST(ReplaceFile, ThatRunsOutOfSpaceLeavesTheOldFile)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "old");
        std::optional<std::string> failure;
        {
            const FileSizeLimit limit(10);
            failure = replaceFile(folder.path / "file", std::string(plenty, 'x'));
        }
        EXPECT_EQ(failure, "File too large");
        EXPECT_EQ(readBytes(folder.path / "file"), "old");
        EXPECT_EQ(folder.entryCount(), 1U);
    }

    TEST(HeldFile, IsMadeReadAndWrittenInPlace)
    {
        const ScratchFolder folder;
        HeldFile file;
        EXPECT_FALSE(file.isOpen());
        EXPECT_EQ(file.size(), 0U);
        EXPECT_EQ(file.open(folder.path / "file"), std::nullopt);
        EXPECT_TRUE(file.isOpen());
        EXPECT_EQ(file.write(4, "four"), std::nullopt);
        EXPECT_EQ(file.size(), 8U);
        EXPECT_EQ(file.write(0, "ab"), std::nullopt);
        EXPECT_EQ(file.read(0, plenty), std::string("ab\0\0four", 8));
        EXPECT_EQ(file.read(6, 2), "ur");
        EXPECT_EQ(file.read(100, 2), "");
        EXPECT_EQ(readBytes(folder.path / "file"), std::string("ab\0\0four", 8));
    }

    TEST(HeldFile, KeepsWhatThereIs)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "old");
        HeldFile file;
        EXPECT_EQ(file.open(folder.path / "file"), std::nullopt);
        EXPECT_EQ(file.read(0, plenty), "old");
        EXPECT_EQ(file.open(folder.path / "other"), std::nullopt);   // the first is closed
        EXPECT_EQ(file.read(0, plenty), "");
        file.close();
        EXPECT_FALSE(file.isOpen());
        EXPECT_NE(file.write(0, "x"), std::nullopt);
        EXPECT_EQ(readBytes(folder.path / "file"), "old");
    }

    TEST(HeldFile, OpensNothingButFiles)
    {
        const ScratchFolder folder;
        ASSERT_EQ(mkfifo((folder.path / "pipe").c_str(), 0600), 0);
        HeldFile file;
        EXPECT_EQ(file.open(folder.path), "Is a directory");
        EXPECT_EQ(file.open(folder.path / "pipe"), "It is no file");
        EXPECT_EQ(file.open("/dev/zero"), "It is no file");
        EXPECT_EQ(file.open(folder.path / "none" / "file"), "No such file or directory");
        EXPECT_EQ(file.open(""), "No such file or directory");
        EXPECT_FALSE(file.isOpen());
    }

    TEST(HeldFile, IsAsItWasAfterAWriteThatFails)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "0123456789");
        HeldFile file;
        ASSERT_EQ(file.open(folder.path / "file"), std::nullopt);
        {
            const FileSizeLimit limit(12);
            EXPECT_EQ(file.write(8, "abcdef"), "File too large");   // four of them fit
        }
        EXPECT_EQ(readBytes(folder.path / "file"), "0123456789");
    }

    TEST(HeldFile, ThatIsGoneTakesNothing)
    {
        const ScratchFolder folder;
        HeldFile file;
        ASSERT_EQ(file.open(folder.path / "file"), std::nullopt);
        fs::remove(folder.path / "file");
        EXPECT_EQ(file.write(0, "x"), gone);
        writeBytes(folder.path / "file", "another");
        EXPECT_EQ(file.write(0, "x"), gone);
        EXPECT_EQ(readBytes(folder.path / "file"), "another");
        EXPECT_EQ(file.open(folder.path / "file"), std::nullopt);
        EXPECT_EQ(file.write(0, "x"), std::nullopt);
    }

    TEST(WhyUnread, TellsWhatThereIsInstead)
    {
        const ScratchFolder folder;
        writeBytes(folder.path / "file", "old");
        ASSERT_EQ(mkfifo((folder.path / "pipe").c_str(), 0600), 0);
        EXPECT_EQ(whyUnread(folder.path / "file"), std::nullopt);
        EXPECT_EQ(whyUnread(folder.path), "Is a directory");
        EXPECT_EQ(whyUnread(folder.path / "pipe"), "It is no file");
        EXPECT_EQ(whyUnread("/dev/zero"), "It is no file");
        EXPECT_EQ(whyUnread(folder.path / "none"), "No such file or directory");
        EXPECT_EQ(whyUnread(folder.path / "file" / "file"), "Not a directory");
    }

    RC_GTEST_PROP(ReplaceFile, IsReadBackByteForByte, (const std::string& bytes))
    {
        static const ScratchFolder folder;
        RC_ASSERT(!replaceFile(folder.path / "file", bytes));
        RC_ASSERT(readFile(folder.path / "file", bytes.size() + 1) == bytes);
    }
}
