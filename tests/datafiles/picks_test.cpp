// Picking races into the rows of the main form, and omitting them.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "datafiles/race_list.h"
#include "datafiles/race_record.h"
#include "hex_records.h"
#include "open_files.h"

namespace
{
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

    /// Eight races, race n with n minutes over n of unit (n - 1) mod 6 + 1.
    std::string eightRaces()
    {
        std::string bytes;
        for (int n = 1; n <= 8; ++n)
        {
            const std::string number = std::to_string(n);
            bytes += bytesOf(recordOf({number, "1", number, "2.5", number, (n - 1) % 6 + 1, "race " + number}));
        }
        return bytes;
    }

    struct Picking : testing::Test
    {
        OpenFiles files;

        void SetUp() override { files.openRaces(eightRaces()); }

        void selectRow(int row)
        {
            files.pick("List1", row - 1);
            files.click("Command5");
        }
        void omitRow(int row)
        {
            files.pick("List1", row - 1);
            files.click("Command7");
        }
        /// The selection column of the list.
        std::string marks()
        {
            std::string all;
            for (const std::string& line : files.items("List1"))
                all += line.substr(0, 2);
            return all;
        }
        /// The minutes of the main form's rows.
        std::vector<std::string> minutes()
        {
            std::vector<std::string> texts;
            for (std::size_t i = 0; i < 5; ++i)
                texts.push_back(files.row(i).Text2.text);
            return texts;
        }
    };

    TEST_F(Picking, GoesIntoTheNextRow)
    {
        selectRow(3);
        const RaceControls& row = files.row(0);
        EXPECT_TRUE(row.Check1.ticked);
        EXPECT_EQ(row.Text1.text, "1");
        EXPECT_EQ(row.Text2.text, "3");
        EXPECT_EQ(row.Text3.text, "2.5");
        EXPECT_EQ(row.Text4.text, "3");
        EXPECT_TRUE(row.Option3.chosen);
        EXPECT_EQ(files.races().nextSlot, 1);
        EXPECT_EQ(files.races().pickedCount, 1);
        EXPECT_EQ(files.races().pickOrder[3], 1);
        EXPECT_EQ(marks(), "     1          ");
        EXPECT_TRUE(files.isEnabled("Command7"));
        EXPECT_EQ(files.get<ListBox>("List1").selected, -1);
    }

    TEST_F(Picking, SetsTheUnitOfEachFlag)
    {
        for (int row = 1; row <= 5; ++row)
            selectRow(row);
        EXPECT_TRUE(files.row(0).Option1.chosen);
        EXPECT_TRUE(files.row(1).Option2.chosen);
        EXPECT_TRUE(files.row(2).Option3.chosen);
        EXPECT_TRUE(files.row(3).Option4.chosen);
        EXPECT_TRUE(files.row(4).Option5.chosen);
        omitRow(1);
        selectRow(6);
        EXPECT_TRUE(files.row(0).Option6.chosen);
        EXPECT_FALSE(files.row(0).Option1.chosen);
    }

    TEST_F(Picking, IsRefusedForASixthRace)
    {
        for (int row = 1; row <= 5; ++row)
            selectRow(row);
        EXPECT_EQ(files.races().nextSlot, 0);
        EXPECT_THAT(files.events(), IsEmpty());
        selectRow(6);
        EXPECT_THAT(files.events(), ElementsAre("beep", "message: Already picked 5 races - omit one first."));
        EXPECT_EQ(marks(), " 1 2 3 4 5      ");
        EXPECT_EQ(files.races().pickedCount, 5);
    }

