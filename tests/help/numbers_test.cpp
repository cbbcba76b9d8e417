// Every number that a help topic states is either what somebody enters there, or what the program shows for it.

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "example_runner.h"
#include "help/help_topics.h"
#include "model/arithmetic.h"
#include "model/race_time.h"
#include "model/record_curve.h"
#include "model/text.h"
#include "model/units.h"

namespace
{
    using Words = std::vector<std::string>;

    /// The words of a topic that begin with a digit, without the punctuation around them.
    std::multiset<std::string> numbersOf(const HelpTopic& topic)
    {
        std::multiset<std::string> numbers;
        std::string text(topic.text);
        std::replace(text.begin(), text.end(), '\n', ' ');
        for (std::string word : wordsOf(text))
        {
            while (!word.empty() && std::string(",.;:?!)\"").find(word.back()) != std::string::npos)
                word.pop_back();
            while (!word.empty() && std::string("(\"").find(word.front()) != std::string::npos)
                word.erase(0, 1);
            if (!word.empty() && std::isdigit(static_cast<unsigned char>(word.front())) != 0)
                numbers.insert(word);
        }
        return numbers;
    }

    /// A number that a topic says somebody enters, and how often it says so.
    struct Given
    {
        Given(const char* text, int often = 1) : number(text), times(often) {}
        std::string number;
        int times;
    };

    /// A topic states each number as often as it is given or computed.
    ///   given     what the topic says that somebody enters, and bounds that claims_test.cpp holds the program to
    ///   computed  what the program shows
    void expectNumbers(HelpTopicName name, const std::vector<Given>& given, const Words& computed)
    {
        const HelpTopic& topic = helpTopic(name);
        const std::multiset<std::string> stated = numbersOf(topic);
        std::multiset<std::string> known(computed.begin(), computed.end());
        for (const Given& entry : given)
            for (int i = 0; i < entry.times; ++i)
                known.insert(entry.number);
        for (const std::string& number : std::set<std::string>(known.begin(), known.end()))
            EXPECT_EQ(stated.count(number), known.count(number)) << topic.title << " and " << number;
        for (const std::string& number : stated)
            EXPECT_TRUE(known.contains(number)) << topic.title << " states " << number << ", which nothing computes";
    }

    /// "3:36:53" as seconds.
    double secondsOf(const std::string& time)
    {
        double seconds = 0;
        std::string rest = time + ':';
        for (std::size_t colon = rest.find(':'); colon != std::string::npos; colon = rest.find(':'))
        {
            seconds = 60 * seconds + std::stod(rest.substr(0, colon));
            rest.erase(0, colon + 1);
        }
        return seconds;
    }

    std::string timeText(double seconds)
    {
        return trimmed(formatTime(seconds));
    }

    /// The row of the main form's table: time, three paces, record, % Spd, P.Level, Top_%.
    Words row(ExampleRunner& runner, const std::string& distance)
    {
        return runner.line("vantstart.Picture1", distance);
    }

    Words levelLine(ExampleRunner& runner)
    {
        return wordsOf(runner.box("specinfo.Text4"));
    }

    TEST(Numbers, OfTheOverview)
    {
        ExampleRunner runner;
        const double power = runner.program.state.curve.aerobicPower;
        const double speed = std::sqrt((power - 140) / 60);
        EXPECT_NEAR(rawSpeed(runner.program.state, 0, power, 10000, 5000), speed, 1e-9) << "without the store";
        runner.click("vantstart.Option10");
        runner.click("vantstart.Command1");
        const Words marathon = row(runner, "marathon");
        runner.click("vantstart.Option9");
        runner.click("vantstart.Command1");
        expectNumbers(HelpTopicName::programOverview, {"10", "40:00", "140", "60", "5", {"30", 2}, "800", "40"},
                      {trimmed(formatNumber(power, 1, 0)), trimmed(formatNumber(speed, 1, 2)),
                       timeText(metresPerMile / speed), row(runner, "5000 m")[0], marathon[0], marathon[1]});
    }

