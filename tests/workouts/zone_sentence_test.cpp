#include "workouts/zone_sentence.h"

#include <fstream>
#include <map>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
    using nlohmann::json;

    Training trainingOf(const json& speeds)
    {
        Training training;
        training.aerobicSpeedLow = speeds.at("aerobicSpeedLow");
        training.aerobicTrainSpeed = speeds.at("aerobicTrainSpeed");
        training.aerobicSpeedHigh = speeds.at("aerobicSpeedHigh");
        training.thresholdSpeedLow = speeds.at("thresholdSpeedLow");
        training.thresholdSpeed = speeds.at("thresholdSpeed");
        training.thresholdSpeedHigh = speeds.at("thresholdSpeedHigh");
        training.intervalSpeed = speeds.at("intervalSpeed");
        training.vo2maxSpeed = speeds.at("vo2maxSpeed");
        return training;
    }

    // each case: which speeds, m/s, percent of standard, sentence, colour; from a table apart from the program's
    TEST(ZoneSentence, IsThatOfTheTableEverywhere)
    {
        std::ifstream file(VANTELOS_SOURCE_DIR "/tests/workouts/data/zones.json");
        const json table = json::parse(file);
        std::map<std::string, Training> trainings;
        for (const auto& [name, speeds] : table.at("speeds").items())
            trainings[name] = trainingOf(speeds);
        EXPECT_EQ(table.at("cases").size(), 675U);
        for (const json& row : table.at("cases"))
        {
            const ZoneSentence expected{row[3], row[4][0], row[4][1], row[4][2]};
            const ZoneSentence got = zoneSentence(trainings.at(row[0]), row[1], row[2]);
            EXPECT_EQ(got, expected) << row << " but got " << got.text;
        }
    }

    Training risingSpeeds()
    {
        Training training;
        training.aerobicSpeedLow = 3.0;
        training.aerobicTrainSpeed = 3.4;
        training.aerobicSpeedHigh = 3.6;
        training.thresholdSpeedLow = 3.8;
        training.thresholdSpeed = 4.0;
        training.thresholdSpeedHigh = 4.2;
        training.intervalSpeed = 4.4;
        training.vo2maxSpeed = 4.6;
        return training;
    }

    TEST(ZoneSentence, KeepsTheSlowestZonesColourInTheEasyZone)
    {
        const Training training = risingSpeeds();
        EXPECT_EQ(zoneSentence(training, 3.1, 12), (ZoneSentence{"Easy aerobic training pace", 0, 100, 100}));
        EXPECT_EQ(zoneSentence(training, 3.1, 15), (ZoneSentence{"Easy aerobic training pace", 0, 160, 0}));
    }

    TEST(ZoneSentence, SaysNothingOfALoadOf42)
    {
        const Training training = risingSpeeds();
        EXPECT_EQ(zoneSentence(training, 4.5, 42), (ZoneSentence{"VO2 max pace", 0, 160, 0}));
        EXPECT_EQ(zoneSentence(training, 4.5, 43),
                  (ZoneSentence{"VO2 max pace, and very stressful due to length of workout", 200, 0, 0}));
        EXPECT_EQ(
            zoneSentence(training, 3.7, 42),
            (ZoneSentence{"Hard aerobic 'marathon' intensity, and very stressful due to length of run", 200, 0, 0}));
    }

    TEST(ZoneSentence, TakesTheLaterOfTwoZonesOutOfOrder)
    {
        Training training = risingSpeeds();
        training.vo2maxSpeed = 2;
        EXPECT_EQ(zoneSentence(training, 2.5, 20).text, "Intense pace suitable for only races and short repetitions");
    }
}
