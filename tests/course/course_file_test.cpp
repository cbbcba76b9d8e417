#include "course/course_file.h"

#include <cmath>
#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "solved_course.h"
#include "support/case_name.h"

namespace
{
    constexpr const char* usualFile =
        "5\r\n 3 \r\n600\r\n100\r\n250\r\n350\r\n 2 \r\n 1 \r\n 300 \r\n 3 \r\n 0 \r\n 250 \r\n"
        " 2500.5 \r\n-.25 \r\n 5000 \r\n 350 \r\n";

    CourseFile usualCourse()
    {
        return {"5", "600", "100", "250", "350", 3, 2, 1, 300, {0, 2500.5, 5000}, {250, -0.25, 350}};
    }

    std::string wrongWith(const std::string& bytes)
    {
        Messages said;
        const std::optional<CourseFile> file = readCourseFile(bytes, said);
        EXPECT_EQ(said.size(), file ? 0U : 1U);
        return said.empty() ? "" : said.front().text;
    }

    CourseFile readBack(const std::string& bytes)
    {
        Messages said;
        const std::optional<CourseFile> file = readCourseFile(bytes, said);
        EXPECT_TRUE(file) << (said.empty() ? "" : said.front().text);
        return file.value_or(CourseFile{});
    }

    void expectSame(const CourseFile& got, const CourseFile& expected)
    {
        EXPECT_EQ(got.distance, expected.distance);
        EXPECT_EQ(got.unitCode, expected.unitCode);
        EXPECT_EQ(got.maxElev, expected.maxElev);
        EXPECT_EQ(got.minElev, expected.minElev);
        EXPECT_EQ(got.startElev, expected.startElev);
        EXPECT_EQ(got.endElev, expected.endElev);
        EXPECT_EQ(got.elevationCode, expected.elevationCode);
        EXPECT_EQ(got.paceCode, expected.paceCode);
        EXPECT_EQ(got.origElev, expected.origElev);
        EXPECT_EQ(got.pointX, expected.pointX);
        EXPECT_EQ(got.pointY, expected.pointY);
    }

    TEST(CourseFileBytes, AreALineAnItem)
    {
        EXPECT_EQ(bytesOf(usualCourse()), usualFile);
    }

    TEST(CourseFileBytes, AreReadBack)
    {
        expectSame(readBack(usualFile), usualCourse());
    }

    TEST(CourseFileBytes, MayEndLinesInLineFeedsAlone)
    {
        std::string bytes;
        for (const char c : std::string(usualFile))
            if (c != '\r')
                bytes += c;
        expectSame(readBack(bytes), usualCourse());
    }

    TEST(CourseFileBytes, HoldTextsAsTyped)
    {
        CourseFile file = usualCourse();
        file.distance = " abc, \"5\" ";
        file.maxElev = "";
        file.minElev = " 12 m";
        expectSame(readBack(bytesOf(file)), file);
        file.distance = "5\r\n6";
        EXPECT_EQ(readBack(bytesOf(file)).distance, "5  6") << "a field is one line";
    }

    TEST(CourseFileBytes, CutAnywhereAreRefused)
    {
        const std::string whole = usualFile;
        for (std::size_t length = 0; length + 2 < whole.size(); ++length)
            EXPECT_THAT(wrongWith(whole.substr(0, length)), testing::HasSubstr("can't be read")) << length;
        expectSame(readBack(whole.substr(0, whole.size() - 2)), usualCourse());
    }

    struct BadCase
    {
        const char* name;
        int line;
        const char* text;
        const char* why;
    };

    class BadLine : public testing::TestWithParam<BadCase>
    {};

    constexpr const char* tooLarge = "the number is larger than any course";

    TEST_P(BadLine, IsNamed)
    {
        std::string bytes;
        std::string rest = usualFile;
        for (int line = 1; !rest.empty(); ++line)
        {
            const std::size_t end = rest.find("\r\n");
            bytes += (line == GetParam().line ? GetParam().text : rest.substr(0, end)) + "\r\n";
            rest.erase(0, end + 2);
        }
        EXPECT_EQ(wrongWith(bytes), std::string("The course can't be read: ") + GetParam().why + " (line " +
                                        std::to_string(GetParam().line) + ").");
    }

