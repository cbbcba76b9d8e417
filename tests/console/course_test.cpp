#include "console/course_command.h"

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/case_name.h"
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

    TEST(CourseText, TellsTimesAndSplits)
    {
        const Printed printed = CourseCommand(flat).run();
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors, "");
        EXPECT_THAT(printed.out, HasSubstr("Horizontal, m              5000.0\nAlong slope, m             5000.0\n"
                                           "Rise, m                         0\nDrop, m                         0\n"));
        EXPECT_THAT(printed.out, HasSubstr("\n       1      3:46"));
        EXPECT_THAT(printed.out, HasSubstr("\n       5     18:50")) << "five times as long";
    }

    TEST(CourseCsv, IsALineASplit)
    {
        CourseCommand command(flat);
        command.options.format = CourseFormat::csv;
        command.options.miles = true;
        const Printed printed = command.run();
        EXPECT_EQ(printed.status, 0);
        EXPECT_THAT(printed.out,
                    testing::StartsWith("mile,meters,elevation,grade,seconds,time,splitSeconds,split,perMile,perKm\n"
                                        "1,1609.3"));
        EXPECT_EQ(std::count(printed.out.begin(), printed.out.end(), '\n'), 5);
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
