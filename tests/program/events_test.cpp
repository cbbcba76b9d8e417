#include <cmath>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "main_form.h"
#include "support/case_name.h"
#include "support/close_to.h"

namespace
{
    struct Shows
    {
        std::string name;
        int value;
        const char *first, *second;   // what the bar's two shows hold
    };

    std::ostream& operator<<(std::ostream& out, const Shows& row)
    {
        return out << row.name;
    }

    /// Moves the bar there from another place, by a click on it and once more by a drag.
    template <class Check>
    void moveTo(MainForm& main, const std::string& bar, int from, int value, Check check)
    {
        main.person.slide(bar, from);
        main.person.slide(bar, value);
        check();
        main.person.slide(bar, from);
        main.person.pull(bar, value);
        check();
        EXPECT_TRUE(main.outside.events.empty());
    }

    class WeeklyMiles : public testing::TestWithParam<Shows>
    {};

    TEST_P(WeeklyMiles, AreShownInMilesAndKilometers)
    {
        MainForm main;
        moveTo(main, "HScroll1", 77, GetParam().value, [&] {
            EXPECT_EQ(main.form().txtmi.text, GetParam().first);
            EXPECT_EQ(main.form().txtkm.text, GetParam().second);
        });
        EXPECT_EQ(main.state().runner.weeklyMiles, 20) << "taken by a calculation";
    }

    // 1.609 km a mile: 1.609, 32.18, 33.789, 80.45, 241.35
    INSTANTIATE_TEST_SUITE_P(ByHand, WeeklyMiles,
                             testing::Values(Shows{"none", 0, "0", "0"}, Shows{"one", 1, "1", "2"},
                                             Shows{"default", 20, "20", "32"}, Shows{"21", 21, "21", "34"},
                                             Shows{"50", 50, "50", "80"}, Shows{"most", 150, "150", "241"}),
                             byName);

    class ComparisonLevel : public testing::TestWithParam<Shows>
    {};

    TEST_P(ComparisonLevel, IsShownInPercent)
    {
        MainForm main;
        moveTo(main, "HScroll2", 501, GetParam().value, [&] { EXPECT_EQ(main.form().Text5.text, GetParam().first); });
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, ComparisonLevel,
                             testing::Values(Shows{"none", 0, "0", ""}, Shows{"one_tenth", 1, "0.1", ""},
                                             Shows{"half", 5, "0.5", ""}, Shows{"ten", 100, "10", ""},
                                             Shows{"just_below_the_record", 999, "99.9", ""},
                                             Shows{"record", 1000, "100", ""}, Shows{"100_5", 1005, "100.5", ""},
                                             Shows{"most", 1100, "110", ""}),
                             byName);

    struct Build
    {
        std::string name;
        int value;
        const char *first, *second;
        double metric;     // kg or cm as the state takes it
        double bodyDrag;   // with the other measure at its default
    };

    std::ostream& operator<<(std::ostream& out, const Build& row)
    {
        return out << row.name;
    }

    double drag(double kg, double cm)
    {
        return 60 * std::sqrt(std::sqrt(kg / 72.7 / (cm / 178)));
    }

    class Weight : public testing::TestWithParam<Build>
    {};

    TEST_P(Weight, IsShownAndTaken)
    {
        MainForm main;
        moveTo(main, "wtscrl", 111, GetParam().value, [&] {
            EXPECT_EQ(main.form().txlb.text, GetParam().first);
            EXPECT_EQ(main.form().txkg.text, GetParam().second);
            EXPECT_EQ(main.state().runner.weightKg, GetParam().metric);
            EXPECT_EQ(main.state().runner.heightCm, 178);
            EXPECT_TRUE(closeTo(main.state().runner.bodyDrag, GetParam().bodyDrag));
        });
    }

    // 0.45359237 kg a pound: 13.6078, 72.5748, 73.0284, 99.7903, 100.2439, 136.0777
    INSTANTIATE_TEST_SUITE_P(ByHand, Weight,
                             testing::Values(Build{"least", 30, "30", " 13.6", 13.6, drag(13.6, 178)},
                                             Build{"default", 160, "160", " 72.6", 72.6, drag(72.6, 178)},
                                             Build{"161", 161, "161", " 73.0", 73, drag(73, 178)},
                                             Build{"220", 220, "220", " 99.8", 99.8, drag(99.8, 178)},
                                             Build{"221", 221, "221", "100.2", 100.2, drag(100.2, 178)},
                                             Build{"most", 300, "300", "136.1", 136.1, drag(136.1, 178)}),
                             byName);

