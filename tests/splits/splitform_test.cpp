#include "splits/splitform_form.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "open_splits.h"

namespace
{
    using testing::ElementsAre;

    TEST(Opened, ShowsItsDesignRowsAnalysed)
    {
        OpenSplits splits;
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15"));
        EXPECT_THAT(splits.row(1), ElementsAre("400", "1", "15"));
        EXPECT_EQ(splits.row(2), blankRow);
        EXPECT_THAT(splits.row(3), ElementsAre("400", "1", "25"));
        EXPECT_EQ(splits.row(4), blankRow);
        EXPECT_THAT(splits.row(5), ElementsAre("300", "1", "5"));
        EXPECT_EQ(splits.row(26), blankRow);
        EXPECT_TRUE(splits.isOn("opsplitm"));
        EXPECT_TRUE(splits.isOn("opmix"));
        EXPECT_EQ(findForm(splits.program, "splitform")->title, "Generic Uneven Split Analysis Tool");

        EXPECT_EQ(splits.label("minmi(0)"), "    5:02  ");   // 75 s * 1609.344 / 400 = 301.752
        EXPECT_EQ(splits.label("sec4(5)"), "    1:27  ");    // 65 s * 4 / 3 = 86.67
        EXPECT_EQ(splits.label("minmi(2)"), "");
        EXPECT_EQ(splits.label("totracedis"), "1500");
        EXPECT_EQ(splits.label("totracetim"), "    5:00  ");
        EXPECT_EQ(splits.label("calctott"), "    4:55  ");    // 294.784
        EXPECT_EQ(splits.label("tdiff"), "       5.2");       // 5.2157
        EXPECT_EQ(splits.label("paceminmi"), "    5:22  ");   // 321.87
        EXPECT_EQ(splits.label("pacesec4"), "    1:20  ");
        EXPECT_EQ(splits.label("potpaceminmi"), "    5:16  ");   // 316.27
        EXPECT_EQ(splits.label("potpacesec4"), "    1:19  ");    // 78.61
        EXPECT_EQ(splits.label("pcts"), "107.8");                // 100 / 0.927862
        EXPECT_EQ(splits.label("calcsm(0)"), "    1:19  ");      // 294.784 * 400 / 1500
        EXPECT_EQ(splits.label("calcsm(5)"), "      59.0");      // 58.957
        EXPECT_EQ(splits.label("calcsm(2)"), "");
        EXPECT_EQ(splits.label("s5000"), "   18:33  ");   // 0.927862 * 1200 = 1113.4
        EXPECT_EQ(splits.label("s400"), " 67.2");         // 0.927862 * 72.38377
        EXPECT_TRUE(splits.outside.events.empty());
    }

    TEST(Opened, SaysTheFixedTexts)
    {
        OpenSplits splits;
        EXPECT_EQ(splits.label("gridHeading"),
                  "Split   Distance  Minutes  Seconds   Min/mile  Sec/400 m    Even Split Times");
        EXPECT_EQ(splits.label("raceHeading"),
                  "400      800      1500    1600      mile      3000      3200        5000      10000");
        EXPECT_EQ(splits.label("Label10"), "Calculations done automatically with data changes");
        EXPECT_EQ(splits.label("unitsHeading"), "Distance Units");
        EXPECT_EQ(splits.label("methodHeading"), "Method");
        EXPECT_EQ(splits.label("equivalentHeading"), "Equivalent Potential Race Times");
        EXPECT_EQ(splits.label("splitno(26)"), "27");
        const std::vector<std::pair<const char*, const char*>> buttons{
            {"delbut(0)", "D"},   {"Command1", ""},          {"Command2", "Close"},
            {"Command4", "Help"}, {"Command5", "Clear All"}, {"Command3", "Duplicate last two consecutive rows"}};
        for (const auto& [name, caption] : buttons)
            EXPECT_EQ(splits.get<Button>(name).caption, caption);
        const std::vector<std::pair<const char*, const char*>> options{
            {"opsplitmi", "miles"}, {"opsplitkm", "kilometers"}, {"opsplitm", "meters"},
            {"opwork", "Method 1"}, {"openergy", "Method 2"},    {"opmix", "70/30 Mix"}};
        for (const auto& [name, caption] : options)
            EXPECT_EQ(splits.get<OptionButton>(name).caption, caption);
        const std::vector<std::pair<const char*, const char*>> headings{
            {"totracedis", "Total Distance"},
            {"totracetim", "Total Time"},
            {"calctott", "Potential Time"},
            {"tdiff", "Difference"},
            {"paceminmi", "Pace (min/mile)"},
            {"potpaceminmi", "Pace (min/mile)"},
            {"pacesec4", "Pace (sec/400 m)"},
            {"potpacesec4", "Pace (sec/400 m)"},
            {"pcts", "Percent Speed of Calculated Profile"}};
        for (const auto& [name, heading] : headings)
            EXPECT_EQ(splits.get<Label>(name).heading, heading);
    }

