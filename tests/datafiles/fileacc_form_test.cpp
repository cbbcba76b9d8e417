// The form around the files: its folders, its enabled states, and personal data files.

#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "datafiles/fileacc_form.h"
#include "forms/folders.h"
#include "hex_records.h"
#include "open_files.h"
#include "support/file_size_limit.h"

namespace
{
    namespace fs = std::filesystem;
    using testing::Contains;
    using testing::ElementsAre;
    using testing::HasSubstr;
    using testing::IsEmpty;

    const std::string ann = "Ann Example\r\n44.5\r\n 132 \r\n 66 \r\nFalse\r\nTrue\r\n181\r\n50 or so\r\n 35 \r\n";

    TEST(Form, IsAsItIsDesigned)
    {
        OpenFiles files;
        const ::Form& form = *findForm(files.program, "fileacc");
        EXPECT_EQ(form.title, "File Access for Saved Races - " + files.folder.path.string());
        for (const auto& [name, caption] : std::vector<std::pair<std::string, std::string>>{
                 {"Command1", "Add Race to File"},
                 {"Command2", "Open New"},
                 {"Command3", "Close"},
                 {"Command4", "Open Existing"},
                 {"Command5", "Select Race"},
                 {"Command6", "Help"},
                 {"Command7", "Omit Race"},
                 {"Command8", "Replace Race"},
                 {"Check1", "Open"},
                 {"races", "Races"},
                 {"persdat", "Personal data (name, age, etc.)"},
                 {"Text6", "Drive\\Directory\\File"},
                 {"Text9", "Next available race number to add to file:"},
                 {"Text7", "Race number to replace (click in list box):"},
                 {"Label2",
                  "Hrs       Min      Sec        Number   mi   yd    km   m   mara h.mara           Comments"},
                 {"Label1", "Sel   #   Hrs    Min     Sec     Number   mi   yd    km    m   mar h.mar       Comments"}})
        {
            const ControlRef* control = findControl(form, name);
            ASSERT_TRUE(control) << name;
            EXPECT_EQ(common(*control).caption, caption);
        }
        for (const char* button : {"Command1", "Command2", "Command5", "Command7", "Command8"})
            EXPECT_FALSE(files.isEnabled(button)) << button;
        for (const char* button : {"Command3", "Command4", "Command6"})
            EXPECT_TRUE(files.isEnabled(button)) << button;
        EXPECT_FALSE(files.get<CheckBox>("Check1").enabled);
        EXPECT_TRUE(files.isOn("races"));
        EXPECT_EQ(files.get<Button>("Command6").opens, "helpform");
    }

    TEST(FileBox, ListsTheFilesOfTheKind)
    {
        OpenFiles files;
        for (const char* name : {"b.vtc", "a.VTC", "old.vtc.bak", "ann.vtd", "vtc", "notes.txt"})
            writeBytes(files.at(name), "");
        fs::create_directory(files.at("folder.vtc"));
        files.choose("persdat");
        EXPECT_THAT(files.items("File1"), ElementsAre("ann.vtd"));
        files.choose("races");
        EXPECT_THAT(files.items("File1"), ElementsAre("a.VTC", "b.vtc", "old.vtc.bak"));
    }

    TEST(FileBox, PutsTheFileIntoTheName)
    {
        OpenFiles files;
        writeBytes(files.at("a b\u00fc.vtc"), parkrun());
        files.choose("persdat");
        files.choose("races");
        files.pick("File1", 0);
        EXPECT_EQ(files.text("Text6"), files.folder.path.string() + "\\a b\u00fc.vtc");
        EXPECT_TRUE(files.isEnabled("Command2"));
        EXPECT_FALSE(files.isEnabled("Command1"));
        files.click("Command4");
        EXPECT_EQ(files.items("List1").size(), 1U);
        EXPECT_EQ(files.get<ListBox>("File1").selected, 0);
    }