    class Height : public testing::TestWithParam<Build>
    {};

    TEST_P(Height, IsShownAndTaken)
    {
        MainForm main;
        moveTo(main, "htscrl", 55, GetParam().value, [&] {
            EXPECT_EQ(main.form().txin.text, GetParam().first);
            EXPECT_EQ(main.form().txcm.text, GetParam().second);
            EXPECT_EQ(main.state().runner.heightCm, GetParam().metric);
            EXPECT_EQ(main.state().runner.weightKg, 72.7);
            EXPECT_TRUE(closeTo(main.state().runner.bodyDrag, GetParam().bodyDrag));
        });
    }

    // 2.54 cm an inch: 91.44, 165.1, 177.8, 180.34, 190.5 (a tie, to the even 190), 228.6
    INSTANTIATE_TEST_SUITE_P(ByHand, Height,
                             testing::Values(Build{"least", 36, "36", "   91", 91, drag(72.7, 91)},
                                             Build{"65", 65, "65", "  165", 165, drag(72.7, 165)},
                                             Build{"default", 70, "70", "  178", 178, 60},
                                             Build{"71", 71, "71", "  180", 180, drag(72.7, 180)},
                                             Build{"75", 75, "75", "  190", 190, drag(72.7, 190)},
                                             Build{"most", 90, "90", "  229", 229, drag(72.7, 229)}),
                             byName);

    TEST(BodyDrag, IsJustUnder60AtTheDefaultsOnceTheWeightHasMoved)
    {
        MainForm main;
        EXPECT_EQ(main.state().runner.bodyDrag, 60);
        main.person.slide("wtscrl", 161);
        main.person.slide("wtscrl", 160);
        EXPECT_LT(main.state().runner.bodyDrag, 60);
        EXPECT_GT(main.state().runner.bodyDrag, 59.97);
    }

    TEST(BodyDrag, FollowsBothMeasures)
    {
        MainForm main;
        main.person.slide("wtscrl", 300);
        main.person.slide("htscrl", 36);
        EXPECT_TRUE(closeTo(main.state().runner.bodyDrag, drag(136.1, 91)));
        main.person.slide("wtscrl", 30);
        EXPECT_TRUE(closeTo(main.state().runner.bodyDrag, drag(13.6, 91)));
    }

    TEST(Bars, HoldTheirRangeWhateverIsAsked)
    {
        MainForm main;
        main.person.slide("HScroll1", 151);
        EXPECT_EQ(main.form().txtmi.text, "150");
        main.person.pull("HScroll1", -1);
        EXPECT_EQ(main.form().txtmi.text, "0");
        main.person.slide("htscrl", 1000000000000);
        EXPECT_EQ(main.form().txin.text, "90");
    }

    /// The texts that show something else hold their design texts, and typing into them moves nothing.
    TEST(Shows, AreRefreshedByTheirOwnEventOnly)
    {
        MainForm main;
        main.person.enterRace(0, {"", "40", "", "10", 3});
        main.person.slide("wtscrl", 200);
        main.person.type("txtname", "Ann");
        main.recalculate();
        EXPECT_EQ(main.form().txtmi.text, "20");
        EXPECT_EQ(main.form().txtkm.text, "32");
        EXPECT_EQ(main.form().Text5.text, "100");
        EXPECT_EQ(main.form().txin.text, "70");
        EXPECT_EQ(main.form().txcm.text, "178");
        EXPECT_EQ(main.form().emhrtx.text, "185");
        for (const char* show : {"txtmi", "txtkm", "Text5", "txlb", "txkg", "txin", "txcm", "emhrtx"})
            main.person.type(show, "77");
        EXPECT_EQ(main.form().HScroll1.value, 20);
        EXPECT_EQ(main.form().HScroll2.value, 1000);
        EXPECT_EQ(main.form().wtscrl.value, 200);
        EXPECT_EQ(main.form().htscrl.value, 70);
        EXPECT_EQ(main.state().runner.heightCm, 178);
        main.person.slide("HScroll1", 10);
        EXPECT_EQ(main.form().txtkm.text, "16");
        EXPECT_EQ(main.form().Text5.text, "77");
    }

    struct Rate
    {
        std::string name;
        const char* typed;
        double rate;
    };

