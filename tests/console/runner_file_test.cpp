// Runner files: a runner in JSON, and whatever else a file of that name may hold.

#include "console/runner_file.h"

#include <filesystem>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/scratch_folder.h"

namespace
{
    constexpr const char* wholeRunner = R"({
        "races": ["10 km 40:00", "marathon 3:05:10"],
        "age": 40.5, "sex": "f", "miles": 30, "kg-weight": 60.5, "cm-height": 171,
        "best-two": true, "english": false, "all-distances": true, "level": 99.95, "age-compare": true,
        "distances": ["15 km", "half"]
    })";

    TEST(RunnerFile, IsReadWhole)
    {
        std::string wrong;
        const auto runner = runnerOfJson(wholeRunner, wrong);
        ASSERT_TRUE(runner) << wrong;
        ASSERT_EQ(runner->races.size(), 2U);
        EXPECT_EQ(runner->races[0].text, "10 km 40:00");
        EXPECT_EQ(runner->races[1].row.unit, RaceUnit::marathon);
        EXPECT_EQ(runner->age, "40.5");
        EXPECT_EQ(runner->sex, 'f');
        EXPECT_EQ(runner->miles, 30);
        EXPECT_EQ(runner->kgWeight, 60.5);
        EXPECT_EQ(runner->cmHeight, 171);
        EXPECT_EQ(runner->bestTwo, true);
        EXPECT_EQ(runner->english, false);
        EXPECT_EQ(runner->allDistances, true);
        EXPECT_EQ(runner->level, 1000);   // 999.5 tenths, a tie, to even
        EXPECT_EQ(runner->ageCompare, true);
        ASSERT_EQ(runner->distances.size(), 2U);
        EXPECT_EQ(runner->distances[0].distance.distance, 15000);
    }

    TEST(RunnerFile, LeavesAbsentWhatItDoesNotSay)
    {
        std::string wrong;
        const auto runner = runnerOfJson("\xEF\xBB\xBF{}", wrong);
        ASSERT_TRUE(runner) << wrong;
        EXPECT_TRUE(runner->races.empty());
        EXPECT_FALSE(runner->age || runner->sex || runner->miles || runner->kgWeight || runner->cmHeight);
        EXPECT_FALSE(runner->bestTwo || runner->english || runner->allDistances || runner->level);
    }

    TEST(RunnerFile, TakesAnAgeAsText)
    {
        std::string wrong;
        const auto runner = runnerOfJson(R"({"age": "abc"})", wrong);
        ASSERT_TRUE(runner) << wrong;
        EXPECT_EQ(runner->age, "abc");
    }

    struct BadFile
    {
        const char* name;
        std::string bytes;
        const char* said;
    };

    class BadRunnerFile : public testing::TestWithParam<BadFile>
    {};

    TEST_P(BadRunnerFile, IsRefusedWithTheKey)
    {
        std::string wrong;
        EXPECT_FALSE(runnerOfJson(GetParam().bytes, wrong));
        EXPECT_NE(wrong.find(GetParam().said), std::string::npos) << wrong;
    }

    INSTANTIATE_TEST_SUITE_P(
        Values, BadRunnerFile,
        testing::Values(
            BadFile{"unknown_key", R"({"weight": 70})", "key \"weight\": there is no such key"},
            BadFile{"singular_key", R"({"race": "10 km 40:00"})", "key \"race\": there is no such key"},
            BadFile{"races_not_a_list", R"({"races": "10 km 40:00"})", "key \"races\": it must be a list of texts"},
            BadFile{"race_not_a_text", R"({"races": [40]})", "key \"races\": it must be a text"},
            BadFile{"race_wrong", R"({"races": ["10 km 4o:00"]})", "key \"races\": in \"10 km 4o:00\", \"4o:00\""},
            BadFile{"six_races",
                    R"({"races": ["1 km 3:00","1 km 3:00","1 km 3:00","1 km 3:00","1 km 3:00","2 km 7:00"]})",
                    "key \"races\": \"2 km 7:00\" is one race too many"},
            BadFile{"age_a_list", R"({"age": [40]})", "key \"age\": it must be a number or a text"},
            BadFile{"age_null", R"({"age": null})", "key \"age\": it must be a number or a text"},
            BadFile{"sex_a_number", R"({"sex": 1})", "key \"sex\": it must be a text"},
            BadFile{"sex_x", R"({"sex": "x"})", "key \"sex\": \"x\" is neither m nor f"},
            BadFile{"miles_a_text", R"({"miles": "30"})", "key \"miles\": it must be a number"},
            BadFile{"miles_a_fraction", R"({"miles": 30.5})", "key \"miles\": \"30.5\" is not a whole number"},
            BadFile{"miles_too_many", R"({"miles": 151})", "key \"miles\": \"151\" is not a whole number"},
            BadFile{"miles_negative", R"({"miles": -1})", "key \"miles\": \"-1\" is not a whole number"},
            BadFile{"weight_zero", R"({"kg-weight": 0})", "key \"kg-weight\": \"0\" is not a number above 0"},
            BadFile{"height_true", R"({"cm-height": true})", "key \"cm-height\": it must be a number"},
            BadFile{"best_two_a_number", R"({"best-two": 1})", "key \"best-two\": it must be true or false"},
            BadFile{"english_a_text", R"({"english": "yes"})", "key \"english\": it must be true or false"},
            BadFile{"all_distances_a_list", R"({"all-distances": []})",
                    "key \"all-distances\": it must be true or false"},
            BadFile{"level_too_high", R"({"level": 110.04})",
                    "key \"level\": \"110.04\" is not a number from 0 to 110"},
            BadFile{"age_compare_null", R"({"age-compare": null})", "key \"age-compare\": it must be true or false"},
            BadFile{"distance_wrong", R"({"distances": ["15 k"]})",
                    "key \"distances\": in \"15 k\", \"k\" is not a unit"},
            BadFile{"both_tables", R"({"english": true, "all-distances": true})", "exclude each other"},
            BadFile{"key_twice", R"({"age": 40, "age": 50})", "the key \"age\" stands there twice"}),
        byName);

    INSTANTIATE_TEST_SUITE_P(
        Bytes, BadRunnerFile,
        testing::Values(BadFile{"empty", "", "it is not JSON: line 1"},
                        BadFile{"cut", "{\"age\": 40,\n\"miles\"", "it is not JSON: line 2"},
                        BadFile{"two_objects", "{}{}", "it is not JSON: line 1"},
                        BadFile{"a_list", "[]", "it is not one JSON object"},
                        BadFile{"a_number", "40", "it is not one JSON object"},
                        BadFile{"not_utf8", "{\"sex\": \"\xff\"}", "it is not JSON"},
                        BadFile{"huge_number", R"({"level": 1e999})", "a number in it is too large"},
                        BadFile{"ten_megabytes", "{" + std::string(10'000'000, ' ') + "}", "larger than 1 MiB"},
                        BadFile{"deep_lists", "{\"races\": " + std::string(500'000, '['), "nested too deeply"},
                        BadFile{"deep_and_whole", R"({"races": [[["10 km 40:00"]]]})", "nested too deeply"}),
        byName);

    TEST(RunnerFile, TakesBinaryNoiseForNoRunner)
    {
        std::mt19937 random(1);
        for (int i = 0; i < 500; ++i)
        {
            std::string noise(static_cast<std::size_t>(random() % 300), '\0');
            for (char& c : noise)
                c = static_cast<char>(random() % 256);
            std::string wrong;
            EXPECT_FALSE(runnerOfJson(noise, wrong));
            EXPECT_FALSE(wrong.empty());
        }
    }

    TEST(RunnerFile, IsNoRunnerWhereverItIsCut)
    {
        const std::string whole = wholeRunner;
        for (std::size_t length = 0; length < whole.size(); ++length)
        {
            std::string wrong;
            EXPECT_FALSE(runnerOfJson(whole.substr(0, length), wrong)) << length;
            EXPECT_NE(wrong.find("it is not JSON: line "), std::string::npos) << length << ": " << wrong;
        }
    }

    /// The path of a file in a folder, and the folder.
    struct OneFile
    {
        explicit OneFile(const std::string& bytes) : path(folder.path / "runner.json") { writeBytes(path, bytes); }

        ScratchFolder folder;
        std::filesystem::path path;
    };

    TEST(RunnerFile, IsReadFromDisk)
    {
        const OneFile file(wholeRunner);
        std::string wrong;
        const auto runner = readRunnerFile(file.path, wrong);
        ASSERT_TRUE(runner) << wrong;
        EXPECT_EQ(runner->miles, 30);
    }

    TEST(RunnerFile, IsNamedInAnError)
    {
        const OneFile file(R"({"miles": 30, "mile": 31})");
        std::string wrong;
        EXPECT_FALSE(readRunnerFile(file.path, wrong));
        EXPECT_EQ(wrong, "The runner file \"" + file.path.string() + "\": key \"mile\": there is no such key");
    }

    TEST(RunnerFile, ThatIsTooLargeIsRefusedOnDiskToo)
    {
        const OneFile file("{" + std::string(10'000'000, ' ') + "}");
        std::string wrong;
        EXPECT_FALSE(readRunnerFile(file.path, wrong));
        EXPECT_NE(wrong.find("larger than 1 MiB"), std::string::npos) << wrong;
    }

    TEST(RunnerFile, ThatIsMissingOrAFolderCannotBeRead)
    {
        for (const auto& path : {std::filesystem::path("/nowhere/runner.json"), std::filesystem::temp_directory_path()})
        {
            std::string wrong;
            EXPECT_FALSE(readRunnerFile(path, wrong));
            EXPECT_EQ(wrong, "The runner file \"" + path.string() + "\" can't be read.");
        }
    }
}
