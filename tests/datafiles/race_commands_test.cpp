// Race files through the form: opening, adding, replacing, and what stands in the file and the list afterwards.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "datafiles/race_record.h"
#include "hex_records.h"
#include "listed_races.h"
#include "open_files.h"
#include "support/case_name.h"
#include "support/file_size_limit.h"

namespace
{
    namespace fs = std::filesystem;
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

    TEST(OpenNew, WithoutANameAsksForOne)
    {
        OpenFiles files;
        files.type("Text6", "x");
        files.type("Text6", "");
        files.click("Command2");
        EXPECT_THAT(files.events(),
                    ElementsAre("message: You must specify a file name in the box to create a new file."));
        EXPECT_FALSE(files.isEnabled("Command1"));
    }

    TEST(OpenNew, AddsTheEndingAndKeepsTheBox)
    {
        OpenFiles files;
        files.type("Text6", "ann");
        files.click("Command2");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_EQ(readBytes(files.at("ann.vtc")), "");
        EXPECT_EQ(files.text("Text6"), "ann");
        EXPECT_TRUE(files.isEnabled("Command1"));
        EXPECT_TRUE(files.isMarkedOpen());
        EXPECT_EQ(files.text("Text9"), "1");
        EXPECT_THAT(files.items("File1"), ElementsAre("ann.vtc"));
    }

    TEST(OpenNew, ComparesTheEndingByItsLetters)
    {
        OpenFiles files;
        files.type("Text6", "ann.vtc");
        files.click("Command2");
        files.type("Text6", "bob.VTC");
        files.click("Command2");
        EXPECT_THAT(files.items("File1"), ElementsAre("ann.vtc", "bob.VTC.vtc"));
    }

    TEST(OpenNew, KeepsAnExistingFileButOffersNumberOne)
    {
        OpenFiles files;
        writeBytes(files.at("ann.vtc"), parkrun());
        files.races().raceCount = 7;
        files.type("Text6", "ann");
        files.click("Command2");
        EXPECT_EQ(files.text("Text9"), "1");
        EXPECT_EQ(files.races().raceCount, 7);
        EXPECT_THAT(files.items("List1"), IsEmpty());
        EXPECT_EQ(readBytes(files.at("ann.vtc")), parkrun());
        files.enterRace("3", "10", "", "", "Option5", "first marathon");
        files.click("Command1");
        EXPECT_EQ(files.races().raceCount, 1);
        EXPECT_EQ(hexOf(readBytes(files.at("ann.vtc")).substr(0, 10)), "0100"
                                                                       "00004040"
                                                                       "00002041");
    }