    std::ostream& operator<<(std::ostream& out, const Rate& row)
    {
        return out << row.name;
    }

    class HeartRate : public testing::TestWithParam<Rate>
    {};

    TEST_P(HeartRate, IsTheLeadingNumberOfItsText)
    {
        MainForm main;
        main.state().runner.maxHr = -1;
        main.state().runner.restHr = -1;
        main.person.type("actmhrtx", GetParam().typed);
        EXPECT_EQ(main.state().runner.maxHr, GetParam().rate);
        EXPECT_EQ(main.state().runner.restHr, -1);
        main.person.type("resthrtx", GetParam().typed);
        EXPECT_EQ(main.state().runner.restHr, GetParam().rate);
        EXPECT_TRUE(main.outside.events.empty());
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, HeartRate,
                             testing::Values(Rate{"whole", "190", 190}, Rate{"fraction", "185.5", 185.5},
                                             Rate{"with_words", "188 bpm", 188}, Rate{"no_number", "abc", 0},
                                             Rate{"blanks", "  ", 0}, Rate{"comma", "180,5", 180},
                                             Rate{"hexadecimal", "&HFF", 0}, Rate{"infinity", "inf", 0},
                                             Rate{"negative", "-5", -5}, Rate{"exponent", "1.9e2x", 190}),
                             byName);

    TEST(HeartRate, ClearedIsZero)
    {
        MainForm main;
        main.person.type("actmhrtx", "");
        EXPECT_EQ(main.state().runner.maxHr, 0);
    }

    struct Age
    {
        std::string name;
        const char* typed;
        double age;
        const char *man, *woman;   // the estimates
        double term;               // |age - 18| ^ 1.5 / 24
    };

    std::ostream& operator<<(std::ostream& out, const Age& row)
    {
        return out << row.name;
    }

    class NumericAge : public testing::TestWithParam<Age>
    {};

    TEST_P(NumericAge, GivesTheEstimateAndTheAgeTerm)
    {
        for (const char* sex : {"optmale", "optfemale"})
        {
            MainForm main;
            main.person.click(sex);
            main.person.type("txtage", GetParam().typed);
            EXPECT_EQ(main.form().emhrtx.text, sex == std::string("optmale") ? GetParam().man : GetParam().woman);
            EXPECT_EQ(main.state().runner.age, GetParam().age);
            EXPECT_TRUE(closeTo(main.state().runner.ageDistanceTerm, GetParam().term));
            EXPECT_EQ(main.state().runner.sex, 'm') << "taken by a calculation";
        }
    }

    // 1 + 0.6 * (191.5 - 0.007 * age ^ 2) + 0.4 * (208 - 0.7 * age), a woman's 3 less:
    // 191.82, 181.18, 178.323, 199.1, 186.92, 200.395, 191.5
    INSTANTIATE_TEST_SUITE_P(ByHand, NumericAge,
                             testing::Values(Age{"twenty", "20", 20, "192", "189", std::sqrt(8) / 24},
                                             Age{"forty", "40", 40, "181", "178", 22 * std::sqrt(22) / 24},
                                             Age{"fraction", "44.5", 44.5, "178", "175", 26.5 * std::sqrt(26.5) / 24},
                                             Age{"zero", "0", 0, "199", "196", 18 * std::sqrt(18) / 24},
                                             Age{"blanks_at_the_ends", " 30 ", 30, "187", "184", std::sqrt(3)},
                                             Age{"negative", "-5", -5, "200", "197", 23 * std::sqrt(23) / 24},
                                             Age{"eighteen", "18", 18, "193", "190", 0},
                                             Age{"exponent", "2e1", 20, "192", "189", std::sqrt(8) / 24}),
                             byName);

    class OtherAge : public testing::TestWithParam<std::pair<std::string, const char*>>
    {};

    TEST_P(OtherAge, ChangesNothing)
    {
        MainForm main;
        main.person.type("txtage", "40");
        main.person.type("txtage", GetParam().second);
        EXPECT_EQ(main.form().emhrtx.text, "181");
        EXPECT_EQ(main.state().runner.age, 40);
        EXPECT_TRUE(closeTo(main.state().runner.ageDistanceTerm, 22 * std::sqrt(22) / 24));
        EXPECT_TRUE(main.outside.events.empty());
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, OtherAge,
                             testing::Values(std::pair{"word", "abc"}, std::pair{"empty", ""},
                                             std::pair{"number_and_letter", "45x"}, std::pair{"comma", "4,5"},
                                             std::pair{"two_signs", "--3"}, std::pair{"open_exponent", "1e"},
                                             std::pair{"infinity", "inf"}, std::pair{"no_number", "nan"},
                                             std::pair{"hexadecimal", "0x10"}, std::pair{"two_numbers", "4 5"},
                                             std::pair{"sign", "-"}, std::pair{"point", "."}),
                             [](const auto& row) { return row.param.first; });

