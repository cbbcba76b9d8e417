#include "console/races_command.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>

#include "console/race_csv.h"
#include "console/runner_options.h"
#include "datafiles/code_page.h"
#include "support/case_name.h"
#include "support/console_program.h"
#include "support/scratch_folder.h"

namespace
{
    namespace fs = std::filesystem;
    using testing::HasSubstr;

    struct Printed
    {
        int status = 0;
        std::string out, errors;
    };

    /// A folder with files, and the command in it.
    struct RacesCommand
    {
        ScratchFolder folder;
        RacesOptions options;

        [[nodiscard]] std::string at(const std::string& name) const { return (folder.path / name).string(); }

        Printed run(const std::vector<std::string>& names)
        {
            options.files.clear();
            for (const std::string& name : names)
                options.files.push_back(at(name));
            std::ostringstream out;
            std::ostringstream errors;
            Printed printed;
            printed.status = runRaces(options, out, errors);
            printed.out = out.str();
            printed.errors = errors.str();
            return printed;
        }
        Printed import(const std::string& csv)
        {
            writeBytes(at("in.csv"), csv);
            options.importing = true;
            options.exporting = false;
            return run({"in.csv", "out.vtc"});
        }
    };

    std::string twoRaces()
    {
        return bytesOf(recordOf({"1", "", "19", "20.5", "5", 3, "Parkrun, wet"})) +
               bytesOf(recordOf({"2", "1", "29", "30", "", 6, "Z\u00fcrich \"flat\""}));
    }

    constexpr const char* twoRacesCsv = "number,hours,minutes,seconds,distance,unit,comment\n"
                                        "1,0,19,20.5,5,km,\"Parkrun, wet\"\n"
                                        "2,1,29,30,0,half,\"Z\u00fcrich \"\"flat\"\"\"\n";