    TEST(Numbers, OfTheMainEntryForm)
    {
        ExampleRunner runner;
        Words computed{runner.box("vantstart.emhrtx")};
        runner.click("vantstart.Option10");
        for (const int miles : {15, 30, 50})
        {
            runner.slide("vantstart.HScroll1", miles);
            runner.click("vantstart.Command1");
            computed.push_back(row(runner, "marathon")[0]);
            computed.push_back(row(runner, "half mara.")[0]);
        }
        runner.slide("vantstart.HScroll1", 30);
        runner.race(1, "1", "32", "", "", "Option6");
        runner.click("vantstart.Option8");
        runner.click("vantstart.Command1");
        computed.push_back(row(runner, "marathon")[0]);
        runner.click("vantstart.Option9");
        runner.click("vantstart.Command1");
        computed.push_back(row(runner, "10000 m")[0]);
        runner.click("vantstart.Option7");
        runner.click("vantstart.Command1");
        computed.push_back(row(runner, "10000 m")[0]);
        runner.click("vantstart.Option10");
        runner.click("vantstart.Command1");
        computed.push_back(row(runner, "half mara.")[0]);
        computed.push_back(row(runner, "marathon")[0]);
        expectNumbers(
            HelpTopicName::mainEntryForm,
            {{"40", 4}, "100", {"80", 2}, "0", {"10", 3}, {"40:00", 2}, "15", {"30", 2}, "50", "1:32:00", "4o", "4"},
            computed);
    }

    TEST(Numbers, OfThePredictedTable)
    {
        ExampleRunner runner;
        Words computed;
        for (const char* distance : {"800 m", "5000 m", "10000 m"})
        {
            const Words cells = row(runner, distance);
            for (const std::size_t cell : {0U, 4U, 5U, 6U, 7U})
                computed.push_back(cells[cell]);
        }
        computed.insert(computed.end(),
                        {row(runner, "10000 m")[5], row(runner, "800 m")[5],   // the prose repeats these
                         row(runner, "10000 m")[6], row(runner, "800 m")[6]});
        expectNumbers(HelpTopicName::predictedTable,
                      {{"400", 2}, {"10000", 2}, "440", "100", {"800", 2}, "5000", "10", "40", "30"}, computed);
    }

    TEST(Numbers, OfPerformanceLevels)
    {
        ExampleRunner runner;
        Words computed;
        runner.open("pertabspec");
        runner.click("pertabspec.opper");
        runner.click("pertabspec.Command1");
        for (const char* distance : {"100 m", "800 m", "5 km", "marathon"})
        {
            const Words times = runner.line("perflevform.table", distance);
            computed.push_back(times[2]);   // at 60, 65, 70
        }
        runner.click("perflevform.Command1");
        runner.click("pertabspec.Command3");
        ModelState& state = runner.program.state;
        for (const double metres : {100.0, 800.0, 5000.0, 42195.0})
        {
            const double record = recordTime(state, 'm', RecordMode::record, metres, 1);
            computed.push_back(trimmed(
                formatNumber(100 * record / recordTime(state, 'm', RecordMode::timeOfLevel, metres, 0.7), 1, 0)));
        }
        const Words open = row(runner, "800 m");
        computed.insert(computed.end(), {open[5], open[6], row(runner, "10000 m")[6]});
        runner.click("vantstart.Option10");
        runner.click("vantstart.Command1");
        computed.push_back(row(runner, "marathon")[5]);
        EXPECT_EQ(row(runner, "marathon")[6], open[6]);
        EXPECT_EQ(std::stoi(open[5]) - std::stoi(row(runner, "marathon")[5]), 11) << "eleven points lost";
        runner.click("vantstart.Option9");
        runner.tick("vantstart.agecomp", true);
        runner.click("vantstart.Command1");
        computed.push_back(row(runner, "10000 m")[6]);
        expectNumbers(HelpTopicName::performanceLevels,
                      {"0", {"100", 3}, {"800", 3}, "42", "70", "5", {"10", 2}, "40:00", {"40", 2}, "30"}, computed);
    }

    /// The number in front of a word of a line, or behind it.
    std::string numberBy(const Words& words, const std::string& word, int step)
    {
        const auto found = std::find(words.begin(), words.end(), word);
        return found == words.end() ? "" : *(found + step);
    }