    TEST(FileBox, ClosesTheOpenFileByAnotherOneAlone)
    {
        OpenFiles files;
        writeBytes(files.at("a.vtc"), parkrun());
        writeBytes(files.at("b.vtc"), "");
        files.choose("persdat");
        files.choose("races");
        files.pickNamed("File1", "a.vtc");
        files.click("Command4");
        files.pickNamed("File1", "a.vtc");
        EXPECT_TRUE(files.isMarkedOpen());
        EXPECT_TRUE(files.isEnabled("Command1"));
        files.pickNamed("File1", "b.vtc");
        EXPECT_FALSE(files.isMarkedOpen());
        EXPECT_FALSE(files.isEnabled("Command1"));
        EXPECT_EQ(files.items("List1").size(), 1U);
    }

    TEST(Name, TypedClosesTheOpenFileAndTakesAddAway)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.type("Text6", "races.vtcx");
        EXPECT_FALSE(files.isMarkedOpen());
        EXPECT_FALSE(files.isEnabled("Command1"));
        EXPECT_TRUE(files.isEnabled("Command2"));
        files.type("Text6", "races.vtc");
        EXPECT_FALSE(files.isEnabled("Command1"));
        files.click("Command4");
        EXPECT_TRUE(files.isEnabled("Command1"));
    }

    TEST(Name, IsPartedByEitherStroke)
    {
        OpenFiles files;
        fs::create_directories(files.at("x y/z"));
        for (const char* name : {"x y\\z\\a.vtc", "x y/z/b.vtc", "x y\\\\\\z//c.vtc"})
        {
            files.type("Text6", name);
            files.click("Command2");
        }
        files.type("Text6", files.folder.path.string() + "\\\\x y\\z\\d.vtc");
        files.click("Command2");
        EXPECT_THAT(files.events(), IsEmpty());
        EXPECT_THAT(filesIn(files.at("x y/z"), ".vtc"), ElementsAre("a.vtc", "b.vtc", "c.vtc", "d.vtc"));
    }

    TEST(List, ClickedTellsTheNumberToReplace)
    {
        OpenFiles files;
        files.openRaces(parkrun() + parkrun());
        files.pick("List1", 1);
        EXPECT_EQ(files.races().listRow, 2);
        EXPECT_EQ(files.text("Text7"), "2");
        EXPECT_TRUE(files.isEnabled("Command5"));
        EXPECT_TRUE(files.isEnabled("Command8"));
        EXPECT_FALSE(files.isEnabled("Command7"));
    }

    TEST(Directory, MovesTheProgram)
    {
        OpenFiles files;
        fs::create_directories(files.at("sub \u00fc/inner"));
        fs::create_directory(files.at(".hidden"));
        writeBytes(files.at("sub \u00fc/x.vtc"), "");
        files.choose("persdat");
        files.close();
        files.open();
        EXPECT_THAT(files.items("Dir1"), ElementsAre("..", "sub \u00fc", ".hidden"));
        files.pick("Dir1", 1);
        const fs::path sub = files.at("sub \u00fc");
        EXPECT_EQ(files.program.currentFolder, sub);
        EXPECT_EQ(files.program.folder, sub);
        EXPECT_EQ(files.program.startFolder, files.folder.path);
        EXPECT_THAT(files.items("Dir1"), ElementsAre("..", "inner"));
        EXPECT_THAT(files.items("File1"), ElementsAre("x.vtc"));
        EXPECT_EQ(findForm(files.program, "fileacc")->title, "File Access for Saved Races - " + sub.string());
        files.type("Text6", "here");
        files.click("Command2");
        EXPECT_TRUE(fs::exists(sub / "here.vtc"));
        files.pick("Dir1", 0);
        EXPECT_EQ(files.program.currentFolder, files.folder.path);
    }

    TEST(Directory, TakesTheSettingsAlong)
    {
        OpenFiles files;
        fs::create_directory(files.at("sub"));
        files.close();
        files.open();
        files.pickNamed("Dir1", "sub");
        stop(files.program);
        EXPECT_TRUE(fs::exists(files.at("sub/vantini.txt")));
        EXPECT_FALSE(fs::exists(files.at("vantini.txt")));
    }

    TEST(Directory, ThatCannotBeEnteredChangesNothing)
    {
        OpenFiles files;
        fs::create_directory(files.at("closed"));
        fs::create_directory(files.at("gone"));
        fs::permissions(files.folder.path, fs::perms::all);
        fs::permissions(files.at("closed"), fs::perms::none);
        files.close();
        files.open();
        fs::remove(files.at("gone"));
        files.pickNamed("Dir1", "gone");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("can't be opened: No such file or directory.")));
        {
            const WithoutRights mortal;
            files.pickNamed("Dir1", "closed");
            EXPECT_THAT(files.events(), ElementsAre(HasSubstr("can't be opened: Permission denied.")));
            files.type("Text6", "closed\\ann.vtc");
            files.click("Command2");
            EXPECT_THAT(files.events(), ElementsAre(HasSubstr("can't be opened: Permission denied.")));
        }
        EXPECT_EQ(files.program.currentFolder, files.folder.path);
        fs::permissions(files.at("closed"), fs::perms::owner_all);
    }

    TEST(Drives, HoldTheRootAndTheHomeFolder)
    {
        OpenFiles files;
        EXPECT_THAT(files.items("Drive1"), Contains("/"));
        EXPECT_GE(files.get<ListBox>("Drive1").selected, 0);
        files.pickNamed("Drive1", "/");
        EXPECT_EQ(files.program.currentFolder, "/");
        EXPECT_THAT(files.items("Dir1"), testing::Not(Contains("..")));
        EXPECT_EQ(findForm(files.program, "fileacc")->title, "File Access for Saved Races - /");
    }

    /// Sets HOME while it lives.
    class HomeAt
    {
    public:
        explicit HomeAt(const std::string& home)
        {
            if (const char* old = std::getenv("HOME"))
                before = old;
            setenv("HOME", home.c_str(), 1);
        }
        HomeAt(const HomeAt&) = delete;
        HomeAt& operator=(const HomeAt&) = delete;
        ~HomeAt() { before ? setenv("HOME", before->c_str(), 1) : unsetenv("HOME"); }

    private:
        std::optional<std::string> before;
    };

    TEST(Drives, EndWithTheHomeFolder)
    {
        OpenFiles files;
        fs::create_directory(files.at("home \u00fc"));
        const HomeAt home(files.at("home \u00fc").string() + "/");
        files.close();
        files.open();
        EXPECT_EQ(files.items("Drive1").back(), files.at("home \u00fc").string());
        files.pick("Drive1", static_cast<int>(files.items("Drive1").size()) - 1);
        EXPECT_EQ(files.program.currentFolder, files.at("home \u00fc"));
        EXPECT_EQ(files.get<ListBox>("Drive1").selected, static_cast<int>(files.items("Drive1").size()) - 1);
    }

    TEST(Drives, WithoutAHomeFolderAreThoseOfTheMounts)
    {
        const HomeAt home("nowhere");
        EXPECT_THAT(drives(), testing::Not(Contains(HasSubstr("nowhere"))));
        EXPECT_THAT(drives(), Contains("/"));
    }

    TEST(Drives, AreMountsForFiles)
    {
        std::istringstream mounts("overlay / overlay rw,relatime 0 0\n"
                                  "proc /proc proc rw 0 0\n"
                                  "tmpfs /run tmpfs rw 0 0\n"
                                  "/dev/sdb1 /media/ann/my\\040disk\\0411 vfat rw 0 0\n"
                                  "/dev/sda2 /home ext4 rw 0 0\n"
                                  "/dev/sda2 /home ext4 rw 0 0\n"
                                  "/dev/sdc1 /media/ann/win fuseblk rw 0 0\n"
                                  "gvfsd-fuse /run/user/1000/gvfs fuse.gvfsd-fuse rw 0 0\n"
                                  "host:/home /net nfs4 rw 0 0\n"
                                  "fusectl /sys/fs/fuse/connections fusectl rw 0 0\n"
                                  "overlay /var/lib/docker/overlay2/x/merged overlay rw 0 0\n"
                                  "/dev/loop0 /snap/core squashfs ro 0 0\n"
                                  "a line\n");
        EXPECT_THAT(placesOf(mounts), ElementsAre("/", "/home", "/media/ann/my disk!1", "/media/ann/win", "/net"));
    }

    TEST(Drives, AreFoundByTheLongestPlace)
    {
        const std::vector<std::string> places{"/", "/home", "/home/ann"};
        EXPECT_EQ(driveOf("/home/annette", places), 1);
        EXPECT_EQ(driveOf("/home/ann", places), 2);
        EXPECT_EQ(driveOf("/home/ann/races", places), 2);
        EXPECT_EQ(driveOf("/media", places), 0);
        EXPECT_EQ(driveOf("/media", {}), -1);
    }

    TEST(Close, ClosesTheFile)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        EXPECT_TRUE(files.holdsOpen("races.vtc"));
        files.click("Command3");
        EXPECT_FALSE(files.isOpen());
        EXPECT_FALSE(files.holdsOpen("races.vtc"));
    }

    TEST(Close, ComesWithAnotherNameAnotherFileAndTheEndOfTheProgram)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.type("Text6", "other");
        EXPECT_FALSE(files.holdsOpen("races.vtc"));
        files.click("Command2");
        EXPECT_TRUE(files.holdsOpen("other.vtc"));
        files.click("Command4");
        EXPECT_FALSE(files.holdsOpen("other.vtc"));
        EXPECT_TRUE(files.holdsOpen("other"));
        files.click("Command2");
        EXPECT_FALSE(files.holdsOpen("other"));
        files.choose("persdat");
        files.click("Command4");
        EXPECT_FALSE(files.holdsOpen("other.vtc"));
        files.choose("races");
        files.openRaces(parkrun());
        EXPECT_TRUE(files.holdsOpen("races.vtc"));
        stop(files.program);
        EXPECT_FALSE(files.holdsOpen("races.vtc"));
    }

    void enterAnn(Program& program)
    {
        VantstartForm& main = *program.vantstart;
        setText(main.txtname, "Ann Example");
        setText(main.txtage, "44.5");
        setValue(main.wtscrl, 132);
        setValue(main.htscrl, 66);
        setChosen(main.optfemale, true);
        setText(main.actmhrtx, "181");
        setText(main.resthrtx, "50 or so");
        setValue(main.HScroll1, 35);
    }

    TEST(PersonalData, IsSaved)
    {
        OpenFiles files;
        enterAnn(files.program);
        files.choose("persdat");
        files.type("Text6", "ann");
        files.click("Command2");
        EXPECT_EQ(readBytes(files.at("ann.vtd")), ann);
        EXPECT_THAT(files.events(),
                    ElementsAre("message: Personal (non-race) data for Ann Example now saved as ann.vtd."));
        EXPECT_THAT(files.items("File1"), ElementsAre("ann.vtd"));
        EXPECT_EQ(files.folder.entryCount(), 1U);
    }

    TEST(PersonalData, ReplacesAnOlderFileWhole)
    {
        OpenFiles files;
        enterAnn(files.program);
        files.choose("persdat");
        writeBytes(files.at("ann.vtd"), std::string(5000, 'x'));
        files.type("Text6", "ann.vtd");
        files.click("Command2");
        EXPECT_EQ(readBytes(files.at("ann.vtd")), ann);
    }

    TEST(PersonalData, ThatCannotBeSavedLeavesTheOldFile)
    {
        OpenFiles files;
        files.choose("persdat");
        writeBytes(files.at("ann.vtd"), "old");
        files.type("Text6", "ann");
        {
            const FileSizeLimit full(20);
            files.click("Command2");
        }
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("The personal data could not be saved to")));
        EXPECT_EQ(readBytes(files.at("ann.vtd")), "old");
        EXPECT_EQ(files.folder.entryCount(), 1U);
    }

    TEST(PersonalData, IsPutIntoTheMainForm)
    {
        OpenFiles files;
        writeBytes(files.at("ann.vtd"), ann);
        files.choose("persdat");
        files.pick("File1", 0);
        files.click("Command4");
        const VantstartForm& main = *files.program.vantstart;
        EXPECT_EQ(main.txtname.text, "Ann Example");
        EXPECT_EQ(main.txtage.text, "44.5");
        EXPECT_EQ(main.wtscrl.value, 132);
        EXPECT_EQ(main.htscrl.value, 66);
        EXPECT_FALSE(main.optmale.chosen);
        EXPECT_TRUE(main.optfemale.chosen);
        EXPECT_EQ(main.actmhrtx.text, "181");
        EXPECT_EQ(main.resthrtx.text, "50 or so");
        EXPECT_EQ(main.HScroll1.value, 35);
        EXPECT_EQ(main.txlb.text, "132");
        EXPECT_EQ(files.state().runner.age, 44.5);
        EXPECT_EQ(files.state().runner.restHr, 50);
        EXPECT_THAT(files.events(),
                    ElementsAre("message: Personal (non-race) data for Ann Example now listed on main form."));
    }

    TEST(PersonalData, WithACommaInTheNameShiftsByOne)
    {
        OpenFiles files;
        writeBytes(files.at("bo.vtd"), "Smith, Bo\r\n52\r\n 160 \r\n 70 \r\nTrue\r\nFalse\r\n180\r\n60\r\n 20 \r\n");
        files.choose("persdat");
        files.type("Text6", "bo.vtd");
        files.click("Command4");
        const VantstartForm& main = *files.program.vantstart;
        EXPECT_EQ(main.txtname.text, "Smith");
        EXPECT_EQ(main.txtage.text, "Bo");
        EXPECT_EQ(main.wtscrl.value, 52);
        EXPECT_EQ(main.htscrl.value, 90);     // 160 is held to the bar
        EXPECT_TRUE(main.optfemale.chosen);   // "True" has come one line late
        EXPECT_EQ(main.actmhrtx.text, "False");
        EXPECT_EQ(main.resthrtx.text, "180");
        EXPECT_EQ(main.HScroll1.value, 60);
    }

    TEST(PersonalData, ThatIsCutGivesWhatThereIs)
    {
        OpenFiles files;
        writeBytes(files.at("ann.vtd"), "Ann\r\n44");
        files.choose("persdat");
        files.type("Text6", "ann.vtd");
        files.click("Command4");
        const VantstartForm& main = *files.program.vantstart;
        EXPECT_EQ(main.txtname.text, "Ann");
        EXPECT_EQ(main.txtage.text, "44");
        EXPECT_EQ(main.wtscrl.value, 160);
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("ends after 2 of its 9 values")));
    }

    TEST(PersonalData, StopsAtANumberThatNothingHolds)
    {
        OpenFiles files;
        writeBytes(files.at("ann.vtd"), "Ann\r\n44\r\n1e999\r\n70\r\n");
        files.choose("persdat");
        files.type("Text6", "ann.vtd");
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("while reading line 3 of the personal data file")));
        EXPECT_EQ(files.program.vantstart->txtage.text, "44");
    }

    TEST(PersonalData, OfAnEnormousFileIsReadInPart)
    {
        OpenFiles files;
        writeBytes(files.at("ann.vtd"), ann);
        fs::resize_file(files.at("ann.vtd"), 10'000'000'000);
        files.choose("persdat");
        files.type("Text6", "ann.vtd");
        files.click("Command4");
        EXPECT_EQ(files.program.vantstart->HScroll1.value, 35);
    }

    TEST(PersonalData, WithoutANameOrAFileIsTold)
    {
        OpenFiles files;
        files.choose("persdat");
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre("message: Please select a file."));
        files.type("Text6", "none.vtd");
        files.click("Command4");
        EXPECT_THAT(files.events(), ElementsAre(HasSubstr("none.vtd can't be opened")));
        EXPECT_FALSE(fs::exists(files.at("none.vtd")));
        files.type("Text6", "");
        files.click("Command2");
        EXPECT_THAT(files.events(),
                    ElementsAre("message: You must specify a file name in the box to create a new file."));
    }

    TEST(PersonalData, ClosesTheOpenRaceFile)
    {
        OpenFiles files;
        files.openRaces(parkrun());
        files.choose("persdat");
        files.click("Command2");
        EXPECT_FALSE(files.isMarkedOpen());
        EXPECT_TRUE(fs::exists(files.at("races.vtc.vtd")));
        files.outside.forget();
        files.click("Command1");
        EXPECT_THAT(files.events(), ElementsAre("message: No race file is open."));
    }
}