    TEST(RacesText, IsTheListOfTheWindow)
    {
        RacesCommand command;
        writeBytes(command.at("a.vtc"), twoRaces());
        const Printed printed = command.run({"a.vtc"});
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors, "");
        EXPECT_EQ(printed.out, "    # Hrs  Min    Sec  Number  mi  yd  km   m mar  hm  Comments\n"
                               "    1   0   19   20.5       5           X              Parkrun, wet\n"
                               "    2   1   29     30       0                       X  Z\u00fcrich \"flat\"\n");
    }

    TEST(RacesCsv, IsALineARace)
    {
        RacesCommand command;
        command.options.format = RacesFormat::csv;
        writeBytes(command.at("a.vtc"), twoRaces());
        EXPECT_EQ(command.run({"a.vtc"}).out, twoRacesCsv);
    }

    TEST(RacesJson, HoldsEverything)
    {
        RacesCommand command;
        command.options.format = RacesFormat::json;
        writeBytes(command.at("a.vtc"), twoRaces() + "xyz");
        const Printed printed = command.run({"a.vtc"});
        EXPECT_EQ(printed.status, 0);
        EXPECT_THAT(printed.errors, HasSubstr("the last 3 bytes are no whole record and are left out"));
        EXPECT_EQ(printed.out,
                  "{\"races\":[{\"number\":1,\"hours\":0,\"minutes\":19,\"seconds\":20.5,\"distance\":5,"
                  "\"unit\":\"km\",\"comment\":\"Parkrun, wet\"},{\"number\":2,\"hours\":1,\"minutes\":29,"
                  "\"seconds\":30,\"distance\":0,\"unit\":\"half\",\"comment\":\"Z\u00fcrich \\\"flat\\\"\"}],"
                  "\"leftOver\":3}\n");
    }

    TEST(Races, OfAnEmptyFileAreNone)
    {
        RacesCommand command;
        command.options.format = RacesFormat::csv;
        writeBytes(command.at("a.vtc"), "");
        const Printed printed = command.run({"a.vtc"});
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.out, "number,hours,minutes,seconds,distance,unit,comment\n");
    }

    TEST(Races, OfAnEnormousFileAreRefusedAtOnce)
    {
        RacesCommand command;
        writeBytes(command.at("a.vtc"), twoRaces());
        fs::resize_file(command.at("a.vtc"), 10'000'000'000);
        const Printed printed = command.run({"a.vtc"});
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_EQ(printed.out, "");
        EXPECT_THAT(printed.errors, HasSubstr("longer than 32767 races"));
        EXPECT_THAT(command.run({"none.vtc"}).errors, HasSubstr("can't be read"));
    }

    TEST(Races, OfAFileThatWasCutAreTheWholeOnes)
    {
        for (const auto& [length, races, leftOver] :
             std::vector<std::tuple<std::size_t, int, std::size_t>>{{83, 0, 83}, {84, 1, 0}, {85, 1, 1}, {168, 2, 0}})
        {
            RacesCommand command;
            command.options.format = RacesFormat::csv;
            writeBytes(command.at("a.vtc"), twoRaces().substr(0, length));
            const Printed printed = command.run({"a.vtc"});
            EXPECT_EQ(printed.status, 0);
            EXPECT_EQ(std::ranges::count(printed.out, '\n'), races + 1) << length;
            EXPECT_EQ(printed.errors, leftOver == 0 ? ""
                                                    : "\"" + command.at("a.vtc") + "\": warning: the last " +
                                                          std::to_string(leftOver) +
                                                          " bytes are no whole record and are left out.\n");
        }
    }

    TEST(Races, OfAFileAreListedBeyondWhatTheWindowHolds)
    {
        RacesCommand command;
        command.options.format = RacesFormat::csv;
        std::string bytes;
        for (int i = 1; i <= 101; ++i)
            bytes += bytesOf(recordOf({std::to_string(i), "", "19", "", "5", 3, ""}));
        writeBytes(command.at("a.vtc"), bytes);
        EXPECT_THAT(command.run({"a.vtc"}).out, testing::EndsWith("\n101,0,19,0,5,km,\n"));
    }

    TEST(Races, OfWhatIsNoFileAreRefusedAtOnce)
    {
        RacesCommand command;
        ASSERT_EQ(mkfifo(command.at("pipe").c_str(), 0600), 0);
        fs::create_directory(command.at("folder"));
        for (const char* name : {"pipe", "folder"})
        {
            EXPECT_EQ(command.run({name}).status, exitRefused);
            EXPECT_THAT(command.run({name}).errors, HasSubstr("can't be read"));
        }
    }

    TEST(Races, LeaveOutWhatIsNoNumber)
    {
        RacesCommand command;
        command.options.format = RacesFormat::csv;
        std::string bytes = twoRaces();
        bytes.replace(10, 4, "\xff\xff\xff\xff");
        writeBytes(command.at("a.vtc"), bytes);
        const Printed printed = command.run({"a.vtc"});
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_THAT(printed.errors, HasSubstr("Race 1 can't be read"));
        EXPECT_THAT(printed.out, HasSubstr("\n2,1,29,30"));
    }

    TEST(Import, WritesTheRecords)
    {
        RacesCommand command;
        const Printed printed = command.import(twoRacesCsv);
        EXPECT_EQ(printed.errors, "");
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.out, "");
        EXPECT_EQ(readBytes(command.at("out.vtc")), twoRaces());
    }

    TEST(Import, TakesColumnsInAnyOrderAndLeavesSomeOut)
    {
        RacesCommand command;
        const Printed printed = command.import("\xEF\xBB\xBF Comment ,Unit,MINUTES,distance\r\n"
                                               "first,KM,40,10\r\n"
                                               "\r\n"
                                               ",marathon,200\r\n"
                                               "\"\",, 3.5 ,\r\n");
        EXPECT_EQ(printed.errors, "");
        EXPECT_EQ(readBytes(command.at("out.vtc")), bytesOf(recordOf({"1", "", "40", "", "10", 3, "first"})) +
                                                        bytesOf(recordOf({"2", "", "200", "", "", 5, ""})) +
                                                        bytesOf(recordOf({"3", "", "3.5", "", "", 0, ""})));
    }

    TEST(Import, WarnsOfCommentsThatItCannotKeep)
    {
        RacesCommand command;
        const Printed printed = command.import("comment\n\u0141\u00f3d\u017a\n" + std::string(61, 'c') + "\n");
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.errors,
                  "line 2: warning: characters of the comment that race files can't hold became \"?\".\n"
                  "line 3: warning: the comment is cut after 60 of its 61 characters.\n");
        EXPECT_EQ(readBytes(command.at("out.vtc")).substr(24, 5), "?\xf3"
                                                                  "d? ");
    }

    struct BadCsv
    {
        std::string name, csv, error;
    };

    class BadImport : public testing::TestWithParam<BadCsv>
    {};

    TEST_P(BadImport, NamesTheLineAndWritesNothing)
    {
        RacesCommand command;
        const Printed printed = command.import(GetParam().csv);
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_EQ(printed.errors, GetParam().error + "\nNothing has been written.\n");
        EXPECT_FALSE(fs::exists(command.at("out.vtc")));
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, BadImport,
        testing::Values(
            BadCsv{"empty", "",
                   "line 1: the column \"\" is not known; the columns are number, hours, minutes, seconds, distance, "
                   "unit, "
                   "comment."},
            BadCsv{
                "other_heading", "number,pace\n",
                "line 1: the column \"pace\" is not known; the columns are number, hours, minutes, seconds, distance, "
                "unit, comment."},
            BadCsv{"twice", "unit,unit\n", "line 1: the column \"unit\" stands there twice."},
            BadCsv{"no_number", "minutes\n4\n4o\n", "line 3: minutes: \"4o\" is not a number."},
            BadCsv{"too_large", "seconds\n1e39\n", "line 2: seconds: \"1e39\" is too large for the file."},
            BadCsv{"race_far_below", "number\n-32769\n",
                   "line 2: number: \"-32769\" is not a whole number from -32768 to 32767."},
            BadCsv{"race_40000", "number\n40000\n",
                   "line 2: number: \"40000\" is not a whole number from -32768 to 32767."},
            BadCsv{"half_a_race", "number\n1.5\n",
                   "line 2: number: \"1.5\" is not a whole number from -32768 to 32767."},
            BadCsv{"long_line", "comment\n" + std::string(65537, 'c') + "\n1,2\n",
                   "line 2: the line is longer than 65536 bytes.\nline 3: there are more fields than headings."},
            BadCsv{"long_headings", std::string(65537, 'c') + "\n", "line 1: the line is longer than 65536 bytes."},
            BadCsv{"unit", "unit\nmiles\n", "line 2: unit: \"miles\" is none of mi, yd, km, m, marathon, half."},
            BadCsv{"no_utf8", "comment\nZ\xfcrich\n", "line 2: the comment is not UTF-8."},
            BadCsv{"more_fields", "unit\nkm,5\n", "line 2: there are more fields than headings."},
            BadCsv{"open_quote", "comment\n\"wet\n", "line 2: a quotation mark has no partner."},
            BadCsv{"two_lines", "hours\nx\n1\ny\n",
                   "line 2: hours: \"x\" is not a number.\nline 4: hours: \"y\" is not a number."}),
        byName);

    TEST(Import, TakesALineOf65536Bytes)
    {
        RacesCommand command;
        EXPECT_EQ(command.import("comment\n" + std::string(65536, 'c') + "\n").status, 0);
        EXPECT_EQ(readBytes(command.at("out.vtc")).substr(24), std::string(60, 'c'));
    }

    TEST(Import, StopsAfterAHundredErrors)
    {
        RacesCommand command;
        std::string csv = "hours\n";
        std::string told;
        for (int i = 2; i <= 101; ++i)
        {
            csv += "x\n";
            told += "line " + std::to_string(i) + ": hours: \"x\" is not a number.\n";
        }
        EXPECT_EQ(command.import(csv).errors, told + "Nothing has been written.\n");
        EXPECT_EQ(command.import(csv + "1\nx\n").errors,
                  told + "There are 100 errors up to here; the lines behind have not been read.\n"
                         "Nothing has been written.\n");
    }

    TEST(Import, HoldsNoMoreRacesThanAFile)
    {
        RacesCommand command;
        std::string csv = "minutes\n";
        for (int i = 0; i < 32768; ++i)
            csv += "1\n";
        EXPECT_EQ(command.import(csv).errors,
                  "line 32769: a race file holds 32767 races at the most.\nNothing has been written.\n");
    }

    TEST(Export, AndImportUndoEachOther)
    {
        RacesCommand command;
        writeBytes(command.at("a.vtc"), twoRaces());
        command.options.exporting = true;
        EXPECT_EQ(command.run({"a.vtc", "in.csv"}).status, 0);
        EXPECT_EQ(readBytes(command.at("in.csv")), twoRacesCsv);
        EXPECT_EQ(command.import(readBytes(command.at("in.csv"))).status, 0);
        EXPECT_EQ(readBytes(command.at("out.vtc")), twoRaces());
    }

    TEST(Export, OfADamagedFileWritesNothingWithoutForce)
    {
        RacesCommand command;
        std::string bytes = twoRaces();
        bytes.replace(10, 4, "\xff\xff\xff\xff");
        writeBytes(command.at("a.vtc"), bytes);
        command.options.exporting = true;
        Printed printed = command.run({"a.vtc", "out.csv"});
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_EQ(printed.errors, "Race 1 can't be read: a result that is no number.\n"
                                  "Nothing has been written; --force leaves such races out.\n");
        EXPECT_FALSE(fs::exists(command.at("out.csv")));
        command.options.force = true;
        printed = command.run({"a.vtc", "out.csv"});
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_THAT(readBytes(command.at("out.csv")), HasSubstr("comment\n2,1,29,30"));
    }

    TEST(Export, OfAFileThatWasCutWritesTheRestAndTells)
    {
        RacesCommand command;
        writeBytes(command.at("a.vtc"), twoRaces() + "xyz");
        command.options.exporting = true;
        const Printed printed = command.run({"a.vtc", "out.csv"});
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_THAT(printed.errors, HasSubstr("warning: the last 3 bytes"));
        EXPECT_EQ(readBytes(command.at("out.csv")), twoRacesCsv);
    }

    TEST(Files, ThatAreReadAreNotWritten)
    {
        RacesCommand command;
        writeBytes(command.at("a.vtc"), twoRaces());
        fs::create_symlink("a.vtc", command.at("link"));
        fs::create_hard_link(command.at("a.vtc"), command.at("same"));
        command.options.exporting = true;
        command.options.force = true;
        for (const char* name : {"a.vtc", "link", "same", "./a.vtc"})
        {
            const Printed printed = command.run({"a.vtc", name});
            EXPECT_EQ(printed.status, exitRefused);
            EXPECT_THAT(printed.errors, HasSubstr("is the file that is to be read.")) << name;
        }
        EXPECT_EQ(readBytes(command.at("a.vtc")), twoRaces());
    }

    TEST(Files, ThatAreFoldersOrLeadNowhereStay)
    {
        RacesCommand command;
        fs::create_directory(command.at("folder"));
        fs::create_symlink("none", command.at("link"));
        writeBytes(command.at("in.csv"), twoRacesCsv);
        command.options.importing = true;
        EXPECT_THAT(command.run({"in.csv", "link"}).errors, HasSubstr("is there already"));
        EXPECT_FALSE(fs::exists(command.at("none")));
        command.options.force = true;
        EXPECT_THAT(command.run({"in.csv", "folder"}).errors, HasSubstr("could not be written: Is a directory."));
        EXPECT_TRUE(fs::is_directory(command.at("folder")));
    }

    TEST(Files, ThatAreThereAreReplacedByForceAlone)
    {
        RacesCommand command;
        writeBytes(command.at("out.vtc"), "old");
        const Printed printed = command.import(twoRacesCsv);
        EXPECT_EQ(printed.status, exitRefused);
        EXPECT_THAT(printed.errors, HasSubstr("is there already; --force replaces it."));
        EXPECT_EQ(readBytes(command.at("out.vtc")), "old");
        command.options.force = true;
        EXPECT_EQ(command.import(twoRacesCsv).status, 0);
        EXPECT_EQ(readBytes(command.at("out.vtc")), twoRaces());
    }

    TEST(Files, ThatCannotBeWrittenAreTold)
    {
        RacesCommand command;
        writeBytes(command.at("in.csv"), twoRacesCsv);
        command.options.importing = true;
        EXPECT_THAT(command.run({"in.csv", "none/out.vtc"}).errors, HasSubstr("could not be written"));
        EXPECT_THAT(command.run({"none.csv", "out.vtc"}).errors, HasSubstr("can't be read"));
    }

    TEST(Usage, IsOneFileOrTwo)
    {
        RacesCommand command;
        EXPECT_EQ(command.run({"a", "b"}).status, exitWrongUsage);
        command.options.importing = true;
        EXPECT_EQ(command.run({"a"}).status, exitWrongUsage);
        command.options.exporting = true;
        EXPECT_EQ(command.run({"a", "b"}).status, exitWrongUsage);
    }

    TEST(Usage, HasOptionsWhereTheyMeanSomething)
    {
        RacesCommand command;
        writeBytes(command.at("a.vtc"), twoRaces());
        command.options.force = true;
        EXPECT_EQ(command.run({"a.vtc"}).status, exitWrongUsage);
        command.options.format = RacesFormat::text;
        for (bool RacesOptions::*way : {&RacesOptions::importing, &RacesOptions::exporting})
        {
            command.options.importing = command.options.exporting = false;
            command.options.*way = true;
            EXPECT_EQ(command.run({"a.vtc", "out"}).status, exitWrongUsage);
            EXPECT_FALSE(fs::exists(command.at("out")));
        }
    }

    TEST(Zeros, KeepTheirMinus)
    {
        RaceRecord record = recordOf({"1", "-0", "", "-0", "5", 3, ""});
        record.number = -32768;
        const std::string csv = csvOf({record});
        EXPECT_THAT(csv, HasSubstr("\n-32768,-0,0,-0,5,km,\n"));
        EXPECT_EQ(bytesOf(racesOfCsv(csv).records.at(0)), bytesOf(record));
    }

    TEST(Gap, ComesBackWithBlanks)
    {
        const RaceRecord gap = recordOfBytes("");
        EXPECT_EQ(bytesOf(racesOfCsv(csvOf({gap})).records.at(0)), std::string(18, '\0') + std::string(66, ' '));
    }