    TEST(Numbers, OfTheTrainingAnalysis)
    {
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        const std::string page = "anaform.Surface";
        const Words aerobic = runner.line(page, "Fully aerobic training pace =");
        const Words threshold = runner.line(page, "Anaerobic threshhold pace =");
        const Words vo2max = runner.line(page, "Estimated VO2 max =");
        const Words efforts = runner.line(page, "Pace for efforts of 3-5 minutes should be between this and");
        const Words laps = runner.line(page, "400 meter repetitions with good recovery should be");
        Words heartRates;
        for (const std::string& line : runner.lines(page))
            if (trimmed(line).starts_with("Associated heart rate ="))
                for (const std::string& word : wordsOf(line))
                    if (std::isdigit(static_cast<unsigned char>(word.front())) != 0)
                        heartRates.push_back(word);
        ASSERT_EQ(heartRates.size(), 6U);
        const std::string peak = numberBy(runner.line(page, "Best performances likely"), "at", 1);
        Words computed{aerobic[0], aerobic[3], aerobic[5], threshold[0], threshold[3], threshold[5], vo2max[0],
                       vo2max[7],  vo2max[10], efforts[0], efforts[3],   laps[0],      laps[2],      peak};
        computed.insert(computed.end(), heartRates.begin(), heartRates.end());
        computed.insert(computed.end(), {vo2max[7], aerobic[3], aerobic[5]});   // these stand there twice
        const Words miles = runner.line(page, "typically associated with training level of about");
        EXPECT_EQ(miles[0], "30");
        expectNumbers(HelpTopicName::trainingAnalysis,
                      {"185", "50", {"400", 3}, "3-5", "1000", {"30", 2}, "5", "40", "10", "40:00"}, computed);
    }

    TEST(Numbers, OfTheWorkoutPlanner)
    {
        ExampleRunner runner;
        runner.click("vantstart.Command3");
        runner.click("anaform.Command1");
        runner.type("workouts.num(2)", "5");
        Words computed;
        for (const char* name :
             {"split(2)", "rest(2)", "restd(2)", "tottime", "totload", "totldst", "stload", "approxhr", "apminhr"})
            computed.push_back(runner.label("workouts." + std::string(name)));
        EXPECT_EQ(runner.label("workouts.zonelbl"), "VO2 max pace");
        EXPECT_EQ(runner.box("workouts.dist(2)"), "800");
        EXPECT_EQ(runner.box("workouts.wrp(2)"), "114");
        EXPECT_EQ(runner.box("workouts.pctmaxtxt"), "97");
        EXPECT_EQ(runner.box("workouts.vrtext"), "85");
        EXPECT_EQ(runner.box("workouts.recovpacetxt"), "50");
        runner.click("workouts.scrun");
        runner.type("workouts.num(4)", "8");
        runner.slide("workouts.pctmax", 160);
        for (const char* name : {"minmi(4)", "fasttime", "approxhr", "totload"})
            computed.push_back(runner.label("workouts." + std::string(name)));
        EXPECT_EQ(runner.label("workouts.zonelbl"), "Ideal aerobic training pace");
        expectNumbers(HelpTopicName::workoutPlanner,
                      {{"100", 5},
                       "150",
                       {"50", 2},
                       {"0", 6},
                       {"40", 2},
                       "95",
                       "94",
                       "5",
                       {"800", 2},
                       "114",
                       "97",
                       "85",
                       "8",
                       "80",
                       "30",
                       "10",
                       "40:00"},
                      computed);
    }