    INSTANTIATE_TEST_SUITE_P(Lines, BadLine,
                             testing::Values(BadCase{"text_for_a_unit", 2, "km", "a number is wanted"},
                                             BadCase{"nothing_for_a_unit", 2, "", "a number is wanted"},
                                             BadCase{"text_for_an_elevation", 3, "high", "a number is wanted"},
                                             BadCase{"text_for_the_start", 5, "-", "a number is wanted"},
                                             BadCase{"text_for_the_races", 9, "x", "a number is wanted"},
                                             BadCase{"count_minus_1", 10, "-1 ", "a course has 2 to 100 points"},
                                             BadCase{"count_0", 10, " 0 ", "a course has 2 to 100 points"},
                                             BadCase{"count_1", 10, " 1 ", "a course has 2 to 100 points"},
                                             BadCase{"count_101", 10, " 101 ", "a course has 2 to 100 points"},
                                             BadCase{"count_1e9", 10, " 1000000000 ", "a course has 2 to 100 points"},
                                             BadCase{"count_2_and_a_half", 10, " 2.5 ", "a course has 2 to 100 points"},
                                             BadCase{"text_for_x", 13, "12 km", "a number is wanted"},
                                             BadCase{"nan_for_y", 14, "nan", "a number is wanted"},
                                             BadCase{"inf_for_y", 14, "inf", "a number is wanted"},
                                             BadCase{"far_away", 13, " 2e9 ", tooLarge},
                                             BadCase{"beyond_a_double", 13, " 1e999 ", tooLarge},
                                             BadCase{"distance_beyond_a_double", 1, "1e999", tooLarge},
                                             BadCase{"distance_far_away", 1, "1e308", tooLarge},
                                             BadCase{"distance_that_begins_far_away", 1, "1e308 km", tooLarge},
                                             BadCase{"max_beyond_a_double", 3, "1e999", tooLarge},
                                             BadCase{"max_far_away", 3, "1e308", tooLarge},
                                             BadCase{"min_beyond_a_double", 4, "-1e999", tooLarge},
                                             BadCase{"min_far_away", 4, "-1e308", tooLarge},
                                             BadCase{"start_beyond_a_double", 5, "1e999", tooLarge},
                                             BadCase{"start_far_away", 5, "1e308", tooLarge},
                                             BadCase{"end_beyond_a_double", 6, "1e999", tooLarge},
                                             BadCase{"end_far_away", 6, "1e308", tooLarge}),
                             byName);

    TEST(CourseFileBytes, WithMorePointsThanTheyHaveAreRefused)
    {
        CourseFile file = usualCourse();
        std::string bytes = bytesOf(file);
        bytes.replace(bytes.find(" 3 \r\n 0 "), 3, " 4 ");
        EXPECT_EQ(wrongWith(bytes), "The course can't be read: the file breaks off (line 16).");
        EXPECT_THAT(wrongWith(std::string(longestCourseFile + 1, 'x')), testing::HasSubstr("larger than any course"));
        EXPECT_THAT(wrongWith(std::string(longestCourseFile, '\n')), testing::HasSubstr("line 2"));
    }

    TEST(Entries, OfAFileChangeWhatItHasACodeFor)
    {
        CourseFile file = usualCourse();
        file.unitCode = 6;
        file.elevationCode = 1;
        file.paceCode = 2;
        CourseEntries entries = entriesOf(file, {});
        EXPECT_EQ(entries.unit, CourseUnit::halfMarathon);
        EXPECT_TRUE(entries.feet);
        EXPECT_TRUE(entries.perKilometer);
        file.unitCode = 7;
        file.elevationCode = 0;
        file.paceCode = 1.5;
        file.origElev = 4500.6;
        entries = entriesOf(file, entries);
        EXPECT_EQ(entries.unit, CourseUnit::halfMarathon);
        EXPECT_TRUE(entries.feet);
        EXPECT_TRUE(entries.perKilometer);
        EXPECT_EQ(entries.origElev, 4500);
        file.origElev = -1e9;
        EXPECT_EQ(entriesOf(file, {}).origElev, -100);
    }

    RC_GTEST_PROP(AnyCourseFile, HasTheSameNumbersAgain, ())
    {
        const auto number = rc::gen::map(rc::gen::arbitrary<std::int64_t>(), [](std::int64_t bits) {
            return static_cast<double>(bits) / 9.3e12;   // up to about 1e6, all digits
        });
        CourseFile file = usualCourse();
        const auto count = *rc::gen::inRange<std::size_t>(2, 101);
        file.pointX = *rc::gen::container<std::vector<double>>(count, number);
        file.pointY = *rc::gen::container<std::vector<double>>(count, number);
        Messages said;
        const std::optional<CourseFile> again = readCourseFile(bytesOf(file), said);
        RC_ASSERT(again.has_value());
        RC_ASSERT(again->pointX == file.pointX);
        RC_ASSERT(again->pointY == file.pointY);
    }
}