    TEST_F(Picking, FillsAnOmittedRowFirstAndThenTheOneBehindItEvenIfTaken)
    {
        for (int row = 1; row <= 5; ++row)
            selectRow(row);
        omitRow(3);
        EXPECT_THAT(minutes(), ElementsAre("1", "2", "", "4", "5"));
        EXPECT_FALSE(files.row(2).Check1.ticked);
        EXPECT_EQ(files.races().pickedCount, 4);
        EXPECT_EQ(files.races().nextSlot, 2);
        EXPECT_EQ(marks(), " 1 2   4 5      ");
        selectRow(6);
        EXPECT_THAT(minutes(), ElementsAre("1", "2", "6", "4", "5"));
        omitRow(1);
        omitRow(6);   // row 3 is to be filled next
        selectRow(7);
        selectRow(8);   // goes to row 4, which race 4 had
        EXPECT_THAT(minutes(), ElementsAre("", "2", "7", "8", "5"));
        EXPECT_EQ(files.races().pickOrder[4], 0);
        EXPECT_EQ(files.races().pickOrder[8], 4);
        EXPECT_EQ(marks(), "   2     5   3 4");
        EXPECT_EQ(files.races().pickedCount, 5);
    }

    TEST_F(Picking, TheSameRaceTwiceTakesTwoRowsAndRemembersTheLast)
    {
        selectRow(2);
        selectRow(2);
        EXPECT_THAT(minutes(), ElementsAre("2", "2", "", "", ""));
        EXPECT_EQ(files.races().pickOrder[2], 2);
        EXPECT_EQ(files.races().pickedCount, 2);
        EXPECT_EQ(marks(), "   2            ");
        omitRow(2);
        EXPECT_THAT(minutes(), ElementsAre("2", "", "", "", ""));
    }

    TEST_F(Picking, OmittingWhatIsNotSelectedIsRefused)
    {
        selectRow(1);
        files.outside.forget();
        omitRow(2);
        EXPECT_THAT(files.events(), ElementsAre("beep", "message: Not already selected."));
        EXPECT_EQ(files.races().pickedCount, 1);
        EXPECT_EQ(marks(), " 1              ");
    }

    TEST_F(Picking, OmittingLeavesTheUnit)
    {
        selectRow(3);
        omitRow(3);
        const RaceControls& row = files.row(0);
        for (const TextBox* box : {&row.Text1, &row.Text2, &row.Text3, &row.Text4})
            EXPECT_EQ(box->text, "");
        EXPECT_TRUE(row.Option3.chosen);
        EXPECT_FALSE(row.Check1.ticked);
    }

    TEST_F(Picking, MarksSurviveTheOpeningAndComeBackAtTheFirstSelect)
    {
        selectRow(4);
        selectRow(5);
        files.click("Command4");
        EXPECT_EQ(marks(), std::string(16, ' '));
        EXPECT_EQ(files.races().nextSlot, 0);
        EXPECT_EQ(files.races().pickedCount, 0);
        selectRow(8);
        EXPECT_EQ(marks(), "         2     1");   // race 4 has lost row 1
        omitRow(5);                               // an old mark: there are fewer picked than none
        EXPECT_EQ(files.races().pickedCount, 0);
        EXPECT_EQ(files.races().nextSlot, 1);
        EXPECT_EQ(marks(), "               1");
    }

    TEST_F(Picking, KeepsTheStateWhileTheFormIsClosed)
    {
        selectRow(4);
        files.close();
        files.open();
        EXPECT_EQ(files.races().pickedCount, 1);
        EXPECT_EQ(files.races().pickOrder[4], 1);
        EXPECT_FALSE(files.isMarkedOpen());
        EXPECT_FALSE(files.isEnabled("Command1"));
        EXPECT_FALSE(files.isEnabled("Command5"));
        EXPECT_FALSE(files.isEnabled("Command7"));
        EXPECT_FALSE(files.isEnabled("Command8"));
    }

    TEST_F(Picking, OmittingRightAfterTheOpeningCountsBelowNone)
    {
        selectRow(4);
        files.click("Command4");
        omitRow(4);   // the mark is still there, the count is not
        EXPECT_EQ(files.races().pickedCount, -1);
        EXPECT_EQ(files.races().nextSlot, 0);
        EXPECT_FALSE(files.row(0).Check1.ticked);
        for (int row = 1; row <= 6; ++row)   // so that six fit
            selectRow(row);
        EXPECT_EQ(files.races().pickedCount, 5);
        EXPECT_EQ(marks(), "   2 3 4 5 1    ");
    }

