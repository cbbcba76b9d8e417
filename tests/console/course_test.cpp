#include "console/course_command.h"

#include <sstream>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "console/runner_prediction.h"
#include "prediction/predicted_table.h"
#include "support/case_name.h"
#include "support/close_to.h"
#include "support/console_program.h"
#include "support/scratch_folder.h"

namespace
{
    using testing::HasSubstr;

    /// What the command prints.
    struct Printed
    {
        int status = 0;
        std::string out, errors;
    };

    /// A course file, and the runner of 10 km in 40:00 before it.
    struct CourseCommand
    {
        explicit CourseCommand(const std::string& bytes, const std::string& race = "10 km 40:00")
        {
            writeBytes(folder.path / "course", bytes);
            options.file = (folder.path / "course").string();
            options.entries = {{"race", race}, {"age", "40"}, {"miles", "30"}};
        }

        [[nodiscard]] Printed run() const
        {
            std::ostringstream out;
            std::ostringstream errors;
            Printed printed;
            printed.status = runCourse(options, out, errors);
            printed.out = out.str();
            printed.errors = errors.str();
            return printed;
        }

        ScratchFolder folder;
        CourseOptions options;
    };

    constexpr const char* flat =
        "5\r\n 3 \r\n600\r\n100\r\n300\r\n300\r\n 2 \r\n 1 \r\n 300 \r\n 2 \r\n 0 \r\n 300 \r\n 5000 \r\n 300 \r\n";

    std::string gpx(const std::string& elevation)
    {
        std::string bytes = "\xEF\xBB\xBF<?xml version=\"1.0\"?><gpx><rte>";
        for (int i = 0; i <= 100; ++i)
            bytes += "<rtept lat=\"" + std::to_string(0.001 * i) + "\" lon=\"8\">" + elevation + "</rtept>";
        return bytes + "</rte></gpx>";
    }

    // Rolling hills; the runner's races were run at 120 m.
    constexpr const char* hills = "5\r\n 3 \r\n600\r\n100\r\n250\r\n350\r\n 2 \r\n 1 \r\n 120 \r\n 5 \r\n 0 \r\n 250 "
                                  "\r\n 1000 \r\n 300 \r\n 2000 "
                                  "\r\n 230 \r\n 3500 \r\n 310 \r\n 5000 \r\n 350 \r\n";

    /// The time that `predict` tells for 5000 m.
    PredictedRow predictedFiveKilometers(const CourseCommand& command)
    {
        std::string wrong;
        const auto entries = entriesOf(command.options, wrong);
        EXPECT_TRUE(entries) << wrong;
        for (const PredictedRow& row : rowsOf(predictRunner(*entries, 10)))
            if (row.distance == 5000)
                return row;
        ADD_FAILURE() << "no such row";
        return {};
    }