    TEST(Sex, EstimatesFromTheLeadingNumberOfTheAge)
    {
        MainForm main;
        const auto estimate = [&](const char* age, const char* option) {
            main.person.type("txtage", age);
            main.person.click(option);
            return main.form().emhrtx.text;
        };
        EXPECT_EQ(estimate("40", "optfemale"), "178");
        EXPECT_EQ(estimate("40", "optmale"), "181");
        EXPECT_EQ(estimate("abc", "optfemale"), "196");   // as at age 0
        EXPECT_EQ(estimate("45x", "optmale"), "178");     // 177.995
        EXPECT_EQ(estimate("45x", "optfemale"), "175");   // 174.995
        EXPECT_EQ(estimate("", "optmale"), "199");
    }

    TEST(Sex, ChosenAgainEstimatesNothing)
    {
        MainForm main;
        main.person.type("emhrtx", "mine");
        main.person.click("optmale");
        EXPECT_EQ(main.form().emhrtx.text, "mine");
    }

    TEST(Sex, TakesEffectAtTheNextCalculation)
    {
        MainForm main;
        main.enterOneRace();
        main.person.click("optfemale");
        EXPECT_EQ(main.state().runner.sex, 'm');
        main.recalculate();
        EXPECT_EQ(main.state().runner.sex, 'f');
    }

    TEST(Name, IsMirroredAtOnce)
    {
        MainForm main;
        main.person.type("txtname", "\xc3\x85sa \"Quick\" Berg");
        EXPECT_EQ(main.state().runner.runnerName, "\xc3\x85sa \"Quick\" Berg");
        main.person.type("txtname", "");
        EXPECT_EQ(main.state().runner.runnerName, "");
    }

    TEST(AgeComparison, IsMirroredAtOnce)
    {
        MainForm main;
        main.person.click("agecomp");
        EXPECT_EQ(main.state().flags.agecomp, 1);
        main.person.click("agecomp");
        EXPECT_EQ(main.state().flags.agecomp, 0);
    }

    struct Scale
    {
        const char* name;
        int graphScale;
    };

    TEST(GraphScale, TicksWhatIsChosenAndClearsTheOthers)
    {
        MainForm main;
        const auto ticked = [&](const std::string& name) {
            return std::get<MenuItem*>(*findControl(main.form().form, name))->ticked;
        };
        for (const Scale& chosen : {Scale{"lin1", 1}, Scale{"lin2", 2}, Scale{"lin3", 3}, Scale{"logg", 4},
                                    Scale{"logg", 4}, Scale{"lin2", 2}})
        {
            main.person.click(chosen.name);
            EXPECT_EQ(main.state().flags.graphScale, chosen.graphScale);
            for (const char* item : {"logg", "lin1", "lin2", "lin3"})
                EXPECT_EQ(ticked(item), item == std::string(chosen.name)) << item << " after " << chosen.name;
            EXPECT_TRUE(ticked("metric"));
        }
    }

    TEST(GraphUnits, TickWhatIsChosenAndClearTheOther)
    {
        MainForm main;
        main.person.click("english");
        EXPECT_EQ(main.state().flags.unitsMode, 'e');
        EXPECT_TRUE(main.form().english.ticked);
        EXPECT_FALSE(main.form().metric.ticked);
        main.person.click("metric");
        EXPECT_EQ(main.state().flags.unitsMode, 'm');
        EXPECT_FALSE(main.form().english.ticked);
        EXPECT_TRUE(main.form().metric.ticked);
        EXPECT_TRUE(main.form().logg.ticked);
        EXPECT_FALSE(main.form().Option9.chosen) << "the table's output is another matter";
    }

    struct Opener
    {
        std::string name;
        const char* form;
        bool needsResults = false;
    };

    std::ostream& operator<<(std::ostream& out, const Opener& row)
    {
        return out << row.name;
    }

    class Opens : public testing::TestWithParam<Opener>
    {};

