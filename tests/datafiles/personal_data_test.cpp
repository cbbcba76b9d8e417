// What reading a personal data file does to the main form and to the runner, and files that are none.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "model/text.h"
#include "open_files.h"

namespace
{
    namespace fs = std::filesystem;
    using testing::ElementsAre;
    using testing::HasSubstr;

    const std::string ann = "Ann Example\r\n44.5\r\n 132 \r\n 66 \r\nFalse\r\nTrue\r\n181\r\n50 or so\r\n 35 \r\n";

    struct Reading : testing::Test
    {
        OpenFiles files;

        Reading() { files.choose("persdat"); }

        /// Opens a file of those bytes. Returns what was said.
        std::vector<std::string> read(const std::string& bytes)
        {
            writeBytes(files.at("ann.vtd"), bytes);
            files.type("Text6", "ann.vtd");
            files.click("Command4");
            return files.events();
        }
        [[nodiscard]] const VantstartForm& main() const { return *files.program.vantstart; }
        [[nodiscard]] const Runner& runner() const { return files.program.state.runner; }
    };

    TEST_F(Reading, ChangesWhatFollowsFromTheValues)
    {
        (void)read(ann);
        EXPECT_EQ(main().emhrtx.text, "175");   // 1 + 0.6 (191.5 - 0.007 44.5^2) + 0.4 (208 - 0.7 44.5) - 3
        EXPECT_EQ(val(main().txkg.text), 59.9);
        EXPECT_EQ(val(main().txcm.text), 168);
        EXPECT_EQ(runner().weightKg, 59.9);
        EXPECT_EQ(runner().heightCm, 168);
        EXPECT_NEAR(runner().bodyDrag, 57.99653312713347, 6e-8);
        EXPECT_NEAR(runner().ageDistanceTerm, 5.68404580700324, 6e-9);
        EXPECT_EQ(runner().runnerName, "Ann Example");
        EXPECT_EQ(runner().maxHr, 181);
    }

    TEST_F(Reading, ChangesTheSexEitherWay)
    {
        (void)read(ann);
        EXPECT_TRUE(main().optfemale.chosen);
        (void)read("Bo\n44.5\n 160 \n 70 \nTrue\nFalse\n181\n50\n 35 \n");   // line feeds alone
        EXPECT_TRUE(main().optmale.chosen);
        EXPECT_FALSE(main().optfemale.chosen);
        EXPECT_EQ(main().emhrtx.text, "178");
        (void)read(ann);
        EXPECT_FALSE(main().optmale.chosen);
        EXPECT_EQ(main().emhrtx.text, "175");
    }

    TEST_F(Reading, OfBothSexesLeavesTheLast)
    {
        (void)read("Bo\r\n44\r\n 160 \r\n 70 \r\nTrue\r\nTrue\r\n181\r\n50\r\n 35 \r\n");
        EXPECT_FALSE(main().optmale.chosen);
        EXPECT_TRUE(main().optfemale.chosen);
    }

    TEST_F(Reading, OfWhatWasSavedKeepsNamesOfOtherLetters)
    {
        setText(files.program.vantstart->txtname, "Zo\u00eb \u0141ukasz \u6771");
        files.type("Text6", "zo\u00eb");
        files.click("Command2");
        EXPECT_THAT(files.events(), ElementsAre("message: Personal (non-race) data for Zo\u00eb \u0141ukasz \u6771 now "
                                                "saved as zo\u00eb.vtd."));
        setText(files.program.vantstart->txtname, "");
        files.type("Text6", "zo\u00eb.vtd");
        files.click("Command4");
        EXPECT_EQ(main().txtname.text, "Zo\u00eb \u0141ukasz \u6771");
    }

    TEST_F(Reading, OfAnEmptyFileChangesNothing)
    {
        (void)read(ann);
        EXPECT_THAT(read(""), ElementsAre("message: The personal data file " + files.at("ann.vtd").string() +
                                          " is empty. The main form stays as it is."));
        EXPECT_EQ(main().txtname.text, "Ann Example");
        EXPECT_EQ(main().HScroll1.value, 35);
    }

    TEST_F(Reading, OfAFileCutAnywhereTellsOnceAndStaysWhole)
    {
        const std::string whole = "Zo\u00eb\r\n44.5\r\n 132 \r\n 66 \r\nFalse\r\nTrue\r\n181\r\n50 or so\r\n 35 \r\n";
        for (std::size_t length = 1; length <= whole.size(); ++length)
        {
            EXPECT_EQ(read(whole.substr(0, length)).size(), 1U) << length;
            EXPECT_FALSE(main().optmale.chosen && main().optfemale.chosen) << length;
            EXPECT_EQ(main().txtname.text, std::string("Zo\u00eb").substr(0, length == 3 ? 2 : length)) << length;
        }
    }

    TEST_F(Reading, StopsAtAValueThatTheMainFormRefusesAndNamesItsLine)
    {
        EXPECT_THAT(read("Ann\r\n1e999\r\n 132 \r\n"),
                    ElementsAre(HasSubstr("while reading line 2 of the personal data file.")));
        EXPECT_EQ(main().txtname.text, "Ann");
        EXPECT_EQ(main().wtscrl.value, 160);
    }

    TEST_F(Reading, TellsWhyAFileCannotBeOpened)
    {
        fs::permissions(files.folder.path, fs::perms::all);
        fs::create_directory(files.at("folder"));
        ASSERT_EQ(mkfifo(files.at("pipe").c_str(), 0600), 0);
        fs::permissions(files.at("pipe"), fs::perms::all);
        fs::create_directory(files.at("closed"));
        writeBytes(files.at("closed/ann.vtd"), ann);
        fs::permissions(files.at("closed"), fs::perms::none);
        {
            const WithoutRights mortal;
            for (const auto& [name, why] :
                 std::vector<std::pair<std::string, std::string>>{{"none.vtd", "No such file or directory"},
                                                                  {"folder", "Is a directory"},
                                                                  {"pipe", "It is no file"},
                                                                  {"closed/ann.vtd", "Permission denied"}})
            {
                files.type("Text6", name);
                files.click("Command4");
                EXPECT_THAT(files.events(), ElementsAre("message: The personal data file " + files.at(name).string() +
                                                        " can't be opened: " + why + "."));
            }
        }
        fs::permissions(files.at("closed"), fs::perms::owner_all);
        EXPECT_EQ(main().txtname.text, "Joe Runner");
    }

    TEST_F(Reading, TakesAndNamesFoldersAsTyped)
    {
        fs::create_directory(files.at("sub"));
        files.type("Text6", "sub\\ann");
        files.click("Command2");
        EXPECT_THAT(files.events(),
                    ElementsAre("message: Personal (non-race) data for Joe Runner now saved as sub\\ann.vtd."));
        EXPECT_TRUE(fs::exists(files.at("sub/ann.vtd")));
    }
}