    TEST(Opened, WithoutACurveFaultsAndIsThereAllTheSame)
    {
        PlanningProgram program("splitform");
        program.state().curve = {};
        program.open();
        EXPECT_TRUE(program.isOpen());
        ASSERT_EQ(program.outside.faults.size(), 1U);
        EXPECT_THAT(program.outside.faults.front().text, testing::HasSubstr("while analysing the splits"));
        EXPECT_EQ(program.label("minmi(0)"), "    5:02  ") << "shown before the analysis";
        EXPECT_EQ(program.label("calctott"), "");
    }

    TEST(Typing, ShowsTheRowsPaceAndAnalyses)
    {
        OpenSplits splits;
        splits.type("splitsec(0)", "10");
        EXPECT_EQ(splits.label("minmi(0)"), "    4:42  ");   // 70 * 4.02336 = 281.6
        EXPECT_EQ(splits.label("totracetim"), "    4:55  ");
        splits.type("splitmin(0)", "");
        EXPECT_EQ(splits.label("sec4(0)"), "      10.0");
        EXPECT_EQ(splits.label("totracetim"), "    3:55  ");
    }

    TEST(Typing, ABlankSecondShowsNoPaceAndAnalysesNothing)
    {
        OpenSplits splits;
        splits.type("splitsec(0)", "");
        EXPECT_EQ(splits.label("minmi(0)"), "");
        EXPECT_EQ(splits.label("totracetim"), "    5:00  ");
        splits.click("Command1");
        EXPECT_EQ(splits.label("totracetim"), "    4:45  ") << "the minute alone counts";
        EXPECT_EQ(splits.label("minmi(0)"), "");
        EXPECT_TRUE(splits.outside.events.empty());
    }

    TEST(Typing, ANewRowIsMissedWhileItHasNoTime)
    {
        OpenSplits splits;
        splits.type("splitdis(6)", "400");
        EXPECT_TRUE(splits.said().empty()) << "its seconds are blank";
        splits.type("splitsec(0)", "11");
        EXPECT_THAT(splits.said(), ElementsAre("Missing times for entered split distance."));
        EXPECT_EQ(splits.label("minmi(0)"), "    4:46  ") << "of the row itself";
        EXPECT_EQ(splits.label("totracetim"), "    5:00  ") << "as it was";
        splits.type("splitsec(6)", "80");
        EXPECT_EQ(splits.label("totracetim"), "    6:16  ");
        EXPECT_EQ(splits.label("totracedis"), "1900");
    }

    TEST(Typing, RefusesADistanceByItsRow)
    {
        OpenSplits splits;
        splits.type("splitdis(3)", "100001");
        EXPECT_THAT(splits.said(), ElementsAre("Distance too big in row 4.  Check units as well as number."));
        splits.type("splitdis(3)", "400");
        EXPECT_TRUE(splits.said().empty());
    }

    TEST(Typing, ATimeOfZeroFaultsWithoutABox)
    {
        OpenSplits splits;
        splits.type("splitmin(0)", "0");
        splits.type("splitsec(0)", "0");
        ASSERT_EQ(splits.outside.faults.size(), 1U);
        EXPECT_TRUE(splits.outside.faults.front().keystroke);
        EXPECT_EQ(splits.outside.faults.front().where, "splitform.splitsec(0)");
        EXPECT_EQ(splits.label("minmi(0)"), "       0.0");
    }