    TEST(CourseText, OfAFlatCourseIsThatOfThePrediction)
    {
        const CourseCommand command(flat);
        const PredictedRow predicted = predictedFiveKilometers(command);
        const Printed printed = command.run();
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors, "");
        EXPECT_THAT(printed.out, HasSubstr("Horizontal, m              5000.0\nAlong slope, m             5000.0\n"
                                           "Rise, m                         0\nDrop, m                         0\n"
                                           "Flat equivalent         " +
                                           predicted.timeText + "\nEven effort             " + predicted.timeText +
                                           "\nStrategic               " + predicted.timeText + "\n"));
        EXPECT_THAT(printed.out, HasSubstr("\n       5  " + predicted.timeText)) << "the finish";
    }

    TEST(CourseJson, OfAFlatCourseIsThatOfThePrediction)
    {
        CourseCommand command(flat);
        command.options.format = CourseFormat::json;
        const PredictedRow predicted = predictedFiveKilometers(command);
        const Printed printed = command.run();
        ASSERT_EQ(printed.status, 0) << printed.errors;
        const auto json = nlohmann::json::parse(printed.out);
        EXPECT_TRUE(closeTo(json.at("results").at("flatTime"), predicted.time));
        // the search for a speed ends 0.0000625 m/s below it
        EXPECT_NEAR(json.at("results").at("evenTime"), predicted.time, 0.03);
        EXPECT_NEAR(json.at("splits")[0].at("perKm"), predicted.perKilometre, 0.01);
        EXPECT_NEAR(json.at("splits")[0].at("perMile"), predicted.perMile, 0.01);
    }

    // The texts below, digit by digit, are those of a second computation in another language.

    TEST(CourseText, OfHills)
    {
        const Printed printed = CourseCommand(hills).run();
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors, "");
        EXPECT_EQ(printed.out, R"(Horizontal, m              5000.0
Along slope, m             5006.4
Rise, m                       170
Drop, m                        70
Flat equivalent            18:51  
Even effort                21:10  
Strategic                  21:00  

      km       Time      Split     Per mile    Per km   Elev, m  Grade, %
       1      4:30       4:30        7:15      4:30         300       5.0
       2      7:51       3:21        5:23      3:21         230      -7.0
       3     12:24       4:33        7:19      4:33         283       5.3
       4     16:47       4:22        7:02      4:22         323       4.0
    5.01     21:00       4:13        6:44      4:11         350       2.7
)");
    }

    TEST(CourseText, CountsTheElevationOfTheRaces)
    {
        std::string bytes = hills;
        bytes.replace(bytes.find(" 120 \r\n 5 "), 5, " 300 ");
        EXPECT_THAT(CourseCommand(bytes).run().out, HasSubstr("Flat equivalent            18:51  \n"
                                                              "Even effort                21:07  \n"
                                                              "Strategic                  20:57  \n"));
    }

    TEST(CourseCsv, OfHills)
    {
        CourseCommand command(hills);
        command.options.format = CourseFormat::csv;
        command.options.miles = true;
        const Printed printed = command.run();
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors, "");
        EXPECT_EQ(printed.out, R"(mile,meters,elevation,grade,seconds,time,splitSeconds,split,perMile,perKm
1,1606.6104009353053,257.53727193452863,0.004691412386064929,392.9609967380175,6:33,392.9609967380175,6:33,6:33,4:04
2,3213.2674635519274,294.7075980561028,0.023135196045532033,804.2882698651368,13:24,411.3272731271193,6:51,6:51,4:16
3,4821.734089362827,345.24624238300873,0.031420387290552035,1214.8997554021205,20:15,410.61148553698365,6:51,6:51,4:15
3.1108086790691765,5000,350,0.02666666666666659,1259.7031693515348,21:00,44.803413949414335,44.8,6:44,4:11
)");
    }

    TEST(CourseJson, OfHillsOnASmoothCurve)
    {
        CourseCommand command(hills);
        command.options.format = CourseFormat::json;
        command.options.smooth = true;
        const Printed printed = command.run();
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors, "");
        EXPECT_EQ(
            printed.out,
            R"({"course":{"courseDist":5000,"origElev":120,"smooth":true,)"
            R"("points":[[0,250],[1000,300],[2000,230],[3500,310],[5000,350]]},)"
            R"("recording":null,"messages":[],"fault":null,)"
            R"("results":{"slopeDist":5007.812010838207,"totalRise":171.4299259259259,"totalDrop":71.42992592592589,)"
            R"("flatTime":1131.7403948834421,"evenTime":1259.0050166366318,"strategicTime":1250.001695035024,)"
            R"("courseLevelSpeed":4.382136159227333,"evenFlatSpeed":4.384899238713576},"splitUnit":"km","splits":[)"
            R"({"number":1,"meters":998.154877794591,"elevation":300.01824695349694,"grade":0.05011070733232456,)"
            R"("time":272.1639232423147,"split":272.1639232423147,"perMile":438.0053768864797,)"
            R"("perKm":272.1639232423147},)"
            R"({"number":2,"meters":1996.6785995907276,"elevation":230.07038863225003,"grade":-0.07005127348945227,)"
            R"("time":479.78380948752084,"split":207.61988624520615,"perMile":334.1318182094051,)"
            R"("perKm":207.61988624520615},)"
            R"({"number":3,"meters":2995.8980305152027,"elevation":277.75397356746254,"grade":0.047720834342758714,)"
            R"("time":735.6726929619158,"split":255.88888347439496,"perMile":411.8132392862167,)"
            R"("perKm":255.88888347439496},)"
            R"({"number":4,"meters":3994.8785711909645,"elevation":327.61821129009184,"grade":0.04991512416137612,)"
            R"("time":1001.1698669382706,"split":265.4971739763548,"perMile":427.27628395580274,)"
            R"("perKm":265.4971739763548},)"
            R"({"number":5.005383987042531,"meters":5000,"elevation":350,"grade":0.022267746033858078,)"
            R"("time":1250.001695035024,"split":248.8318280967535,"perMile":398.3115055716526,)"
            R"("perKm":247.49929509890526}]})"
            "\n");
    }

    TEST(CourseJson, HoldsEverything)
    {
        CourseCommand command(gpx("<ele>120</ele>"));
        command.options.format = CourseFormat::json;
        command.options.smooth = true;
        const Printed printed = command.run();
        ASSERT_EQ(printed.status, 0) << printed.errors;
        const auto json = nlohmann::json::parse(printed.out);
        EXPECT_EQ(json.at("course").at("courseDist"), 11120);   // 0.1 degrees are 11119.5 m
        EXPECT_EQ(json.at("course").at("points"), nlohmann::json::parse("[[0, 120], [11120, 120]]"));
        EXPECT_EQ(json.at("course").at("smooth"), true);
        EXPECT_EQ(json.at("recording").at("points"), 101);
        EXPECT_EQ(json.at("recording").at("rise"), 0);
        EXPECT_EQ(json.at("fault"), nullptr);
        EXPECT_EQ(json.at("splitUnit"), "km");
        EXPECT_EQ(json.at("splits").size(), 12U);
        EXPECT_EQ(json.at("results").at("slopeDist"), 11120);
    }

    TEST(CourseJson, OfAFaultHasNoResults)
    {
        std::string steep = flat;
        steep.replace(steep.find(" 5000 \r\n 300 "), 13, " 5000 \r\n 99999 ");
        CourseCommand command(steep);
        command.options.format = CourseFormat::json;
        const Printed printed = command.run();
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_THAT(printed.errors, HasSubstr("The calculation stopped"));
        EXPECT_EQ(nlohmann::json::parse(printed.out).at("results"), nullptr);
        command.options.format = CourseFormat::text;
        EXPECT_EQ(command.run().out, "");
    }

    TEST(CourseJson, OfACliffHasNoSplits)
    {
        CourseCommand command("500\r\n 3 \r\n9000\r\n0\r\n0\r\n0\r\n 2 \r\n 1 \r\n 300 \r\n 4 \r\n 0 \r\n 0 \r\n "
                              "249999.999999 \r\n 6850 \r\n 250000 \r\n 0 \r\n 500000 \r\n 0 \r\n");
        const std::string why =
            "The calculation stopped: a course with far more than 10,000 splits while listing the splits.";
        Printed printed = command.run();
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_EQ(printed.out, "");
        EXPECT_EQ(printed.errors, why + "\n");
        command.options.format = CourseFormat::json;
        printed = command.run();
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_EQ(printed.errors, why + "\n");
        const auto json = nlohmann::json::parse(printed.out);
        EXPECT_EQ(json.at("fault"), why);
        EXPECT_EQ(json.at("results"), nullptr);
        EXPECT_TRUE(json.at("splits").empty());
        EXPECT_EQ(json.at("course").at("points").size(), 4U);
    }

    void expectRefusal(CourseCommand& command, const std::string& why)
    {
        command.options.format = CourseFormat::json;
        command.options.miles = true;
        const Printed printed = command.run();
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_THAT(printed.errors, HasSubstr(why));
        const auto json = nlohmann::json::parse(printed.out);
        EXPECT_EQ(json.at("course"), nullptr);
        EXPECT_EQ(json.at("recording"), nullptr);
        EXPECT_EQ(json.at("results"), nullptr);
        EXPECT_EQ(json.at("fault"), nullptr);
        EXPECT_EQ(json.at("splitUnit"), "mi");
        EXPECT_TRUE(json.at("splits").empty());
        ASSERT_EQ(json.at("messages").size(), 1U);
        EXPECT_THAT(json.at("messages")[0].at("text").get<std::string>(), HasSubstr(why));
    }

    TEST(CourseJson, OfARefusalHasTheReasonAlone)
    {
        CourseCommand cut("5\r\n 3 \r\n");
        CourseCommand tooShort("49\r\n4\r\n6\r\n1\r\n2\r\n3\r\n2\r\n1\r\n0\r\n2\r\n0\r\n2\r\n49\r\n3\r\n");
        CourseCommand noRace(flat);
        noRace.options.entries = {{"age", "40"}};
        CourseCommand rough(gpx(""));
        for (const auto& [command, why] :
             {std::pair{&cut, "breaks off"}, std::pair{&tooShort, "Distance under 50 meters."},
              std::pair{&noRace, "No rows checked!"}, std::pair{&rough, "no elevations along its way"}})
            expectRefusal(*command, why);
    }

    struct RefusedCase
    {
        const char* name;
        std::string bytes;
        const char* why;
    };

    class RefusedCourse : public testing::TestWithParam<RefusedCase>
    {};

    TEST_P(RefusedCourse, SaysWhy)
    {
        const Printed printed = CourseCommand(GetParam().bytes).run();
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_EQ(printed.out, "");
        EXPECT_THAT(printed.errors, HasSubstr(GetParam().why));
    }

    INSTANTIATE_TEST_SUITE_P(
        Files, RefusedCourse,
        testing::Values(RefusedCase{"empty", "", "breaks off"}, RefusedCase{"cut", "5\r\n 3 \r\n", "breaks off"},
                        RefusedCase{"no_xml", "<gpx", "no XML"},
                        RefusedCase{"no_elevations", gpx(""), "no elevations along its way"},
                        RefusedCase{"another_kind", "<html/>", "neither a TCX nor a GPX file"},
                        RefusedCase{"too_short",
                                    "49\r\n4\r\n6\r\n1\r\n2\r\n3\r\n2\r\n1\r\n0\r\n2\r\n0\r\n2\r\n49\r\n3\r\n",
                                    "Distance under 50 meters."}),
        byName);

    constexpr const char* flatNote = "101 points recorded, climb 0 m; smoothed over 100 m on either side, climb 0 m; 2 "
                                     "points kept, largest elevation "
                                     "error 0.0 m\n";

    TEST(CourseRecording, IsToldOfBesideTextAndCsv)
    {
        CourseCommand command(gpx("<ele>120</ele>"));
        EXPECT_EQ(command.run().errors, flatNote);
        command.options.format = CourseFormat::csv;
        EXPECT_EQ(command.run().errors, flatNote);
        command.options.format = CourseFormat::json;
        EXPECT_EQ(command.run().errors, "") << "JSON holds it";
        CourseCommand saved(flat);
        EXPECT_EQ(saved.run().errors, "");
    }

    // Points 111.195 m apart, in turn 10 m higher and lower: 50 climbs. Of a waver of 5 m either way, along straight
    // lines, a mean weighted down to 0 at 100 m takes 100 / 3 m of its slope of 10 / 111.195: about 2 m are left.
    TEST(CourseRecording, IsSmoothedAsFarAsItIsTold)
    {
        std::string bytes = "<gpx><trk><trkseg>";
        for (int i = 0; i <= 100; ++i)
            bytes += "<trkpt lat=\"" + std::to_string(0.001 * i) + "\" lon=\"8\"><ele>" + (i % 2 == 0 ? "300" : "310") +
                     "</ele></trkpt>";
        CourseCommand command(bytes + "</trkseg></trk></gpx>");
        command.options.format = CourseFormat::json;
        const auto usual = nlohmann::json::parse(command.run().out);
        command.options.smoothing = 0;
        const auto rough = nlohmann::json::parse(command.run().out);
        EXPECT_EQ(usual.at("recording").at("rise"), 500);
        EXPECT_EQ(rough.at("recording").at("rise"), 500);
        EXPECT_NEAR(usual.at("recording").at("smoothedRise"), 200, 20);
        EXPECT_NEAR(rough.at("recording").at("smoothedRise"), 490, 10) << "places of 5 m miss the very peaks";
        EXPECT_EQ(rough.at("course").at("points").size(), 100U);
        EXPECT_GT(rough.at("results").at("evenTime"), usual.at("results").at("evenTime"));
        command.options.format = CourseFormat::text;
        EXPECT_THAT(command.run().errors, HasSubstr("smoothed over 0 m on either side"));
    }

    TEST(CourseRecording, MayBeATrainingFile)
    {
        CourseCommand command("<TrainingCenterDatabase><Courses><Course><Track>"
                              "<Trackpoint><DistanceMeters>0</DistanceMeters><AltitudeMeters>200</AltitudeMeters>"
                              "</Trackpoint><Trackpoint><DistanceMeters>5000</DistanceMeters>"
                              "<AltitudeMeters>250</AltitudeMeters></Trackpoint></Track></Course></Courses>"
                              "</TrainingCenterDatabase>");
        command.options.format = CourseFormat::json;
        const Printed printed = command.run();
        ASSERT_EQ(printed.status, 0) << printed.errors;
        const auto json = nlohmann::json::parse(printed.out);
        EXPECT_EQ(json.at("course").at("points"), nlohmann::json::parse("[[0, 200], [5000, 250]]"));
        EXPECT_EQ(json.at("course").at("origElev"), 300);
        EXPECT_EQ(json.at("recording").at("points"), 2);
    }

    std::string wide(const std::string& text, bool littleEndian)
    {
        std::string bytes = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
        for (const char c : text)
            bytes += littleEndian ? std::string{c, '\0'} : std::string{'\0', c};
        return bytes;
    }

    TEST(CourseRecording, MayHaveWideCharacters)
    {
        const std::string bytes = gpx("<ele>120</ele>");
        const std::string plain = CourseCommand(bytes).run().out;
        EXPECT_NE(plain, "");
        for (const bool littleEndian : {true, false})
        {
            const Printed printed = CourseCommand(wide(bytes.substr(3), littleEndian)).run();
            EXPECT_EQ(printed.status, 0);
            EXPECT_EQ(printed.out, plain);
            EXPECT_EQ(printed.errors, flatNote);
        }
    }