    TEST(Numbers, OfTheSplitsAnalysis)
    {
        ExampleRunner runner;
        runner.open("splitform");
        runner.click("splitform.Command5");
        const Words seconds{"50", "55", "5", "10", "45"};
        const Words minutes{"3", "3", "4", "4", "3"};
        for (std::size_t i = 0; i < seconds.size(); ++i)
        {
            const std::string index = "(" + std::to_string(i) + ")";
            runner.type("splitform.splitdis" + index, "1000");
            runner.type("splitform.splitmin" + index, minutes[i]);
            runner.type("splitform.splitsec" + index, seconds[i]);
        }
        Words computed{row(runner, "5000 m")[0]};
        for (const char* name : {"totracetim", "calctott", "tdiff", "pcts", "s10000", "calcsm(0)"})
            computed.push_back(runner.label("splitform." + std::string(name)));
        runner.click("splitform.opwork");
        computed.push_back(runner.label("splitform.calctott"));
        runner.click("splitform.openergy");
        computed.push_back(runner.label("splitform.calctott"));
        expectNumbers(HelpTopicName::splitsAnalysis,
                      {{"100", 2},
                       {"1", 2},
                       {"2", 2},
                       "70/30",
                       {"5", 2},
                       "1000",
                       "3:50",
                       "3:55",
                       "4:05",
                       "4:10",
                       "3:45",
                       {"10", 2},
                       {"0", 3},
                       "40",
                       "30",
                       "40:00"},
                      computed);

        runner.outside.forget();
        runner.type("splitform.splitdis(0)", "100001");
        ASSERT_EQ(runner.outside.messages.size(), 1U);
        EXPECT_TRUE(runner.outside.messages[0].text.starts_with("Distance too big in row"));
    }

    TEST(Numbers, OfSpecialInformation)
    {
        ExampleRunner runner;
        runner.click("vantstart.Command4");
        Words computed;
        const auto calculate = [&] { runner.click("specinfo.Command1"); };
        const auto hillTime = [&] { return wordsOf(runner.box("specinfo.Text5"))[0]; };
        runner.click("specinfo.optkm");
        runner.click("specinfo.Option5");
        runner.type("specinfo.Text1", "15");
        calculate();
        computed.push_back(levelLine(runner)[0]);
        runner.type("specinfo.Text1", "10");
        calculate();
        computed.push_back(levelLine(runner)[0]);
        runner.click("specinfo.Option2");
        for (const char* slope : {"0.02", "-0.02"})
        {
            runner.type("specinfo.Text3", slope);
            calculate();
            computed.push_back(hillTime());
        }
        runner.type("specinfo.Text3", "0");
        runner.slide("specinfo.wsscr", 30);
        computed.push_back(runner.box("specinfo.wskph"));
        for (const char* wind : {"specinfo.headw", "specinfo.tailw"})
        {
            runner.click(wind);
            calculate();
            computed.push_back(hillTime());
        }
        runner.slide("specinfo.wsscr", 0);
        runner.type("specinfo.Text3", "0.02");
        runner.click("specinfo.Option3");
        calculate();
        const std::vector<std::string> plans = runner.lines("specinfo.table");
        Words best;
        for (const std::string& line : plans)
            if (const Words words = wordsOf(line); words.size() == 8 && words[7].find(':') == std::string::npos)
                if (best.empty() || std::stod(words[7]) < std::stod(best[7]))
                    best = words;
        ASSERT_EQ(best.size(), 8U);
        for (const std::string& line : plans)
            if (const Words words = wordsOf(line); words.size() == 8)
            {
                computed.push_back(words[6]);   // the first: even effort
                break;
            }
        computed.insert(computed.end(), {best[0], best[3], best[6], best[7]});
        runner.click("specinfo.Option1");
        calculate();
        const Words bold = runner.line("specinfo.table", "19:23");
        computed.insert(computed.end(), {bold[1], bold[3], bold[4]});
        runner.open("quickcalcs");
        runner.slide("quickcalcs.speedscrl", 900);
        runner.slide("quickcalcs.slopescrl", 30);
        for (const char* name : {"levoutmpm", "slopeoutmpm", "grosspowwatts", "grosscostkcmi"})
            computed.push_back(runner.box("quickcalcs." + std::string(name)));
        for (const int tenths : {-20, 0})
        {
            runner.slide("quickcalcs.slopescrl", tenths);
            runner.open("tmill");
            computed.push_back(runner.line("tmill.table", "3.4")[3]);   // speed, pace, 0.00, 0.01, 0.02
            runner.click("tmill.Command1");
        }
        expectNumbers(HelpTopicName::specialInformation,
                      {{"0.02", 4}, "15", {"10", 2}, {"3", 2}, "19:23", "9", "500", "40", "30", "160", "2", "3.4", "0"},
                      computed);

        runner.outside.forget();
        runner.type("specinfo.Text1", "500.1");
        calculate();
        ASSERT_EQ(runner.outside.messages.size(), 1U);
        EXPECT_TRUE(runner.outside.messages[0].text.starts_with("Distance over 500 km"));
    }

