// Replacing races, and what an added one shows until the file is opened again.

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

    TEST(Replace, AsksWithTheRowThatWasClicked)
    {
        OpenFiles files;
        files.openRaces(manyRaces(3));
        files.pick("List1", 1);
        EXPECT_EQ(files.text("Text7"), "2");
        files.type("Text7", "3");
        files.click("Command8");
        EXPECT_THAT(files.events(), ElementsAre("question: This action will replace race number 2.  Do you wish to "
                                                "continue?"));
        EXPECT_EQ(readBytes(files.at("races.vtc")), manyRaces(3));
        EXPECT_TRUE(files.isEnabled("Command8"));
    }

    TEST(Replace, WritesAndOpensTheFileAnew)
    {
        OpenFiles files;
        files.openRaces(manyRaces(3));
        files.pick("List1", 0);
        files.click("Command5");
        files.pick("List1", 0);
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun() + manyRaces(3).substr(84));
        EXPECT_EQ(files.items("List1").size(), 3U);
        EXPECT_EQ(files.items("List1").front(), parkrunLine);
        EXPECT_FALSE(files.isEnabled("Command8"));
        EXPECT_EQ(files.races().nextSlot, 0);
        EXPECT_EQ(files.races().pickedCount, 0);
        EXPECT_EQ(files.races().pickOrder[1], 1);
        EXPECT_EQ(files.text("Text9"), "4");
    }

    TEST(Replace, BeyondTheLastRaceAsksNothing)
    {
        OpenFiles files;
        files.openRaces(manyRaces(2));
        files.pick("List1", 0);
        files.type("Text7", "4");
        files.enterRace("", "1", "", "5", "Option3", "");
        files.click("Command8");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_EQ(fs::file_size(files.at("races.vtc")), 336U);
        EXPECT_EQ(files.items("List1").size(), 4U);
    }

    TEST(Replace, WithANumberThatIsNoneAsksAndFaults)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.pick("List1", 0);
        for (const char* number : {"0", "", "-1"})
        {
            files.type("Text7", number);
            files.outside.answers = {true};
            files.click("Command8");
            EXPECT_THAT(files.events(), ElementsAre(HasSubstr("question"), HasSubstr("fault"))) << number;
        }
        files.type("Text7", "40000");
        files.click("Command8");
        EXPECT_THAT(files.events(),
                    ElementsAre("fault: The calculation stopped: a race number outside 1 to 32767 while "
                                "replacing a race of the race file."));
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun());
    }

    TEST(Replace, AfterOpenNewOpensTheNameAsTyped)
    {
        OpenFiles files;
        files.type("Text6", "ann");
        files.click("Command2");
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.click("Command1");
        files.pick("List1", 0);
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_EQ(readBytes(files.at("ann.vtc")), parkrun());
        EXPECT_EQ(readBytes(files.at("ann")), "");
        EXPECT_THAT(files.items("List1"), ElementsAre(zeroLine));
    }

    TEST(Replace, AfterTheFolderHasChangedOpensTheNameThere)
    {
        OpenFiles files;
        fs::create_directory(files.at("sub"));
        files.close();
        files.open();
        files.openRaces(manyRaces(2));
        files.pick("List1", 0);
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.pickNamed("Dir1", "sub");
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun() + manyRaces(2).substr(84));
        EXPECT_EQ(readBytes(files.at("sub/races.vtc")), "");
        EXPECT_THAT(files.items("List1"), ElementsAre(zeroLine));
    }

    TEST(Replace, WithADecimalRoundsAfterTheQuestion)
    {
        OpenFiles files;
        files.openRaces(manyRaces(2));
        files.pick("List1", 0);
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.type("Text7", "2.5");   // above the count: no question, and then to the even 2
        files.click("Command8");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_EQ(readBytes(files.at("races.vtc")).substr(0, 84), manyRaces(1));
        EXPECT_EQ(readBytes(files.at("races.vtc")).size(), 168U);
        EXPECT_EQ(hexOf(readBytes(files.at("races.vtc")).substr(84, 2)), "0200");
        EXPECT_EQ(readBytes(files.at("races.vtc")).substr(86), parkrun().substr(2));
    }

    TEST(Replace, WithANumberBeyondADoubleFaultsBeforeTheQuestion)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.pick("List1", 0);
        files.type("Text7", "1e999");
        files.click("Command8");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("while replacing a race of the race file.")));
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun());
    }

    TEST(Replace, InALongFileWritesAndFaultsWhileItIsListed)
    {
        OpenFiles files;
        files.openRaces(manyRaces(101));
        files.pick("List1", 0);
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.outside.forget();
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("question"), HasSubstr("race 100 of the race file")));
        EXPECT_EQ(readBytes(files.at("races.vtc")), parkrun() + manyRaces(101).substr(84));
        EXPECT_EQ(files.items("List1").size(), 99U);
        EXPECT_EQ(files.items("List1").front(), parkrunLine);
        EXPECT_FALSE(files.isEnabled("Command8"));
    }

    TEST(Replace, InAFileThatIsGoneLeavesTheListAndTheButton)
    {
        OpenFiles files;
        files.openRaces(manyRaces(2));
        files.pick("List1", 0);
        fs::remove(files.at("races.vtc"));
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("question"), HasSubstr("removed or replaced")));
        EXPECT_EQ(files.items("List1").size(), 2U);
        EXPECT_TRUE(files.isEnabled("Command8"));
        EXPECT_FALSE(fs::exists(files.at("races.vtc")));
    }

    TEST(Replace, InAFileThatMayOnlyBeReadIsTold)
    {
        OpenFiles files;
        fs::permissions(files.folder.path, fs::perms::all);
        writeBytes(files.at("races.vtc"), manyRaces(2));
        fs::permissions(files.at("races.vtc"), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
        const WithoutRights mortal;
        files.type("Text6", "races.vtc");
        files.click("Command4");
        files.pick("List1", 1);
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("question"), HasSubstr("Permission denied.")));
        EXPECT_EQ(readBytes(files.at("races.vtc")), manyRaces(2));
        EXPECT_EQ(files.items("List1").size(), 2U);
    }

    TEST(Replace, WithoutAnOpenFileIsTold)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.pick("List1", 0);
        files.type("Text6", "other");
        files.type("Text7", "0");   // which no race could have
        files.outside.answers = {true};
        files.click("Command8");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("question"), "message: No race file is open."));
    }

    TEST(AddedRace, ReachesItsRowOnlyWhenTheFileIsOpenedAgain)
    {
        OpenFiles files;
        files.openRaces(manyRaces(1));
        files.enterRace("", "19", "20.5", "5", "Option3", "Parkrun, wet");
        files.click("Command1");
        EXPECT_TRUE(files.items("List1").back().ends_with("Parkrun, wet   "));
        files.pick("List1", 0);
        files.click("Command5");
        EXPECT_EQ(files.items("List1").back(), blankLine);
        files.pick("List1", 1);
        files.click("Command5");
        EXPECT_EQ(files.row(1).Text2.text, "");
        EXPECT_TRUE(files.row(1).Check1.ticked);
        EXPECT_EQ(files.items("List1").back(), " 2" + std::string(68, ' '));
        files.click("Command4");
        EXPECT_TRUE(files.items("List1").back().ends_with("Parkrun, wet   "));
    }
}