#ifdef VANTELOS_CONSOLE
    struct Mistake
    {
        const char* name;
        const char* arguments;
        const char* error;
    };

    class CourseMistakes : public testing::TestWithParam<Mistake>
    {};

    TEST_P(CourseMistakes, EndTheCommand)
    {
        const CourseCommand command(flat);
        const ConsoleRun run = console("course '" + command.options.file +
                                       "' --race '10 km 40:00' --age 40 --miles 30 " + GetParam().arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.errors, std::string(GetParam().error) + "\nRun with --help for more information.\n");
    }

    INSTANTIATE_TEST_SUITE_P(
        Options, CourseMistakes,
        testing::Values(
            Mistake{"other_splits", "--splits x", "--splits: \"x\" is neither km nor mi"},
            Mistake{"splits_in_capitals", "--splits KM", "--splits: \"KM\" is neither km nor mi"},
            Mistake{"splits_without_a_unit", "--splits", "--splits: 1 required UNIT missing"},
            Mistake{"other_format", "--format x", "--format: \"x\" is neither text nor csv nor json"},
            Mistake{"smoothing_nan", "--smoothing nan", "--smoothing: \"nan\" is not a number from 0 to 5000"},
            Mistake{"smoothing_a_word", "--smoothing far", "--smoothing: \"far\" is not a number from 0 to 5000"},
            Mistake{"smoothing_below_0", "--smoothing -1", "--smoothing: \"-1\" is not a number from 0 to 5000"},
            Mistake{"smoothing_above_5000", "--smoothing 5001", "--smoothing: \"5001\" is not a number from 0 to 5000"},
            Mistake{"smoothing_just_above_5000", "--smoothing 5000.5",
                    "--smoothing: \"5000.5\" is not a number from 0 to 5000"},
            Mistake{"smooth_with_a_number", "--smooth 3", "The following argument was not expected: 3"},
            Mistake{"a_roster", "--roster r.csv", "The following arguments were not expected: r.csv --roster"}),
        byName);

    TEST(CourseProgram, TakesItsOptionsAtTheirBounds)
    {
        const CourseCommand command(flat);
        const std::string course = "course '" + command.options.file + "' --race '10 km 40:00' --age 40 --miles 30";
        EXPECT_EQ(console(course).out, command.run().out);
        for (const char* option : {"--smoothing 0", "--smoothing 5000", "--splits km", "--format text"})
            EXPECT_EQ(console(course + " " + option).out, command.run().out) << option;
        EXPECT_THAT(console(course + " --smooth --splits mi --format csv").out, testing::StartsWith("mile,"));
        EXPECT_EQ(console("course --race '10 km 40:00'").status, 2) << "no file";
    }
#endif

    TEST(CourseRunner, IsCheckedFirst)
    {
        const Printed wrong = CourseCommand(flat, "10 km 4o:00").run();
        EXPECT_EQ(wrong.status, exitWrongUsage);
        EXPECT_THAT(wrong.errors, HasSubstr("4o:00"));
        const Printed refused = CourseCommand(flat, "10 km 1:00").run();
        EXPECT_EQ(refused.status, exitRefused);
        EXPECT_NE(refused.errors, "");
        CourseCommand missing(flat);
        missing.options.file += ".none";
        EXPECT_THAT(missing.run().errors, HasSubstr("can't be read"));
    }
}