    TEST(Typing, EveryTextInEveryBox)
    {
        OpenSplits splits;
        for (const char* box : {"splitdis(0)", "splitmin(0)", "splitsec(0)", "splitdis(26)", "splitsec(26)"})
            for (const std::string& text :
                 {std::string("abc"), std::string("1e999"), std::string("-1e999"), std::string("-5"),
                  std::string("1e-320"), std::string("1e308"), std::string("0"), std::string(5000, '9'),
                  std::string("\0x", 2), std::string(" 75 ")})
            {
                splits.type(box, text);
                for (const FaultReport& fault : splits.outside.faults)
                    EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text;
                splits.outside.forget();
            }
    }

    TEST(Units, ReadTheSameNumbersAnew)
    {
        OpenSplits splits;
        splits.choose("opsplitkm");
        EXPECT_EQ(splits.text("splitdis(0)"), "400") << "not converted";
        // 400 km a row: one refusal of the click and one of each filled row
        EXPECT_THAT(splits.said(), ElementsAre("Distance too big in row 1.  Check units as well as number.",
                                               "Distance too big in row 1.  Check units as well as number.",
                                               "Distance too big in row 1.  Check units as well as number.",
                                               "Distance too big in row 1.  Check units as well as number.",
                                               "Distance too big in row 1.  Check units as well as number."));
        EXPECT_EQ(splits.label("minmi(0)"), "       0.3") << "75 s * 1.609344 / 400";
        EXPECT_EQ(splits.label("totracedis"), "1500");
        for (int row : {1, 3, 5})
            splits.click(at("delbut", row));
        splits.outside.forget();
        splits.enterRow(0, "1.5", "5", "");
        splits.type("splitsec(0)", "0");
        EXPECT_EQ(splits.label("totracedis"), "  1.500");
        splits.choose("opsplitmi");
        EXPECT_EQ(splits.label("totracedis"), "  1.500");
        EXPECT_EQ(splits.label("minmi(0)"), "    3:20  ");
        splits.choose("opsplitm");
        EXPECT_EQ(splits.label("totracedis"), "1.5");
    }

    TEST(Methods, AreAnalysedAtOnce)
    {
        OpenSplits splits;
        splits.choose("opwork");
        EXPECT_EQ(splits.label("tdiff"), "       5.2");   // 300 - 294.830
        splits.enterRow(0, "400", "2", "15");
        splits.choose("opwork");
        const std::string byMethod1 = splits.label("calctott");
        splits.choose("openergy");
        EXPECT_NE(splits.label("calctott"), byMethod1);
        splits.choose("opmix");
        EXPECT_TRUE(splits.isOn("opmix"));
        EXPECT_FALSE(splits.isOn("openergy"));
    }

    TEST(Delete, EmptiesARowAndAnalyses)
    {
        OpenSplits splits;
        splits.click("delbut(3)");
        EXPECT_EQ(splits.row(3), blankRow);
        EXPECT_EQ(splits.label("minmi(3)"), "");
        EXPECT_EQ(splits.label("calcsm(3)"), "");
        EXPECT_EQ(splits.label("totracedis"), "1100");
        EXPECT_TRUE(splits.outside.events.empty());
    }

    TEST(Delete, OfTheLastRowAsksForData)
    {
        OpenSplits splits;
        for (int row : {0, 1, 3})
            splits.click(at("delbut", row));
        EXPECT_TRUE(splits.said().empty());
        splits.click("delbut(5)");
        EXPECT_THAT(splits.said(), ElementsAre("Please enter some data."));
        EXPECT_EQ(splits.label("totracedis"), "300") << "as it was";
    }

    TEST(ClearAll, NeverReachesTheAnalysis)
    {
        OpenSplits splits;
        splits.click("Command5");
        for (int i = 0; i < 27; ++i)
        {
            EXPECT_EQ(splits.row(i), blankRow);
            EXPECT_EQ(splits.label(at("minmi", i)), "");
        }
        EXPECT_EQ(splits.label("totracedis"), "1500");
        EXPECT_EQ(splits.label("calcsm(0)"), "    1:19  ");
        EXPECT_TRUE(splits.outside.events.empty());
    }

    TEST(Duplicate, CopiesTheTwoRowsBeforeTheFirstGap)
    {
        OpenSplits splits;
        splits.type("splitsec(1)", "16");
        splits.click("Command3");
        EXPECT_THAT(splits.row(2), ElementsAre("400", "1", "15"));
        EXPECT_THAT(splits.row(3), ElementsAre("400", "1", "16")) << "overwritten";
        EXPECT_EQ(splits.row(4), blankRow);
        splits.click("Command3");
        EXPECT_THAT(splits.row(4), ElementsAre("400", "1", "15"));
        EXPECT_THAT(splits.row(5), ElementsAre("400", "1", "16"));
        EXPECT_TRUE(splits.outside.events.empty());
    }