    TEST(Numbers, OfTheCourseProfile)
    {
        ExampleRunner runner;
        runner.open("profile");
        runner.type("profile.Text1", "10");
        runner.type("profile.endel", "250");
        runner.type("profile.distx", "5");
        runner.type("profile.eletx", "400");
        runner.click("profile.Command4");
        Words computed;
        const auto keep = [&](const Words& names) {
            for (const std::string& name : names)
                computed.push_back(runner.box("profile." + name));
        };
        EXPECT_EQ(runner.box("profile.startel"), "250");
        EXPECT_EQ(runner.box("profile.origelm"), "300");
        keep({"Text3", "Text4", "Text5", "Text6"});
        runner.click("profile.scur");
        keep({"Text4", "Text5", "Text6"});
        runner.move("profile.p1", {3150, 3000});
        keep({"mousexm", "mousegrade", "Text7", "Text8", "Text10"});
        expectNumbers(HelpTopicName::courseProfile,
                      {{"10", 2},
                       "250",
                       "5",
                       "400",
                       "300",
                       {"40:00", 2},
                       "1000",
                       "350",
                       "1",
                       "3",
                       "6",
                       "600",
                       {"50", 2},
                       "500",
                       "40",
                       "30",
                       "100"},
                      computed);
    }

    TEST(Numbers, OfHeatAndHumidity)
    {
        ExampleRunner runner;
        runner.open("heathum");
        runner.slide("heathum.tscrl", 80);
        runner.slide("heathum.rhscrl", 60);
        runner.slide("heathum.sunscrl", 8);
        runner.click("heathum.Command2");
        EXPECT_EQ(runner.box("heathum.sundesc"), "mostly sunny");
        Words computed{runner.box("heathum.wbgtc"), row(runner, "10000 m")[0]};
        runner.click("vantstart.Option10");
        runner.click("vantstart.Command1");
        computed.push_back(
            plainText(secondsOf(row(runner, "marathon")[0]) - secondsOf(runner.label("heathum.idealt(9)"))));
        for (const char* index : {"(6)", "(7)", "(9)"})
            for (const char* column : {"idealt", "givent", "pdec"})
                computed.push_back(runner.label("heathum." + std::string(column) + index));
        computed.push_back(runner.label("heathum.idealt(7)"));   // told again among the limits
        runner.slide("heathum.tscrl", 50);
        runner.slide("heathum.sunscrl", 2);
        runner.click("heathum.Command2");
        EXPECT_EQ(runner.box("heathum.sundesc"), "overcast");
        computed.insert(computed.end(), {runner.box("heathum.wbgtc"), runner.label("heathum.pdec(7)"),
                                         runner.label("heathum.pdec(9)")});
        runner.slide("heathum.sunscrl", 5);
        EXPECT_EQ(runner.box("heathum.sundesc"), "partly to mostly cloudy");
        expectNumbers(
            HelpTopicName::heatAndHumidity,
            {"0", "5", {"10", 2}, "1500", "400", "80", "60", "8", "5000", {"10000", 2}, "50", "2", "40", "30", "40:00"},
            computed);

        runner.outside.forget();
        runner.type("heathum.dispred", "399");
        runner.click("heathum.Command2");
        EXPECT_EQ(runner.outside.messages.size(), 1U);
    }