    TEST(OpenExisting, WithoutANameAsksForAFile)
    {
        OpenFiles files;
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre("message: Please select a file."));
        EXPECT_FALSE(files.isEnabled("Command1"));
    }

    TEST(OpenExisting, ListsTheRaces)
    {
        OpenFiles files;
        files.openRaces(parkrun() + bytesOf(recordOf({"2", "1", "2", "3.5", "10", 1, ""})));
        EXPECT_THAT(files.items("List1"),
                    ElementsAre(parkrunLine, "    2   1    2    3.5      10   X" + std::string(37, ' ')));
        EXPECT_EQ(files.text("Text9"), "3");
        EXPECT_EQ(files.races().raceCount, 2);
        EXPECT_TRUE(files.isMarkedOpen());
        EXPECT_TRUE(files.isEnabled("Command1"));
        EXPECT_FALSE(files.isEnabled("Command8"));
        EXPECT_FALSE(files.isEnabled("Command5"));
        EXPECT_THAT(files.events(), IsEmpty());
    }

    struct LengthCase
    {
        std::string name;
        std::size_t length;
        std::string next;   // race number offered
        std::size_t listed;
    };

    class FileLength : public testing::TestWithParam<LengthCase>
    {};

    TEST_P(FileLength, LeadsToTheNextNumber)
    {
        OpenFiles files;
        files.openRaces(manyRaces(101).substr(0, GetParam().length));
        EXPECT_EQ(files.text("Text9"), GetParam().next);
        EXPECT_EQ(files.items("List1").size(), GetParam().listed);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, FileLength,
                             testing::Values(LengthCase{"nothing", 0, "2", 1},
                                             LengthCase{"one_byte_short", 83, "1.98809523809524", 0},
                                             LengthCase{"one_race", 84, "2", 1},
                                             LengthCase{"one_byte_over", 85, "2.01190476190476", 1},
                                             LengthCase{"two_races", 168, "3", 2},
                                             LengthCase{"as_many_as_there_is_room_for", 84U * 99, "100", 99},
                                             LengthCase{"one_more", 84U * 100, "101", 99}),
                             byName);

    TEST(OpenExisting, OfAnEmptyFileListsARaceOfZeros)
    {
        OpenFiles files;
        files.openRaces("");
        EXPECT_THAT(files.items("List1"), ElementsAre(zeroLine));
        EXPECT_EQ(files.races().raceCount, 1);
    }

    TEST(OpenExisting, MakesAFileThatThereIsNot)
    {
        OpenFiles files;
        files.type("Text6", "none.vtc");
        files.click("Command4");
        EXPECT_EQ(readBytes(files.at("none.vtc")), "");
        EXPECT_THAT(files.items("List1"), ElementsAre(zeroLine));
    }

    TEST(OpenExisting, TakesTheNameAsItIs)
    {
        OpenFiles files;
        files.type("Text6", "ann");
        files.click("Command4");
        EXPECT_TRUE(fs::exists(files.at("ann")));
        EXPECT_FALSE(fs::exists(files.at("ann.vtc")));
    }

    TEST(OpenExisting, OfMoreThan99RacesFaultsAtTheHundredth)
    {
        OpenFiles files;
        files.openRaces(manyRaces(101));
        EXPECT_THAT(files.events(),
                    ElementsAre("fault: The calculation stopped: an index out of range while listing race "
                                "100 of the race file."));
        EXPECT_EQ(files.items("List1").size(), 99U);
        EXPECT_EQ(files.text("Text9"), "102");
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.click("Command1");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_EQ(fs::file_size(files.at("races.vtc")), 84U * 102);
        EXPECT_EQ(files.items("List1").size(), 100U);
        EXPECT_EQ(files.text("Text9"), "103");
    }

    TEST(OpenExisting, OfAnEnormousFileTakesNeitherItsSpaceNorItsTime)
    {
        OpenFiles files;
        writeBytes(files.at("races.vtc"), parkrun());
        fs::resize_file(files.at("races.vtc"), 10'000'000'000);
        files.type("Text6", "races.vtc");
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("race 100 of the race file")));
        EXPECT_EQ(files.items("List1").front(), parkrunLine);
        EXPECT_EQ(files.text("Text9"), "119047620.047619");
        files.click("Command1");
        EXPECT_THAT(files.events(),
                    ElementsAre("fault: The calculation stopped: a race number outside 1 to 32767 while "
                                "adding a race to the race file."));
    }

    TEST(OpenExisting, StopsAtANumberThatIsNone)
    {
        OpenFiles files;
        std::string bytes = parkrun() + parkrun() + parkrun();
        bytes.replace(84 + 10, 4, "\xff\xff\xff\x7f");
        files.openRaces(bytes);
        EXPECT_THAT(files.events(),
                    ElementsAre("fault: The calculation stopped: a result that is no number while listing "
                                "race 2 of the race file."));
        EXPECT_THAT(files.items("List1"), ElementsAre(parkrunLine));
    }

    TEST(OpenExisting, ShowsNoRaceOfAnotherFile)
    {
        OpenFiles files;
        files.openRaces(manyRaces(3));
        writeBytes(files.at("other.vtc"), parkrun());
        files.type("Text6", "other.vtc");
        files.click("Command4");
        ASSERT_EQ(files.races().raceTable.size(), 100U);
        EXPECT_EQ(files.races().raceTable[2], RaceTableRow{});
        EXPECT_EQ(files.races().raceTable[0], RaceTableRow{});
    }

    struct NoFile
    {
        std::string name, typed, why;
    };

    class CannotOpen : public testing::TestWithParam<NoFile>
    {};

    TEST_P(CannotOpen, TellsWhyAndClosesTheOldOne)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        fs::create_directory(files.at("folder"));
        ASSERT_EQ(mkfifo(files.at("pipe").c_str(), 0600), 0);
        for (const char* button : {"Command4", "Command2"})
        {
            files.type("Text6", GetParam().typed);
            files.click(button);
            EXPECT_THAT(files.events(), ElementsAre(HasSubstr("can't be opened: " + GetParam().why + "."))) << button;
            EXPECT_FALSE(files.isMarkedOpen());
            EXPECT_THAT(files.items("List1"), ElementsAre(parkrunLine));
            files.type("Text9", "");   // which no race could have
            files.click("Command1");
            EXPECT_THAT(files.events(), ElementsAre("message: No race file is open."));
        }
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun());
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, CannotOpen,
                             testing::Values(NoFile{"no_folder", "none/ann.vtc", "No such file or directory"},
                                             NoFile{"a_file_as_folder", "races.vtc\\ann.vtc", "Not a directory"},
                                             NoFile{"too_long", std::string(300, 'x') + ".vtc", "File name too long"},
                                             NoFile{"nowhere",
                                                    std::string(100, 'x') + "/" + std::string(200, 'y') + "/ann.vtc",
                                                    "No such file or directory"}),
                             byName);

    TEST(OpenExisting, TakesALongPath)
    {
        OpenFiles files;
        const std::string deep = std::string(200, 'a') + "/" + std::string(200, 'b');
        fs::create_directories(files.at(deep));
        writeBytes(files.at(deep + "/races.vtc"), parkrun());
        files.type("Text6", deep + "\\races.vtc");
        files.click("Command4");
        EXPECT_THAT(files.items("List1"), ElementsAre(parkrunLine));
    }

    TEST(OpenExisting, TakesABlankForAName)
    {
        OpenFiles files;
        files.type("Text6", " ");
        files.click("Command4");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_TRUE(fs::exists(files.at(" ")));
        files.click("Command2");
        EXPECT_TRUE(fs::exists(files.at(" .vtc")));
    }

    TEST(Messages, HaveTitlesWhereSomethingFailed)
    {
        OpenFiles files;
        files.type("Text6", "none/ann.vtc");
        files.click("Command4");
        ASSERT_EQ(files.outside.messages.size(), 1U);
        EXPECT_EQ(files.outside.messages.back().title, "File not opened");
        files.openRaces(parkrun());
        {
            const FileSizeLimit full(100);
            files.click("Command1");
        }
        EXPECT_EQ(files.outside.messages.back().title, "Race not written");
        files.choose("persdat");
        files.type("Text6", "none/ann");
        files.click("Command2");
        EXPECT_EQ(files.outside.messages.back().title, "Data not saved");
        files.click("Command4");
        EXPECT_EQ(files.outside.messages.back().title, "File not opened");
    }

    TEST(Buttons, AreEnabledStepByStep)
    {
        OpenFiles files;
        // Add, Open New, Select, Omit, Replace: a letter for each that is enabled; and "open" for the mark
        const auto enabled = [&files] {
            std::string letters;
            for (const auto& [button, letter] : std::vector<std::pair<const char*, char>>{
                     {"Command1", 'A'}, {"Command2", 'N'}, {"Command5", 'S'}, {"Command7", 'O'}, {"Command8", 'R'}})
                if (files.isEnabled(button))
                    letters += letter;
            return letters + (files.isMarkedOpen() ? " open" : "");
        };
        EXPECT_EQ(enabled(), "");
        files.click("Command4");   // without a name
        EXPECT_EQ(enabled(), "");
        files.type("Text6", "races.vtc");
        EXPECT_EQ(enabled(), "N");
        writeBytes(files.at("races.vtc"), manyRaces(3));
        files.click("Command4");
        EXPECT_EQ(enabled(), "AN open");
        files.pick("List1", 0);
        EXPECT_EQ(enabled(), "ANSR open");
        files.click("Command5");
        EXPECT_EQ(enabled(), "ANSOR open");
        files.click("Command7");   // nothing is clicked in the new list, but listRow stays
        EXPECT_EQ(enabled(), "ANSOR open");
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_EQ(enabled(), "ANSO open");
        files.click("Command1");
        EXPECT_EQ(enabled(), "ANSO open");
        files.click("Command2");   // the same file, for the name has its ending
        EXPECT_EQ(enabled(), "ANSO open");
        files.choose("persdat");
        EXPECT_EQ(enabled(), "ANSO open");
        files.click("Command2");   // closes the race file, and leaves Add
        EXPECT_EQ(enabled(), "ANSO");
        files.type("Text6", "none/x");
        EXPECT_EQ(enabled(), "NSO");
        files.choose("races");
        files.click("Command4");   // can't be opened, and Add is enabled before that
        EXPECT_EQ(enabled(), "ANSO");
        files.close();
        files.open();
        EXPECT_EQ(enabled(), "");
    }

    TEST(OpenExisting, TakesNothingButFiles)
    {
        OpenFiles files;
        fs::create_directory(files.at("folder"));
        ASSERT_EQ(mkfifo(files.at("pipe").c_str(), 0600), 0);
        files.type("Text6", "folder");
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("can't be opened: Is a directory.")));
        files.type("Text6", "pipe");
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("can't be opened: It is no file.")));
    }

    TEST(Add, WritesTheRecordToTheByte)
    {
        OpenFiles files;
        files.type("Text6", "ann");
        files.click("Command2");
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.click("Command1");
        EXPECT_EQ(hexOf(readBytes(files.at("ann.vtc"))), hexOf(parkrun()));
        EXPECT_THAT(files.items("List1"), ElementsAre(parkrunLine));
        EXPECT_EQ(files.text("Text9"), "2");
        EXPECT_EQ(files.races().raceCount, 1);
        EXPECT_EQ(std::get<std::string>(files.races().raceTable[0][8]), "X");
        EXPECT_EQ(files.races().raceTable[1], RaceTableRow{});
        EXPECT_THAT(files.events(), IsEmpty());
    }

    TEST(Add, TakesTheNumberThatStandsThere)
    {
        OpenFiles files;
        files.openRaces(manyRaces(2));
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.type("Text9", "1");
        files.click("Command1");
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun() + manyRaces(2).substr(84));
        EXPECT_EQ(files.text("Text9"), "3");
        files.type("Text9", "5");   // leaves a gap of two
        files.click("Command1");
        const std::string bytes = readBytes(files.at("races.vtc"));
        EXPECT_EQ(bytes.substr(168, 168), std::string(168, '\0'));
        EXPECT_EQ(bytes.substr(336, 2), std::string("\x05\0", 2));
        EXPECT_EQ(bytes.size(), 420U);
        files.click("Command4");
        EXPECT_EQ(files.items("List1")[2], zeroLine);
        EXPECT_EQ(files.items("List1").size(), 5U);
    }

    TEST(Add, AfterAnIncompleteRecordRounds)
    {
        OpenFiles files;
        files.openRaces(parkrun() + "x");
        files.enterRace("", "1", "", "5", "Option3", "");
        files.click("Command1");
        EXPECT_EQ(fs::file_size(files.at("races.vtc")), 168U);
        EXPECT_EQ(files.text("Text9"), "3");
    }

    class BadNumber : public testing::TestWithParam<const char*>
    {};

    TEST_P(BadNumber, IsAFaultBeforeAnythingIsWritten)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.type("Text9", GetParam());
        files.click("Command1");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("while adding a race to the race file.")));
        files.type("Text9", "2");
        files.type("Text3", "1e39");
        files.click("Command1");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("a number is too large for the file")));
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun());
        EXPECT_EQ(files.items("List1").size(), 1U);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, BadNumber, testing::Values("0", "-1", "40000", "", "x", "1e999"),
                             [](const auto& row) { return "row" + std::to_string(row.index); });

    TEST(Add, OfACommentWithEveryByteKeepsWhatShows)
    {
        OpenFiles files;
        std::string record = parkrun();
        for (int i = 0; i < 60; ++i)
            record[static_cast<std::size_t>(24 + i)] = static_cast<char>(i + 196);
        files.openRaces(record);
        const std::string comment = std::get<std::string>(files.races().raceTable[1][12]);
        files.enterRace("", "19", "20.5", "5", "Option3", comment);
        files.type("Text9", "1");
        files.click("Command1");
        EXPECT_EQ(hexOf(readBytes(files.at("races.vtc"))), hexOf(record));
    }

    TEST(Add, OfEveryByteThereIsShowsBlanksForTheControlBytes)
    {
        OpenFiles files;
        std::string bytes;
        for (int n = 0; n < 5; ++n)
        {
            bytes += parkrun();
            for (int i = 0; i < 60; ++i)
                bytes[static_cast<std::size_t>(84 * n + 24 + i)] = static_cast<char>(60 * n + i);
        }
        files.openRaces(bytes);
        ASSERT_EQ(files.items("List1").size(), 5U);
        EXPECT_EQ(readBytes(files.at("races.vtc")), bytes);
        std::string shown = bytes;
        for (char& c : shown)
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
                c = ' ';
        for (int n = 0; n < 5; ++n)   // what the table holds is typed again
        {
            const auto row = static_cast<std::size_t>(n);
            files.enterRace("", "19", "20.5", "5", "Option3",
                            std::get<std::string>(files.races().raceTable[row + 1][12]));
            files.type("Text9", std::to_string(n + 1));
            files.click("Command1");
            EXPECT_EQ(hexOf(readBytes(files.at("races.vtc")).substr(row * 84 + 24, 60)),
                      hexOf(shown.substr(row * 84 + 24, 60)));
        }
        EXPECT_THAT(files.events(), IsEmpty());
    }

    TEST(Add, KeepsControlCharactersOfAComment)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.enterRace("", "19", "20.5", "5", "Option3", "a\tb\x7f");
        files.click("Command1");
        EXPECT_EQ(readBytes(files.at("races.vtc")).substr(84 + 24, 5), "a\tb\x7f ");
        EXPECT_TRUE(files.items("List1").back().ends_with("  a b" + std::string(12, ' ')));
    }

    TEST(Write, ThatFailsLeavesWhatWasThere)
    {
        OpenFiles files;
        files.openRaces(manyRaces(2));
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        {
            const FileSizeLimit full(200);
            files.click("Command1");
            EXPECT_THAT(files.events(), ElementsAre(HasSubstr("could not be written to")));
            EXPECT_EQ(readBytes(files.at("races.vtc")), manyRaces(2));
            files.type("Text9", "30000");
            files.click("Command1");
            EXPECT_THAT(files.events(), ElementsAre(HasSubstr("File too large")));
        }
        EXPECT_EQ(readBytes(files.at("races.vtc")), manyRaces(2));
        EXPECT_EQ(files.items("List1").size(), 2U);
        EXPECT_EQ(files.races().raceCount, 2);
        files.type("Text9", "3");
        files.click("Command1");
        EXPECT_EQ(readBytes(files.at("races.vtc")).substr(0, 168), manyRaces(2));
    }

    TEST(Write, OfPartOfARecordPutsTheOldOneBack)
    {
        OpenFiles files;
        files.openRaces(manyRaces(2));
        files.type("Text9", "2");
        {
            const FileSizeLimit full(100);   // reached within the second record
            files.click("Command1");
        }
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("could not be written")));
        EXPECT_EQ(hexOf(readBytes(files.at("races.vtc"))), hexOf(manyRaces(2)));
    }

    TEST(Write, ToAFileThatIsGoneIsTold)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        fs::remove(files.at("races.vtc"));
        files.click("Command1");
        EXPECT_THAT(files.events(),
                    ElementsAre("message: The race could not be written to " + files.at("races.vtc").string() +
                                ": the file has been removed or replaced since it was opened; open it again."));
        EXPECT_EQ(files.items("List1").size(), 1U);
        EXPECT_FALSE(fs::exists(files.at("races.vtc")));
    }

    TEST(Write, ToAFileThatHasBeenReplacedIsTold)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        writeBytes(files.at("newer"), manyRaces(3));
        fs::rename(files.at("newer"), files.at("races.vtc"));
        files.click("Command1");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("removed or replaced since it was opened")));
        EXPECT_EQ(readBytes(files.at("races.vtc")), manyRaces(3));
        files.click("Command4");
        files.click("Command1");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_EQ(readBytes(files.at("races.vtc")).size(), 84U * 4);
    }

    TEST(Write, ToAFileThatMayOnlyBeReadIsTold)
    {
        OpenFiles files;
        fs::permissions(files.folder.path, fs::perms::all);
        writeBytes(files.at("races.vtc"), parkrun());
        fs::permissions(files.at("races.vtc"), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
        const WithoutRights mortal;
        files.type("Text6", "races.vtc");
        files.click("Command4");
        EXPECT_THAT(files.items("List1"), ElementsAre(parkrunLine));
        files.click("Command1");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("could not be written to " + files.at("races.vtc").string() +
                                                          ": Permission denied.")));
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun());
    }
}