    TEST(Duplicate, CopiesABlankRowBeforeALoneOne)
    {
        OpenSplits splits;
        splits.click("Command5");
        splits.enterRow(4, "400", "1", "15");
        splits.click("Command3");
        EXPECT_EQ(splits.row(5), blankRow);
        EXPECT_THAT(splits.row(6), ElementsAre("400", "1", "15"));
    }

    TEST(Duplicate, NeedsTwoRowsAndRoom)
    {
        OpenSplits splits;
        splits.click("delbut(1)");
        splits.click("Command3");
        EXPECT_THAT(splits.said(), ElementsAre("At least the first two rows must be popluted to use this feature."));
        splits.click("Command5");
        splits.click("Command3");
        EXPECT_THAT(splits.said(), ElementsAre("out of room at the bottom."));
        splits.enterRow(24, "400", "1", "15");
        splits.click("Command3");
        EXPECT_TRUE(splits.said().empty());
        EXPECT_THAT(splits.row(26), ElementsAre("400", "1", "15"));
        splits.click("Command5");
        splits.enterRow(25, "400", "1", "15");
        splits.click("Command3");
        EXPECT_THAT(splits.said(), ElementsAre("out of room at the bottom."));
    }

    TEST(Closed, KeepsItsEntriesByWhateverClosesIt)
    {
        OpenSplits splits;
        splits.enterRow(7, "200", "", "40");
        splits.choose("openergy");
        splits.click("Command2");
        EXPECT_FALSE(splits.isOpen());
        splits.open();
        EXPECT_THAT(splits.row(7), ElementsAre("200", "", "40"));
        EXPECT_TRUE(splits.isOn("openergy"));
        EXPECT_FALSE(splits.isOn("opmix"));
        EXPECT_EQ(splits.label("totracedis"), "1700");
        splits.click("Command5");
        splits.close();
        splits.open();
        EXPECT_EQ(splits.row(0), blankRow);
        EXPECT_THAT(splits.said(), ElementsAre("Please enter some data."));
    }

    TEST(OpenedAgain, SaysItsMessagesOnceMoreForEachFilledRow)
    {
        OpenSplits splits;
        splits.type("splitdis(9)", "400");
        splits.outside.forget();
        splits.close();
        splits.open();
        EXPECT_EQ(splits.said().size(), 5U) << "four filled rows and the analysis at the end";
    }

    TEST(OpenedAgain, WhileItIsOpenKeepsEverything)
    {
        OpenSplits splits;
        splits.type("splitsec(0)", "10");
        splits.open();
        EXPECT_EQ(splits.text("splitsec(0)"), "10");
    }