    TEST(Numbers, OfPerformanceTables)
    {
        ExampleRunner runner;
        Words computed{row(runner, "10000 m")[0]};
        runner.open("pertabspec");
        const auto table = [&](const char* kind) {
            runner.click("pertabspec." + std::string(kind));
            if (kind == std::string("oplev"))
                runner.type("pertabspec.lev", "75");
            runner.click("pertabspec.Command1");
        };
        table("opper");
        computed.push_back(runner.line("perflevform.table", "10 km")[3]);   // at 75
        runner.click("perflevform.Command1");
        table("oplev");
        computed.push_back(runner.line("perflevform.table", "10 km")[3]);   // at 40
        computed.push_back(runner.line("perflevform.table", "10 km")[7]);   // at 60
        runner.click("perflevform.Command1");
        table("opage");
        computed.push_back(runner.line("perflevform.table", "10 km")[7]);
        runner.click("perflevform.Command3");
        runner.move("perfgraph.graph", {600 + 100 * 55, 3000});
        EXPECT_EQ(runner.label("perfgraph.Label1"), "Age: 60");
        computed.push_back(wordsOf(runner.label("perfgraph.Label2")).back());
        computed.push_back(wordsOf(runner.label("perfgraph.pvelage(2)")).back());   // level 80
        computed.push_back(wordsOf(runner.label("perfgraph.pvelage(3)")).back());   // level 70
        expectNumbers(
            HelpTopicName::performanceTables,
            {{"100", 2}, "50", {"5", 2}, {"30", 2}, "75", {"10", 2}, {"40", 2}, {"60", 3}, "80", "70", {"0", 2}},
            computed);
    }

    /// Race files as a coach uses them; nothing where they are not built in.
    struct Coach : ExampleRunner
    {
        std::filesystem::path file = folder.path / "team.vtc";

        void newFile()
        {
            open("fileacc");
            type("fileacc.Text6", file.string());
            click("fileacc.Command2");
        }
        void addRace()
        {
            type("fileacc.Text2", "40");
            type("fileacc.Text4", "10");
            click("fileacc.Option3");
            click("fileacc.Command1");
        }
        void openFile() { click("fileacc.Command4"); }
        void mark(int race)
        {
            ListBox& list = get<ListBox>("fileacc.List1");
            enter(program, "fileacc.List1", false, [&] { ::select(list, race - 1); });
        }
        void select(int race)
        {
            mark(race);
            click("fileacc.Command5");
        }
        /// The row of the main form that a race is said to have gone to; empty for none.
        [[nodiscard]] std::string rowOf(int race)
        {
            return trimmed(get<ListBox>("fileacc.List1").items.at(static_cast<std::size_t>(race - 1)).substr(0, 2));
        }
        [[nodiscard]] bool isTicked(int row)
        {
            return get<CheckBox>("vantstart.Check1(" + std::to_string(row - 1) + ")").ticked;
        }
    };

    TEST(Numbers, OfSavedFiles)
    {
        Coach coach;
        coach.newFile();
        for (int race = 1; race <= 12; ++race)
            coach.addRace();
        const Words computed{std::to_string(std::filesystem::file_size(coach.file)), coach.box("fileacc.Text9")};
        coach.openFile();
        for (const int race : {3, 5, 8, 9})
            coach.select(race);
        EXPECT_EQ(coach.rowOf(3) + coach.rowOf(5) + coach.rowOf(8) + coach.rowOf(9), "1234");
        coach.mark(5);
        coach.click("fileacc.Command7");
        EXPECT_FALSE(coach.isTicked(2));
        coach.select(10);
        EXPECT_EQ(coach.rowOf(10), "2");
        EXPECT_TRUE(coach.isTicked(2));
        coach.select(12);
        EXPECT_EQ(coach.rowOf(12), "3");
        EXPECT_EQ(coach.rowOf(8), "");
        coach.select(1);
        ASSERT_EQ(coach.outside.messages.size(), 1U) << "her five are used up";
        EXPECT_TRUE(coach.outside.messages[0].text.starts_with("Already picked 5 races"));
        EXPECT_FALSE(coach.isTicked(5)) << "although four rows alone hold races";
        expectNumbers(
            HelpTopicName::savedFiles,
            {"60", {"12", 3}, "84", {"3", 2}, {"5", 2}, {"8", 3}, "9", "4", {"1", 7}, {"2", 4}, "10", "32767"},
            computed);
    }

    TEST(Numbers, OfSavedFilesSurprises)
    {
        Coach coach;
        coach.newFile();
        coach.openFile();
        EXPECT_EQ(coach.box("fileacc.Text9"), "2") << "an empty file";
        coach.type("fileacc.Text9", "1");
        coach.addRace();
        coach.addRace();
        coach.click("fileacc.Command2");
        EXPECT_EQ(coach.box("fileacc.Text9"), "1") << "a file that exists opened as a new one";
        EXPECT_EQ(std::filesystem::file_size(coach.file), 2U * 84);
    }
}
