// Uses the form without sense or mercy, folders apart, so that it stays in its own. The same seed does the same.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "datafiles/race_record.h"
#include "hex_records.h"
#include "open_files.h"

namespace
{
    namespace fs = std::filesystem;

    class Monkey
    {
    public:
        explicit Monkey(std::uint32_t seed) : random(seed)
        {
            writeBytes(files.at("cut.vtc"), parkrun() + "x");
            writeBytes(files.at("empty.vtc"), "");
            std::string many;
            for (int i = 0; i < 105; ++i)
                many += halfMarathon();
            writeBytes(files.at("many.vtc"), many);
            writeBytes(files.at("ann.vtd"), "Ann, B\r\n44\r\n1e999\r\n");
        }

        void act()
        {
            files.outside.forget();
            files.outside.answers = {below(3) > 0};
            if (!files.isOpen())
                files.open();
            switch (below(6))
            {
            case 0: type(); break;
            case 1: pick(); break;
            case 2: choose(); break;
            case 3:
                files.type("Text6", one({"cut.vtc", "many.vtc", "new", "ann.vtd", "", "no/where", "many.vtc"}));
                break;
            default: click(); break;
            }
        }

        void expectHealth()
        {
            EXPECT_LE(files.outside.faults.size(), 1U);
            for (const FaultReport& fault : files.outside.faults)
                EXPECT_TRUE(fault.text.starts_with("The calculation stopped: ")) << fault.text;
            EXPECT_TRUE(files.program.outside.said.empty());
            const RaceFileState& races = files.races();
            EXPECT_GE(races.nextSlot, 0);
            EXPECT_LE(races.nextSlot, 4);
            EXPECT_LE(races.pickedCount, 5);
            for (const int pick : races.pickOrder)
                EXPECT_TRUE(pick >= 0 && pick <= 5) << pick;
            if (files.isOpen())
            {
                EXPECT_TRUE(!files.isMarkedOpen() || files.isEnabled("Command1"));
            }
            faults += static_cast<int>(files.outside.faults.size());
        }

        /// Records that are in the file were written whole.
        void expectWholeRecords()
        {
            EXPECT_GE(fs::file_size(files.at("many.vtc")), 105U * 84);
            for (const auto& entry : fs::directory_iterator(files.folder.path))
            {
                if (entry.path().extension() != ".vtc")
                    continue;
                const std::string bytes = readBytes(entry.path());
                const bool wasCut = entry.path().filename() == "cut.vtc" && bytes.size() == 85;
                EXPECT_TRUE(bytes.size() % 84 == 0 || wasCut) << entry.path();
                for (std::size_t at = 0; at + 84 <= bytes.size(); at += 84)
                    EXPECT_TRUE(isWhole(bytes.substr(at, 84), at / 84 + 1)) << entry.path() << " at " << at;
            }
        }

        int faults = 0;

    private:
        /// A record that was laid ready, one that the form wrote at its place, or a gap.
        static bool isWhole(const std::string& record, std::size_t place)
        {
            if (record == parkrun() || record == halfMarathon() || record == std::string(84, '\0') ||
                record == "x" + std::string(83, '\0'))   // a gap behind a file that was cut
                return true;
            const RaceRecord race = recordOfBytes(record);
            const auto marks = std::count(race.flags.begin(), race.flags.end(), 'X');
            const auto blanks = std::count(race.flags.begin(), race.flags.end(), ' ');
            return static_cast<std::size_t>(race.number) == place && marks <= 1 && marks + blanks == raceFlags;
        }

        unsigned below(unsigned bound) { return static_cast<unsigned>(random() % bound); }
        std::string one(const std::vector<std::string>& texts)
        {
            return texts[below(static_cast<unsigned>(texts.size()))];
        }

        void type()
        {
            files.type(one({"Text1", "Text2", "Text3", "Text4", "Text5", "Text7", "Text9"}),
                       one({"", "0", "1", "2", "7", "99", "100", "101", "-1", "2.5", "120", "1e39", "1e999", "40000",
                            std::string(80, 'c'), "\u0141\xff"}));
        }
        void pick()
        {
            const std::string list = one({"List1", "List1", "List1", "File1"});
            const std::size_t count = files.items(list).size();
            if (count > 0)
                files.pick(list, static_cast<int>(below(static_cast<unsigned>(count))));
        }
        void choose()
        {
            files.choose(
                one({"races", "races", "persdat", "Option1", "Option2", "Option3", "Option4", "Option5", "Option6"}));
        }
        void click()
        {
            const std::string button = one({"Command1", "Command2", "Command4", "Command4", "Command5", "Command5",
                                            "Command5", "Command7", "Command8", "Command3"});
            if (files.isEnabled(button) && (button != "Command3" || below(20) == 0))
                files.click(button);
        }

        std::mt19937 random;
        OpenFiles files;
    };

    class Monkeys : public testing::TestWithParam<std::uint32_t>
    {};

    TEST_P(Monkeys, NeitherBreakTheFormNorAFile)
    {
        Monkey monkey(GetParam());
        for (int i = 0; i < 1500 && !testing::Test::HasFailure(); ++i)
        {
            monkey.act();
            monkey.expectHealth();
        }
        monkey.expectWholeRecords();
        EXPECT_GT(monkey.faults, 0);
    }

    INSTANTIATE_TEST_SUITE_P(Seeds, Monkeys, testing::Range(1U, 4U));
}