#ifdef VANTELOS_CONSOLE
    TEST(Program, ListsAndMovesRaces)
    {
        const ScratchFolder folder;
        const std::string at = "'" + folder.path.string();
        writeBytes(folder.path / "a.vtc", bytesOf(recordOf({"1", "", "19", "20.5", "5", 3, "Parkrun, wet"})) +
                                              bytesOf(recordOf({"2", "1", "29", "30", "", 6, "Z\u00fcrich"})));
        const std::string guide = readBytes(VANTELOS_SOURCE_DIR "/docs/console.md");
        const ConsoleRun listed = console("races " + at + "/a.vtc'");
        EXPECT_EQ(listed.status, 0);
        EXPECT_THAT(guide, HasSubstr("$ vantelos-console races ann.vtc\n" + listed.out + "```"));
        EXPECT_EQ(console("races --export " + at + "/a.vtc' " + at + "/a.csv'").status, 0);
        EXPECT_THAT(guide, HasSubstr("```\n" + readBytes(folder.path / "a.csv") + "```"));
        EXPECT_EQ(console("races --import " + at + "/a.csv' " + at + "/copy.vtc'").status, 0);
        EXPECT_EQ(readBytes(folder.path / "copy.vtc"), readBytes(folder.path / "a.vtc"));
        EXPECT_EQ(console("races --export " + at + "/a.vtc' " + at + "/a.csv'").status, 1);
    }

    TEST(Program, RefusesWrongUsage)
    {
        EXPECT_EQ(console("races").status, 2);
        EXPECT_EQ(console("races a b c").status, 2);
        const ConsoleRun format = console("races a --format xml");
        EXPECT_EQ(format.status, 2);
        EXPECT_THAT(format.errors, HasSubstr("\"xml\" is neither text nor csv nor json"));
        EXPECT_EQ(console("races --import a b --format csv").status, 2);
    }
#endif

    RC_GTEST_PROP(Csv, BringsEveryOrdinaryRecordBack, ())
    {
        RaceRecord record;
        record.number = static_cast<std::int16_t>(*rc::gen::arbitrary<std::uint16_t>());
        for (float* const number : {&record.hours, &record.minutes, &record.seconds, &record.distance})
        {
            const auto drawn = std::bit_cast<float>(*rc::gen::arbitrary<std::uint32_t>());
            *number = std::isfinite(drawn) ? drawn : -0.0F;
        }
        for (char& flag : record.flags)
            flag = *rc::gen::element(' ', 'X');
        for (char& byte : record.comment)
            byte = static_cast<char>(*rc::gen::inRange(0x20, 0x100));
        std::replace(record.comment.begin(), record.comment.end(), '\x7f', 'x');
        const RaceCsv csv = racesOfCsv(csvOf(std::vector<RaceRecord>{record}));
        RC_ASSERT(csv.errors.empty());
        RC_ASSERT(csv.records.size() == 1U);
        RC_ASSERT(bytesOf(csv.records[0]) == bytesOf(record));
    }
}