    TEST_P(Opens, ItsFormByName)
    {
        MainForm main;
        if (GetParam().needsResults)
        {
            main.enterOneRace();
            main.recalculate();
            main.person.type("resthrtx", "50");
        }
        std::vector<std::string> opened;
        main.program.outside.openForm = [&](const std::string& name) { opened.push_back(name); };
        main.person.click(GetParam().name);
        EXPECT_EQ(opened, std::vector<std::string>{GetParam().form});
        EXPECT_TRUE(main.outside.events.empty());
    }

    INSTANTIATE_TEST_SUITE_P(MainForm, Opens,
                             testing::Values(Opener{"Command2", "graphform", true}, Opener{"Command3", "anaform", true},
                                             Opener{"Command4", "specinfo", true}, Opener{"Command5", "helpform"},
                                             Opener{"Command8", "helpform"}, Opener{"datafiles", "fileacc"},
                                             Opener{"hillpaces", "eqpace"}, Opener{"tread", "tmill"},
                                             Opener{"power", "powen"}, Opener{"quickcalcsshow", "quickcalcs"},
                                             Opener{"performance", "pertabspec"}, Opener{"unevpa", "splitform", true},
                                             Opener{"cpa", "profile", true}, Opener{"hhe", "heathum", true},
                                             Opener{"ppinfo", "helpform"}, Opener{"refs", "refform"},
                                             Opener{"about", "frmabout"}),
                             byName);

    TEST(Opening, AFormThatIsNotThereGetsAMessage)
    {
        MainForm main;
        enter(main.program, "vantstart", false, [&] { openForm(main.program, "nowhere"); });
        ASSERT_EQ(main.outside.messages.size(), 1U);
        EXPECT_NE(main.outside.messages[0].text.find("nowhere"), std::string::npos);
        EXPECT_EQ(main.outside.messages[0].title, "Vantelos");
    }

    TEST(Menu, HillPacesChooseTheTablesMode)
    {
        MainForm main;
        main.state().slopeTools.hillScale = 4;
        main.person.click("hillpaces");
        EXPECT_EQ(main.state().slopeTools.hillScale, 2);
        EXPECT_EQ(main.state().flags.performanceStart, 0);
    }

    TEST(Menu, PerformanceTablesStartAnew)
    {
        MainForm main;
        main.person.click("performance");
        EXPECT_EQ(main.state().flags.performanceStart, 1);
    }

    TEST(Menu, ReportsGoToThePrinterOrToAFile)
    {
        MainForm main;
        main.enterOneRace();
        main.recalculate();
        main.person.click("tfile");
        EXPECT_EQ(main.state().flags.reportToFile, 1);
        main.person.click("pfull");
        EXPECT_EQ(main.state().flags.reportToFile, 0);
    }

    class Closes : public testing::TestWithParam<const char*>
    {};

    TEST_P(Closes, TheProgramAndSavesOnce)
    {
        MainForm main;
        main.person.type("txtage", "51");
        main.person.click(GetParam());
        EXPECT_EQ(main.program.vantstart, nullptr);
        EXPECT_EQ(findForm(main.program, "vantstart"), nullptr);
        const std::string saved = readBytes(main.folder.path / "vantini.txt");
        EXPECT_NE(saved.find("\"51\"\r\n"), std::string::npos);
        EXPECT_EQ(main.folder.entryCount(), 1U);
        EXPECT_TRUE(main.outside.events.empty());
        writeBytes(main.folder.path / "vantini.txt", "later");
        stop(main.program);
        EXPECT_EQ(readBytes(main.folder.path / "vantini.txt"), "later") << "an ended program has nothing to save";
    }

    INSTANTIATE_TEST_SUITE_P(MainForm, Closes, testing::Values("Command6", "exit"),
                             [](const auto& row) { return row.param; });

    TEST(Clear, LeavesEveryRowEmptyWithMetersOn)
    {
        MainForm main;
        for (int i = 0; i < 4; ++i)   // the fifth row has no unit yet
            main.person.enterRace(i, {"1", "2", "3", "4", i + 1});
        main.person.enterRace(0, {"", "40", "", "10", 3});
        main.person.click("Command7");
        for (const RaceControls& race : main.form().races)
        {
            EXPECT_FALSE(race.Check1.ticked);
            for (const TextBox* box : {&race.Text1, &race.Text2, &race.Text3, &race.Text4})
                EXPECT_EQ(box->text, "") << box->name;
            for (const OptionButton* option :
                 {&race.Option1, &race.Option2, &race.Option3, &race.Option5, &race.Option6})
                EXPECT_FALSE(option->chosen) << option->name;
            EXPECT_TRUE(race.Option4.chosen);
        }
    }