    TEST_F(Picking, AfterOpenNewTakesTheRowOfAnEmptyTable)
    {
        files.pick("List1", 2);
        files.type("Text6", "new");
        files.click("Command2");
        files.click("Command5");
        EXPECT_TRUE(files.row(0).Check1.ticked);
        EXPECT_EQ(files.row(0).Text2.text, "");
        EXPECT_EQ(files.races().pickOrder[3], 1);
        EXPECT_EQ(files.races().raceCount, 8);   // Open New leaves it
        EXPECT_EQ(files.items("List1").size(), 8U);
        EXPECT_EQ(files.items("List1")[2], " 1" + std::string(68, ' '));
    }

    TEST_F(Picking, AfterAFileWithoutAWholeRecordListsNothing)
    {
        files.pick("List1", 2);
        files.openRaces(eightRaces().substr(0, 83));
        EXPECT_THAT(files.items("List1"), IsEmpty());
        files.click("Command5");
        EXPECT_TRUE(files.row(0).Check1.ticked);
        EXPECT_THAT(files.items("List1"), IsEmpty());
        EXPECT_EQ(files.races().pickedCount, 1);
    }

    TEST_F(Picking, ListsWholeRecordsOfAFractionalCount)
    {
        files.openRaces(eightRaces().substr(0, 3 * 84 + 83));
        EXPECT_EQ(files.items("List1").size(), 3U);
        selectRow(3);
        EXPECT_EQ(files.items("List1").size(), 3U);
        EXPECT_EQ(marks(), "     1");
    }

    TEST_F(Picking, TakesTheFlagsOfADamagedRecordInTheirOrder)
    {
        std::string bytes = eightRaces().substr(0, 3 * 84);
        bytes.replace(18, 6, "X  X  ");         // two: the last one stays on
        bytes.replace(84 + 18, 6, "x     ");    // another letter is no mark
        bytes.replace(168 + 18, 6, "      ");   // none
        files.openRaces(bytes);
        setChosen(files.row(1).Option5, true);
        setChosen(files.row(2).Option6, true);
        for (int row = 1; row <= 3; ++row)
            selectRow(row);
        EXPECT_TRUE(files.row(0).Option4.chosen);
        EXPECT_FALSE(files.row(0).Option1.chosen);
        EXPECT_TRUE(files.row(1).Option5.chosen);
        EXPECT_TRUE(files.row(2).Option6.chosen);
    }

    TEST(PickingFromALongFile, FaultsWhileTheListIsBuiltAnew)
    {
        OpenFiles files;
        std::string bytes;
        for (int i = 0; i < 13; ++i)
            bytes += eightRaces();
        files.openRaces(bytes);
        files.outside.forget();
        files.pick("List1", 98);
        files.click("Command5");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("an index out of range while listing race 100")));
        EXPECT_EQ(files.items("List1").size(), 99U);
        EXPECT_EQ(files.items("List1").back().substr(0, 2), " 1");
        EXPECT_EQ(files.races().pickedCount, 1);
        EXPECT_FALSE(files.isEnabled("Command7"));
    }

    TEST(PickingFromALongFile, HasNoRow100)
    {
        OpenFiles files;
        std::string bytes;
        for (int i = 0; i < 12; ++i)
            bytes += eightRaces();
        files.openRaces(bytes);
        for (int i = 0; i < 4; ++i)   // races 97 to 100
            files.click("Command1");
        files.outside.forget();
        files.pick("List1", 99);
        EXPECT_EQ(files.text("Text7"), "100");
        files.click("Command5");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("an index out of range while selecting a race")));
        EXPECT_EQ(files.races().pickedCount, 0);
        EXPECT_FALSE(files.row(0).Check1.ticked);
    }

    TEST(EnterPick, LeavesRowZeroAlone)
    {
        RaceFileState file;
        file.pickOrder[0] = 1;
        file.pickOrder[7] = 1;
        file.listRow = 3;
        enterPick(file);
        EXPECT_EQ(file.pickOrder[0], 1);
        EXPECT_EQ(file.pickOrder[3], 1);
        EXPECT_EQ(file.pickOrder[7], 0);
    }
}