    TEST(Pasted, TableFillsRowsFromTheCursorOnAndAnalysesOnce)
    {
        OpenSplits splits;
        EXPECT_TRUE(splits.paste("splitdis(1)", "800\t2:40\n800\t2:42\n\n400\t1:19\n"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15"));
        EXPECT_THAT(splits.row(1), ElementsAre("800", "2", "40"));
        EXPECT_THAT(splits.row(2), ElementsAre("800", "2", "42"));
        EXPECT_EQ(splits.row(3), blankRow);
        EXPECT_THAT(splits.row(4), ElementsAre("400", "1", "19"));
        EXPECT_THAT(splits.row(5), ElementsAre("300", "1", "5"));
        EXPECT_EQ(splits.label("totracedis"), "2700");
        EXPECT_EQ(splits.label("minmi(1)"), "    5:22  ");
        EXPECT_TRUE(splits.outside.events.empty());
    }

    TEST(Pasted, TableWithoutTimesSaysSoOnce)
    {
        OpenSplits splits;
        EXPECT_TRUE(splits.paste("splitdis(6)", "400\n400\n400\n"));
        EXPECT_THAT(splits.said(), ElementsAre("Missing times for entered split distance."));
        EXPECT_TRUE(splits.paste("splitsec(6)", "1:20\n1:21\n1:22\n"));
        EXPECT_TRUE(splits.said().empty());
        EXPECT_THAT(splits.row(8), ElementsAre("400", "1", "22"));
    }

    TEST(Pasted, TableThatIsTooLongIsCutAndSaysSo)
    {
        OpenSplits splits;
        EXPECT_TRUE(splits.paste("splitdis(25)", "400\t1:15\n400\t1:16\n400\t1:17\n"));
        EXPECT_THAT(splits.row(26), ElementsAre("400", "1", "16"));
        EXPECT_THAT(splits.said(), ElementsAre("There is room for 2 of the rows; the others were left out."));
    }

    TEST(Pasted, OneEntryIsLeftToTheBox)
    {
        OpenSplits splits;
        EXPECT_FALSE(splits.paste("splitdis(0)", "800"));
        EXPECT_FALSE(splits.paste("splitdis(0)", "some words"));
        EXPECT_FALSE(splits.paste("splitdis(0)", ""));
        EXPECT_FALSE(splits.paste("splitdis(0)", "1,500"));
        EXPECT_FALSE(splits.paste("splitdis(0)", "800\r\n"));
        EXPECT_FALSE(splits.paste("splitdis(0)", "400 75"));
        EXPECT_FALSE(splits.paste("splitsec(0)", "75,3"));
        EXPECT_FALSE(splits.paste("splitsec(0)", "75,3\n"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15"));
        EXPECT_EQ(splits.text("splitdis(0)"), "400");
        EXPECT_TRUE(splits.paste("splitsec(0)", "1:10.5"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "10.5"));
    }

    TEST(Pasted, CommasOfTimesAreDecimal)
    {
        OpenSplits splits;
        EXPECT_TRUE(splits.paste("splitsec(0)", "15,3\n16\n"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "15.3"));
        EXPECT_THAT(splits.row(1), ElementsAre("400", "1", "16"));
        EXPECT_TRUE(splits.paste("splitmin(0)", "1:17,5"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "1", "17.5"));
        EXPECT_TRUE(splits.paste("splitdis(0)", "800,160\n800,161"));
        EXPECT_THAT(splits.row(1), ElementsAre("800", "2", "41"));
    }

    TEST(Pasted, TableIsWrittenWholeWhateverStoodThere)
    {
        OpenSplits splits;
        splits.type("splitdis(1)", "1e999");
        splits.outside.forget();
        EXPECT_TRUE(splits.paste("splitmin(0)", "2\t10\n2\t11\n2\t12\n"));
        EXPECT_THAT(splits.row(0), ElementsAre("400", "2", "10"));
        EXPECT_THAT(splits.row(1), ElementsAre("1e999", "2", "11"));
        EXPECT_THAT(splits.row(2), ElementsAre("", "2", "12"));
        ASSERT_EQ(splits.outside.faults.size(), 1U);
        EXPECT_EQ(splits.outside.faults.front().text,
                  "The calculation stopped: an overflow (a number is too large) while working out the paces of row 2.");
        splits.outside.forget();
        EXPECT_TRUE(splits.paste("splitdis(1)", "400\t1:15\n400\t1:16\n"));
        EXPECT_TRUE(splits.outside.events.empty());
        EXPECT_EQ(splits.label("totracetim"), "    7:11  ");   // 130, 75, 76, 85, 65
    }

    TEST(Table, HoldsTheFilledRowsAndTheResult)
    {
        OpenSplits splits;
        const std::string csv = csvOf(findForm(splits.program, "splitform")->table());
        EXPECT_TRUE(csv.starts_with("Split,Distance,Minutes,Seconds,Min/mile,Sec/400 m,Even Split Times\n"
                                    "1,400,1,15,5:02,1:15,1:19\n2,400,1,15,5:02,1:15,1:19\n"
                                    "4,400,1,25,5:42,1:25,1:19\n6,300,1,5,5:49,1:27,59.0\n\n"
                                    "Total Distance,1500\nTotal Time,5:00\nPotential Time,4:55\nDifference,5.2\n"))
            << csv;
        splits.click("Command5");
        EXPECT_TRUE(splits.paste("splitdis(0)", csv.substr(0, csv.find("\n\n"))));
        EXPECT_EQ(splits.label("totracedis"), "1500");
        EXPECT_THAT(splits.row(3), ElementsAre("300", "1", "5"));
    }

    TEST(Help, OpensTheTopic)
    {
        OpenSplits splits;
        EXPECT_EQ(splits.get<Button>("Command4").opens, "helpform");
        splits.click("Command4");
    }
}