    TEST(Clear, EmptiesTheTableAndKeepsTheCurve)
    {
        MainForm main;
        main.enterOneRace();
        main.recalculate();
        ASSERT_EQ(main.form().Picture1.page.lines.size(), 11U);
        const Curve before = main.state().curve;
        const Results results = main.state().results;
        main.person.click("Command7");
        EXPECT_TRUE(main.form().Picture1.page.lines.empty());
        EXPECT_EQ(main.state().curve.aerobicPower, before.aerobicPower);
        EXPECT_EQ(main.state().curve.anaerobicEnergy, before.anaerobicEnergy);
        EXPECT_EQ(main.state().results.levelIndex, results.levelIndex);
        EXPECT_EQ(main.state().flags.calculatedOnce, 1);
        EXPECT_TRUE(main.form().Command2.enabled);
        EXPECT_TRUE(main.form().Option9.chosen);
        EXPECT_TRUE(main.outside.events.empty());
    }

    TEST(Clear, MakesANumberTypedNextMetres)
    {
        MainForm main;
        main.person.enterRace(0, {"", "", "50", "1", 1});
        main.person.click("Command7");
        main.person.click("Check1(0)");
        main.person.type("Text3(0)", "50");
        main.person.type("Text4(0)", "400");
        main.recalculate();
        EXPECT_EQ(main.state().races.rowDist[1], 400);
    }

    struct KeyFault
    {
        std::string name;
        const char* box;
        const char* typed;
        const char* fault;
    };

    std::ostream& operator<<(std::ostream& out, const KeyFault& row)
    {
        return out << row.name;
    }

    class KeystrokeFault : public testing::TestWithParam<KeyFault>
    {};

    TEST_P(KeystrokeFault, IsToldWithoutABoxAndLeavesTheState)
    {
        MainForm main;
        main.person.type("txtage", "40");
        main.person.type("resthrtx", "50");
        main.person.type(GetParam().box, GetParam().typed);
        ASSERT_EQ(main.outside.events, std::vector<std::string>{std::string("fault: ") + GetParam().fault});
        EXPECT_EQ(main.outside.faults[0].where, std::string("vantstart.") + GetParam().box);
        EXPECT_TRUE(main.outside.faults[0].keystroke);
        EXPECT_EQ(std::get<TextBox*>(*findControl(main.form().form, GetParam().box))->text, GetParam().typed);
        EXPECT_EQ(main.state().runner.age, 40);
        EXPECT_EQ(main.form().emhrtx.text, "181");
        EXPECT_EQ(main.state().runner.restHr, 50);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, KeystrokeFault,
        testing::Values(KeyFault{"age_beyond_a_double", "txtage", "1e999",
                                 "The calculation stopped: an overflow (a number is too large) while estimating the "
                                 "maximum heart rate."},
                        KeyFault{"age_squared_beyond_a_double", "txtage", "1e200",
                                 "The calculation stopped: an overflow while estimating the maximum heart rate."},
                        KeyFault{"heart_rate", "actmhrtx", "1e999",
                                 "The calculation stopped: an overflow (a number is too large) while reading a heart "
                                 "rate."},
                        KeyFault{"resting_heart_rate", "resthrtx", "-1e999",
                                 "The calculation stopped: an overflow (a number is too large) while reading a heart "
                                 "rate."}),
        byName);

    TEST(NestedFault, LeavesWhatWasWrittenBeforeIt)
    {
        MainForm main;
        main.state().runner.weightKg = -5;
        main.person.slide("htscrl", 71);
        ASSERT_EQ(main.outside.faults.size(), 1U);
        EXPECT_EQ(main.outside.faults[0].where, "vantstart.htscrl");
        EXPECT_FALSE(main.outside.faults[0].keystroke);
        EXPECT_EQ(main.outside.faults[0].text.rfind("The calculation stopped: a power without a real value", 0), 0U);
        EXPECT_EQ(main.form().txcm.text, "  180");
        EXPECT_EQ(main.state().runner.heightCm, 180);
        EXPECT_EQ(main.state().runner.bodyDrag, 60);
    }
}
