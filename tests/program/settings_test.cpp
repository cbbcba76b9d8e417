#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "main_form.h"
#include "settings_lines.h"
#include "support/case_name.h"
#include "support/file_size_limit.h"

namespace
{
    using Lines = std::vector<std::string>;

    /// A program that has read these bytes as its settings, without the calculation that follows at a start.
    struct Read : MainForm
    {
        explicit Read(std::optional<std::string> bytes) { readSettings(form(), program.stored, std::move(bytes)); }
    };

    /// A program started in a folder with this settings file.
    struct Started : MainForm
    {
        explicit Started(const std::string& bytes)
        {
            writeBytes(folder.path / "vantini.txt", bytes);
            start(program);
        }
    };

    std::string text(MainForm& main)
    {
        return settingsOf(main.form(), main.program.stored);
    }

    TEST(SettingsFile, HoldsEveryFieldInItsOrder)
    {
        ASSERT_EQ(oddSettings().size(), fieldsInAFile);
        MainForm main;
        main.person.click("optfemale");
        main.person.slide("HScroll1", 37);
        main.person.type("txtage", "44.5");
        main.person.slide("wtscrl", 151);
        main.person.slide("HScroll2", 873);
        main.person.click("agecomp");
        main.person.click("Option7");
        main.person.click("Option10");
        for (int i = 0; i < 5; ++i)
        {
            const std::string n = std::to_string(i + 10);
            main.person.enterRace(i,
                                  {(n + "h").c_str(), (n + "m").c_str(), (n + "s").c_str(), (n + "n").c_str(), i + 1});
        }
        main.person.click("Check1(1)");
        main.person.click("Check1(3)");
        main.person.type("actmhrtx", "187.5 bpm");
        main.person.type("resthrtx", "51");
        main.person.slide("htscrl", 66);

        StoredPlanner& planner = main.program.stored.planner;
        planner.workoutMode = 2;
        planner.repvoscrl = 3;
        planner.recovpace = -120;
        planner.pctmax = 0.5;
        planner.perfadj = 95;
        for (std::size_t i = 0; i < 5; ++i)
        {
            const std::string r = std::to_string(i);
            planner.rows[i] = {"dist" + r, "num" + r, "wrp" + r};
        }
        StoredSplits& splits = main.program.stored.splits;
        splits.distanceUnit = 3;
        splits.method = 1;
        for (std::size_t i = 0; i < 27; ++i)
        {
            const std::string r = std::to_string(i);
            splits.rows[i] = {"splitdis" + r, "splitmin" + r, "splitsec" + r};
        }
        EXPECT_EQ(linesOf(text(main)), oddSettings());
    }

    TEST(SettingsFile, OfAFirstSaveLeavesThePlannerAndTheSplitFormEmpty)
    {
        MainForm main;
        stop(main.program);
        const Lines lines = linesOf(readBytes(main.folder.path / "vantini.txt"));
        ASSERT_EQ(lines.size(), fieldsInAFile);
        const Lines head{"#TRUE#", "#FALSE#", "20",      "\"\"",    "160",    "1000",
                         "0",      "#FALSE#", "#FALSE#", "#FALSE#", "#FALSE#"};
        EXPECT_EQ(Lines(lines.begin(), lines.begin() + 11), head);
        EXPECT_EQ(Lines(lines.begin() + 11, lines.begin() + 22),
                  (Lines{"0", "\"\"", "\"\"", "\"\"", "\"\"", "#FALSE#", "#FALSE#", "#FALSE#", "#FALSE#", "#FALSE#",
                         "#FALSE#"}));
        EXPECT_EQ(lines[68], "70");
        for (std::size_t number = 70; number <= 75; ++number)
            EXPECT_EQ(lines[number - 1], "") << number;
        for (std::size_t number = 76; number <= 90; ++number)
            EXPECT_EQ(lines[number - 1], "\"\"") << number;
        EXPECT_EQ(lines[90], "");
        EXPECT_EQ(lines[91], "");
        EXPECT_EQ(lines[172], "\"\"");
    }

    void expectOddSettings(MainForm& main)
    {
        EXPECT_EQ(linesOf(text(main)), oddSettings());
        EXPECT_EQ(main.form().txtmi.text, "37");
        EXPECT_EQ(main.form().txtkm.text, "60");   // 59.533
        EXPECT_EQ(main.form().Text5.text, "87.3");
        EXPECT_EQ(main.form().txlb.text, "151");
        EXPECT_EQ(main.form().txkg.text, " 68.5");   // 68.4924
        EXPECT_EQ(main.form().txin.text, "66");
        EXPECT_EQ(main.form().txcm.text, "  168");   // 167.64
        EXPECT_EQ(main.state().runner.weightKg, 68.5);
        EXPECT_EQ(main.state().runner.heightCm, 168);
        EXPECT_EQ(main.form().emhrtx.text, "175");   // a woman of 44.5
        EXPECT_EQ(main.state().runner.age, 44.5);
        EXPECT_EQ(main.state().flags.agecomp, 1);
        EXPECT_EQ(main.form().actmhrtx.text, "187.5");
        EXPECT_EQ(main.form().resthrtx.text, "51");
        EXPECT_EQ(main.state().runner.maxHr, 187.5);
        EXPECT_EQ(main.state().runner.restHr, 51);
        EXPECT_TRUE(isPresent(main.program.stored.planner));
        EXPECT_TRUE(isPresent(main.program.stored.splits));
        EXPECT_EQ(main.program.stored.planner.recovpace, -120);
        EXPECT_EQ(main.program.stored.planner.rows[4].wrp, "wrp4");
        EXPECT_EQ(main.program.stored.splits.distanceUnit, 3);
        EXPECT_EQ(main.program.stored.splits.rows[26].splitsec, "splitsec26");
    }

    TEST(SettingsFile, IsReadBackWithEitherLineEnd)
    {
        for (const char* lineEnd : {"\r\n", "\n"})
        {
            Read main(joined(oddSettings(), lineEnd));
            expectOddSettings(main);
        }
    }

    TEST(SettingsFile, MayMixItsLineEnds)
    {
        std::string bytes;
        for (std::size_t i = 0; i < fieldsInAFile; ++i)
            bytes += oddSettings()[i] + (i % 3 == 0 ? "\n" : "\r\n");
        Read main(bytes);
        expectOddSettings(main);
    }

    TEST(SettingsFile, NeedsNoLastLineEnd)
    {
        std::string bytes = joined(oddSettings());
        Read main(bytes.substr(0, bytes.size() - 2));
        expectOddSettings(main);
    }

    TEST(SettingsFile, IsReadUpToItsLastField)
    {
        Read main(joined(oddSettings()) + joined({"#FALSE#", "7", "\"more\""}));
        expectOddSettings(main);
    }

    /// Texts as hostile as they come: quotation marks, commas, line ends, controls, bytes of any kind.
    std::string hostileText()
    {
        const auto piece = rc::gen::oneOf(
            rc::gen::element<std::string>("\"", "\"\"", ",", "#TRUE#", "\r", "\n", "\r\n", "\t", std::string(1, '\0'),
                                          "\x1a", "\xc3\xa4", "\xe2\x82\xac", "\xff", " ", "12", "'", "\\", "-", "e"),
            rc::gen::map(rc::gen::arbitrary<char>(), [](char c) { return std::string(1, c); }));
        std::string whole;
        for (const std::string& part : *rc::gen::container<std::vector<std::string>>(piece))
            whole += part;
        return whole;
    }

    void type(TextBox& box)
    {
        box.text = hostileText();   // no event: whatever it holds is written
    }

    std::optional<double> someNumber()
    {
        const auto finite = rc::gen::suchThat(rc::gen::arbitrary<double>(), [](double x) { return std::isfinite(x); });
        return *rc::gen::element(true, false) ? std::optional<double>(*finite) : std::nullopt;
    }

    void chooseOneOf(const std::vector<OptionButton*>& options)
    {
        const std::size_t which = *rc::gen::inRange<std::size_t>(0, options.size() + 1);
        for (std::size_t i = 0; i < options.size(); ++i)
            options[i]->chosen = i == which;
    }

    void fillAtRandom(MainForm& main)
    {
        VantstartForm& form = main.form();
        for (ScrollBar* bar : {&form.HScroll1, &form.HScroll2, &form.wtscrl, &form.htscrl})
            bar->value = *rc::gen::inRange(bar->min, bar->max + 1);
        form.agecomp.ticked = *rc::gen::arbitrary<bool>();
        type(form.txtage);
        for (const OptionGroup* group : {&form.sexes, &form.fitModes, &form.outputs})
            chooseOneOf(group->members);
        for (RaceControls& race : form.races)
        {
            race.Check1.ticked = *rc::gen::arbitrary<bool>();
            for (TextBox* box : {&race.Text1, &race.Text2, &race.Text3, &race.Text4})
                type(*box);
            chooseOneOf(race.units.members);
        }
        main.state().runner.maxHr = *rc::gen::inRange(-1000000, 1000000) / 1000.0;   // a field shows 15 digits
        main.state().runner.restHr = *rc::gen::inRange(-1000000, 1000000) / 1000.0;
        StoredPlanner& planner = main.program.stored.planner;
        for (std::optional<double>* number :
             {&planner.workoutMode, &planner.repvoscrl, &planner.recovpace, &planner.pctmax, &planner.perfadj})
            *number = someNumber();
        for (StoredPlanner::Row& row : planner.rows)
            row = {hostileText(), hostileText(), hostileText()};
        main.program.stored.splits.distanceUnit = someNumber();
        main.program.stored.splits.method = someNumber();
        main.program.stored.splits.rows[*rc::gen::inRange<std::size_t>(0, 27)].splitmin = hostileText();
    }

    RC_GTEST_PROP(SettingsFile, ReadsBackWhatItWrote, ())
    {
        MainForm main;
        fillAtRandom(main);
        const std::string written = text(main);
        RC_ASSERT(linesOf(written).size() == fieldsInAFile);
        Read again(written);
        RC_ASSERT(linesOf(text(again)) == linesOf(written));
        RC_ASSERT(again.state().runner.maxHr == main.state().runner.maxHr);
        const auto withoutLineEnds = [](std::string one) {
            for (char& c : one)
                c = c == '\r' || c == '\n' ? ' ' : c;
            return one;
        };
        RC_ASSERT(again.form().txtage.text == withoutLineEnds(main.form().txtage.text));
        RC_ASSERT(again.form().races[4].Text4.text == withoutLineEnds(main.form().races[4].Text4.text));
    }

    TEST(Start, CalculatesWithTheStoredRaces)
    {
        MainForm first;
        first.enterTwoRaces();
        stop(first.program);
        Started again(readBytes(first.folder.path / "vantini.txt"));
        EXPECT_TRUE(again.outside.events.empty());
        EXPECT_EQ(again.form().Picture1.page.lines.size(), 11U);
        EXPECT_TRUE(again.form().Command2.enabled);
        EXPECT_EQ(again.state().flags.calculatedOnce, 1);
        EXPECT_EQ(again.form().txtname.text, "Joe Runner");
    }

    TEST(Start, ForgetsTheName)
    {
        MainForm first;
        first.person.type("txtname", "Ann");
        stop(first.program);
        Started again(readBytes(first.folder.path / "vantini.txt"));
        EXPECT_EQ(again.form().txtname.text, "Joe Runner");
        EXPECT_EQ(again.state().runner.runnerName, "Joe Runner");
    }

    TEST(Start, SetsItsDefaultsBeforeItReads)
    {
        Lines lines = oddSettings();
        lines.resize(66);
        MainForm main;
        main.person.type("txtname", "Ann");
        main.person.slide("wtscrl", 200);
        main.person.click("lin1");
        main.state().curve.anaerobicExp = 0.5;
        lines[4] = "\"no weight\"";
        writeBytes(main.folder.path / "vantini.txt", joined(lines));
        start(main.program);
        EXPECT_EQ(main.form().txtname.text, "Joe Runner");
        EXPECT_EQ(main.state().runner.weightKg, 72.7);
        EXPECT_EQ(main.state().runner.heightCm, 178);
        EXPECT_EQ(main.state().runner.bodyDrag, 60);
        EXPECT_EQ(main.state().flags.graphScale, 4);
        EXPECT_EQ(main.state().curve.anaerobicExp, 0.65);
    }

    TEST(Start, FromASaveSavesTheSame)
    {
        MainForm first;
        first.enterTwoRaces();
        first.person.type("actmhrtx", "191");
        first.person.type("resthrtx", "47.25");
        stop(first.program);
        const std::string saved = readBytes(first.folder.path / "vantini.txt");
        Started again(saved);
        stop(again.program);
        EXPECT_EQ(linesOf(readBytes(again.folder.path / "vantini.txt")), linesOf(saved));
        EXPECT_EQ(again.folder.entryCount(), 1U);
    }

    /// What a start leaves that finds no settings, or none worth the name.
    void expectNothingRead(MainForm& main, const char* maxHr)
    {
        const VantstartForm& form = main.form();
        EXPECT_EQ(form.txtname.text, "Joe Runner");
        EXPECT_EQ(form.txtage.text, "");
        for (const OptionButton* option : {&form.optmale, &form.optfemale, &form.Option7, &form.Option8, &form.Option9,
                                           &form.Option10, &form.races[0].Option4})
            EXPECT_FALSE(option->chosen) << option->name;
        EXPECT_FALSE(form.agecomp.ticked);
        EXPECT_EQ(form.HScroll1.value, 20);
        EXPECT_EQ(form.HScroll2.value, 1000);
        EXPECT_EQ(form.wtscrl.value, 160);
        EXPECT_EQ(form.htscrl.value, 70);
        EXPECT_EQ(form.txkg.text, "72.7");
        EXPECT_EQ(form.emhrtx.text, "185");
        EXPECT_EQ(form.actmhrtx.text, maxHr);
        EXPECT_EQ(form.resthrtx.text, "60");
        EXPECT_EQ(main.state().runner.maxHr, std::stod(maxHr));
        EXPECT_EQ(main.state().runner.restHr, 60);
        EXPECT_EQ(main.state().runner.bodyDrag, 60);
        EXPECT_EQ(main.state().runner.sex, 'm');
        EXPECT_FALSE(isPresent(main.program.stored.planner));
        EXPECT_FALSE(isPresent(main.program.stored.splits));
        EXPECT_EQ(main.outside.messages, (Messages(2, Message{"No rows checked!", "Vantelos"})));
        EXPECT_TRUE(main.outside.faults.empty());
        EXPECT_FALSE(form.Command2.enabled);
        EXPECT_EQ(main.state().flags.calculatedOnce, 1);
    }

    TEST(Start, WithoutAFile)
    {
        MainForm main;
        start(main.program);
        expectNothingRead(main, "180");   // the field is blanked, too
        EXPECT_EQ(main.folder.entryCount(), 0U);
    }

    TEST(Start, WithAFolderInTheFilesPlace)
    {
        MainForm main;
        std::filesystem::create_directory(main.folder.path / "vantini.txt");
        start(main.program);
        expectNothingRead(main, "180");
    }

    TEST(Start, InAFolderThatIsNotThere)
    {
        RecordedOutside outside;
        Program program(outside.dialogs(), {}, "/no/such/folder");
        start(program);
        EXPECT_EQ(outside.countOf("No rows checked!"), 2U);
    }

    TEST(Start, WithAnEmptyFile)
    {
        Started main("");
        expectNothingRead(main, "182");   // an end of file is not read beyond
    }

    TEST(ShortFile, Of66FieldsLeavesTheHeartRatesAndTheHeight)
    {
        Lines lines = oddSettings();
        lines.resize(66);
        Started main(joined(lines));
        EXPECT_EQ(main.form().txtage.text, "44.5");
        EXPECT_EQ(main.form().races[4].Text4.text, "14n");
        EXPECT_EQ(main.form().actmhrtx.text, "182");
        EXPECT_EQ(main.state().runner.maxHr, 182);
        EXPECT_EQ(main.form().resthrtx.text, "60");
        EXPECT_EQ(main.form().htscrl.value, 70);
        EXPECT_FALSE(isPresent(main.program.stored.planner));
        stop(main.program);
        EXPECT_EQ(linesOf(readBytes(main.folder.path / "vantini.txt")).size(), fieldsInAFile);
    }

    TEST(ShortFile, Of68FieldsLeavesTheHeight)
    {
        Lines lines = oddSettings();
        lines.resize(68);
        Started main(joined(lines));
        EXPECT_EQ(main.state().runner.maxHr, 187.5);
        EXPECT_EQ(main.state().runner.restHr, 51);
        EXPECT_EQ(main.form().htscrl.value, 70);
        EXPECT_EQ(main.form().txcm.text, "178");
    }

    TEST(ShortFile, Of69FieldsLeavesPlannerAndSplitFormAtTheirOwnDefaults)
    {
        Lines lines = oddSettings();
        lines.resize(69);
        Started main(joined(lines));
        EXPECT_EQ(main.form().htscrl.value, 66);
        EXPECT_FALSE(isPresent(main.program.stored.planner));
        EXPECT_FALSE(isPresent(main.program.stored.splits));
        EXPECT_EQ(main.program.stored.planner.workoutMode, std::nullopt);
    }

    TEST(ShortFile, Of67FieldsGivesTheLastNumberToBothHeartRates)
    {
        Lines lines = oddSettings();
        lines.resize(67);
        Started main(joined(lines));
        EXPECT_EQ(main.state().runner.maxHr, 187.5);
        EXPECT_EQ(main.state().runner.restHr, 187.5);
        EXPECT_EQ(main.form().htscrl.value, 70) << "the file is at its end";
    }

    TEST(ShortFile, ForgetsWhatWasStoredBefore)
    {
        MainForm main;
        main.program.stored.planner.workoutMode = 1;
        Lines lines = oddSettings();
        lines.resize(69);
        readSettings(main.form(), main.program.stored, joined(lines));
        EXPECT_EQ(main.program.stored.planner.workoutMode, std::nullopt);
    }

    /// The text that a line's field gives to a text box.
    std::string asText(std::string line)
    {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line == "#TRUE#")
            return "True";
        if (line == "#FALSE#")
            return "False";
        if (line.empty() || line.front() != '"')
            return line.substr(0, line.size() - (line.ends_with('.') ? 1 : 0));   // a number cut behind its point
        const bool closed = line.size() > 1 && line.back() == '"';
        return line.substr(1, line.size() - (closed ? 2 : 1));
    }

    std::vector<const TextBox*> textFields(const VantstartForm& form)
    {
        std::vector<const TextBox*> boxes(66);
        boxes[3] = &form.txtage;
        for (std::size_t row = 0; row < 5; ++row)
        {
            const RaceControls& race = form.races[row];
            const std::array<const TextBox*, 4> rowBoxes{&race.Text1, &race.Text2, &race.Text3, &race.Text4};
            for (std::size_t i = 0; i < rowBoxes.size(); ++i)
                boxes[11 + 11 * row + 1 + i] = rowBoxes[i];
        }
        return boxes;
    }

    /// Every cut: the fields before it are read, and every text behind it holds the last good value.
    TEST(CutFile, ReadsWhatIsThereAndGoesOnWithItsLastValue)
    {
        const std::string whole = joined(oddSettings());
        Lines pieces{""};   // the lines so far, the last one under way
        for (std::size_t size = 1; size <= whole.size(); ++size)
        {
            const char c = whole[size - 1];
            if (c == '\n')
                pieces.emplace_back();
            else
                pieces.back() += c;
            Lines fields = pieces;
            if (fields.back().empty())
                fields.pop_back();
            Read main(whole.substr(0, size));
            const auto boxes = textFields(main.form());
            for (std::size_t i = 0; i < boxes.size(); ++i)
                if (boxes[i])
                {
                    ASSERT_EQ(boxes[i]->text, asText(i < fields.size() ? fields[i] : fields.back()))
                        << "field " << i + 1 << ", cut at byte " << size;
                }
            ASSERT_EQ(main.form().actmhrtx.text, fields.size() < 67 ? "182" : asText(fields[66])) << size;
            if (fields.size() < 67)
            {
                ASSERT_EQ(main.form().resthrtx.text, "") << size;
                ASSERT_EQ(main.form().htscrl.value, 70) << size;
            }
            ASSERT_LE(main.form().HScroll2.value, 1100);
            ASSERT_FALSE(main.form().optmale.chosen && main.form().optfemale.chosen);
            ASSERT_EQ(linesOf(text(main)).size(), fieldsInAFile);
        }
    }

    TEST(HugeFile, IsReadToItsBound)
    {
        constexpr std::size_t tenMegabytes = 10 << 20;
        const std::vector<std::pair<std::string, std::string>> files{
            {"one line", std::string(tenMegabytes, 'x')},
            {"one text", '"' + std::string(tenMegabytes, 'x')},
            {"line ends", std::string(tenMegabytes, '\n')},
            {"fields and more", joined(oddSettings()) + std::string(tenMegabytes, '1')}};
        for (const auto& [name, bytes] : files)
        {
            SCOPED_TRACE(name);
            Started main(bytes);
            const bool read = name == "fields and more";
            EXPECT_EQ(main.form().HScroll1.value, read ? 37 : 20);
            EXPECT_EQ(main.program.stored.splits.rows[26].splitmin, read ? "splitmin26" : "");
        }
    }

    TEST(Noise, LeavesAFormThatHolds)
    {
        for (std::uint32_t seed = 1; seed <= 40; ++seed)
        {
            std::mt19937 random(seed);
            std::string bytes(4000, '\0');
            for (char& c : bytes)
                c = static_cast<char>(random() % (seed % 2 == 0 ? 256 : 16) + (seed % 2 == 0 ? 0 : '"' - 4));
            for (std::size_t i = 0; i < bytes.size(); i += 1 + random() % 20)
                bytes[i] = '\n';
            Started main(bytes);
            for (const ControlRef& control : main.form().form.controls)
                if (ScrollBar* const* bar = std::get_if<ScrollBar*>(&control))
                {
                    EXPECT_GE((**bar).value, (**bar).min) << seed;
                    EXPECT_LE((**bar).value, (**bar).max) << seed;
                }
            EXPECT_TRUE(std::isfinite(main.state().runner.maxHr)) << seed;
            for (const FaultReport& fault : main.outside.faults)
                EXPECT_EQ(fault.text.rfind("The calculation stopped: ", 0), 0U) << seed;
            EXPECT_TRUE(main.program.outside.said.empty()) << seed;
        }
    }

    /// One field of the odd settings replaced by another line.
    struct WrongField
    {
        std::string name;
        std::size_t number;   // from 1
        const char* line;
        const char* control;
        const char* value;   // "on", "off", a number or a text
    };

    std::ostream& operator<<(std::ostream& out, const WrongField& row)
    {
        return out << row.name;
    }

    struct Value
    {
        std::string operator()(const TextBox* box) const { return box->text; }
        std::string operator()(const OptionButton* option) const { return option->chosen ? "on" : "off"; }
        std::string operator()(const CheckBox* box) const { return box->ticked ? "on" : "off"; }
        std::string operator()(const ScrollBar* bar) const { return std::to_string(bar->value); }
        template <class Other>
        std::string operator()(const Other*) const
        {
            return {};
        }
    };

    class OddField : public testing::TestWithParam<WrongField>
    {};

    TEST_P(OddField, IsTakenRefusedOrPassedOver)
    {
        Lines lines = oddSettings();
        lines.at(GetParam().number - 1) = GetParam().line;
        Read main(joined(lines));
        const ControlRef* control = findControl(main.form().form, GetParam().control);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(std::visit(Value{}, *control), GetParam().value);
        // The other fields are read as ever.
        EXPECT_EQ(main.program.stored.splits.rows[26].splitsec, "splitsec26");
        EXPECT_EQ(main.form().races[4].Text4.text, "14n");
    }

    INSTANTIATE_TEST_SUITE_P(
        Options, OddField,
        testing::Values(WrongField{"text", 2, "\"abc\"", "optfemale", "off"},
                        WrongField{"word", 2, "abc", "optfemale", "off"},
                        WrongField{"empty", 2, "", "optfemale", "off"}, WrongField{"zero", 2, "0", "optfemale", "off"},
                        WrongField{"one", 2, "1", "optfemale", "on"},
                        WrongField{"minus_one", 2, "-1", "optfemale", "on"},
                        WrongField{"word_leaves_the_man", 1, "abc", "optmale", "off"},   // the woman comes next
                        WrongField{"both_sexes", 1, "#TRUE#", "optmale", "off"},
                        WrongField{"the_first_of_both_sexes", 1, "#TRUE#", "optfemale", "on"},
                        WrongField{"blanks_around", 1, "  #FALSE# ", "optmale", "off"},
                        WrongField{"empty_leaves_no_fit", 8, "", "Option7", "off"},
                        WrongField{"no_double_holds_it", 8, "1e999", "Option7", "on"}),   // the 1 of agecomp
        byName);

    INSTANTIATE_TEST_SUITE_P(Bars, OddField,
                             testing::Values(WrongField{"text", 3, "\"abc\"", "HScroll1", "20"},
                                             WrongField{"quoted_number", 3, "\"55\"", "HScroll1", "55"},
                                             WrongField{"false", 3, "#FALSE#", "HScroll1", "0"},
                                             WrongField{"true_is_below_its_range", 3, "#TRUE#", "HScroll1", "20"},
                                             WrongField{"first", 3, "0", "HScroll1", "0"},
                                             WrongField{"below", 3, "-1", "HScroll1", "20"},
                                             WrongField{"last", 3, "150", "HScroll1", "150"},
                                             WrongField{"above", 3, "151", "HScroll1", "20"},
                                             WrongField{"half_to_even_up", 3, "37.5", "HScroll1", "38"},
                                             WrongField{"half_to_even_down", 3, "36.5", "HScroll1", "36"},
                                             WrongField{"rounds_into_its_range", 3, "150.5", "HScroll1", "150"},
                                             WrongField{"huge", 3, "9e99", "HScroll1", "20"},
                                             WrongField{"hugely_negative", 3, "-9e99", "HScroll1", "20"},
                                             WrongField{"no_double_holds_it", 7, "1e999", "HScroll2", "873"},
                                             WrongField{"weight_below", 5, "29", "wtscrl", "160"},
                                             WrongField{"weight_first", 5, "30", "wtscrl", "30"},
                                             WrongField{"weight_above", 5, "301", "wtscrl", "160"},
                                             WrongField{"weight_keeps_its_show", 5, "301", "txkg", "72.7"},
                                             WrongField{"level_none", 6, "0", "HScroll2", "0"},
                                             WrongField{"level_above", 6, "1101", "HScroll2", "1000"},
                                             WrongField{"height_below", 69, "35", "htscrl", "70"},
                                             WrongField{"height_last", 69, "90", "htscrl", "90"},
                                             WrongField{"height_empty", 69, "", "htscrl", "70"}),
                             [](const auto& row) { return asTestName(row.param.name); });

    INSTANTIATE_TEST_SUITE_P(Boxes, OddField,
                             testing::Values(WrongField{"two", 7, "2", "agecomp", "off"},
                                             WrongField{"half", 7, "0.5", "agecomp", "off"},
                                             WrongField{"text", 7, "\"x\"", "agecomp", "off"},
                                             WrongField{"quoted_one", 7, "\"1\"", "agecomp", "on"},
                                             WrongField{"true", 7, "#TRUE#", "agecomp", "off"},
                                             WrongField{"false", 12, "#FALSE#", "Check1(0)", "off"},
                                             WrongField{"empty", 12, "", "Check1(0)", "off"}),
                             byName);

    INSTANTIATE_TEST_SUITE_P(Texts, OddField,
                             testing::Values(WrongField{"number", 4, "45", "txtage", "45"},
                                             WrongField{"fraction", 4, "4.50", "txtage", "4.5"},
                                             WrongField{"true", 4, "#TRUE#", "txtage", "True"},
                                             WrongField{"empty", 4, "", "txtage", ""},
                                             WrongField{"nothing_quoted", 4, "\"\"", "txtage", ""},
                                             WrongField{"quote_within", 4, "\"a\"b\"", "txtage", "a\"b"},
                                             WrongField{"text_around_the_quotes", 4, "a\"b\"c", "txtage", "b"},
                                             WrongField{"quote_not_closed", 4, "\"open", "txtage", "open"},
                                             WrongField{"one_quote", 4, "\"", "txtage", ""},
                                             WrongField{"commas", 4, "\"a,b\",\"c\"", "txtage", "a,b\",\"c"},
                                             WrongField{"word", 13, "word", "Text1(0)", "word"},
                                             WrongField{"an_age_that_faults", 4, "\"1e999\"", "txtage", "1e999"},
                                             WrongField{"behind_a_fault_all_is_read", 4, "\"1e999\"", "wtscrl", "151"}),
                             byName);

    struct Rate
    {
        std::string name;
        const char* line;
        const char* shown;
        double rate;
    };

    std::ostream& operator<<(std::ostream& out, const Rate& row)
    {
        return out << row.name;
    }

    class StoredHeartRate : public testing::TestWithParam<Rate>
    {};

    TEST_P(StoredHeartRate, IsTakenUnlessItIsBlankOrZero)
    {
        Lines lines = oddSettings();
        lines[66] = GetParam().line;
        Started main(joined(lines));
        EXPECT_EQ(main.form().actmhrtx.text, GetParam().shown);
        EXPECT_EQ(main.state().runner.maxHr, GetParam().rate);
        EXPECT_EQ(main.state().runner.restHr, 51);
        EXPECT_EQ(main.form().htscrl.value, 66);
    }

    INSTANTIATE_TEST_SUITE_P(
        ByHand, StoredHeartRate,
        testing::Values(Rate{"zero", "0", "180", 180}, Rate{"empty", "", "180", 180},
                        Rate{"word", "\"abc\"", "180", 180}, Rate{"no_double_holds_it", "1e999", "180", 180},
                        Rate{"quoted_overflow", "\"1e999\"", "180", 180}, Rate{"boolean", "#TRUE#", "180", 180},
                        Rate{"quoted_rate", "\"190 bpm\"", "190 bpm", 190}, Rate{"fraction", "190.5", "190.5", 190.5},
                        Rate{"negative", "-5", "-5", -5}),
        byName);

    TEST(StoredHeartRate, AtRestIs60UnlessItIsGiven)
    {
        Lines lines = oddSettings();
        lines[67] = "0";
        Started main(joined(lines));
        EXPECT_EQ(main.form().resthrtx.text, "60");
        EXPECT_EQ(main.state().runner.restHr, 60);
        EXPECT_EQ(main.state().runner.maxHr, 187.5);
    }

    struct Stored
    {
        std::string name;
        const char *mode, *unit, *method;
        bool planner, splits;
    };

    std::ostream& operator<<(std::ostream& out, const Stored& row)
    {
        return out << row.name;
    }

    class StoredPresence : public testing::TestWithParam<Stored>
    {};

    TEST_P(StoredPresence, IsPresentForWhatAFormCanHaveStored)
    {
        Lines lines = oddSettings();
        lines[69] = GetParam().mode;
        lines[90] = GetParam().unit;
        lines[91] = GetParam().method;
        Read main(joined(lines));
        EXPECT_EQ(isPresent(main.program.stored.planner), GetParam().planner);
        EXPECT_EQ(isPresent(main.program.stored.splits), GetParam().splits);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, StoredPresence,
                             testing::Values(Stored{"least", "1", "1", "1", true, true},
                                             Stored{"most", "2", "3", "3", true, true},
                                             Stored{"empty", "", "", "", false, false},
                                             Stored{"zero", "0", "0", "1", false, false},
                                             Stored{"beyond", "3", "4", "1", false, false},
                                             Stored{"method_beyond", "1", "1", "4", true, false},
                                             Stored{"method_empty", "2", "2", "", true, false},
                                             Stored{"fractions", "1.5", "2.5", "1", false, false},
                                             Stored{"words", "one", "two", "three", false, false},
                                             Stored{"splits_alone", "", "2", "2", false, true}),
                             byName);

    /// A program whose settings have no place to go.
    struct NoPlace
    {
        explicit NoPlace(const std::string& place) : program(outside.dialogs(), {}, folder.path / place) {}

        ScratchFolder folder;
        RecordedOutside outside;
        Program program;
    };

    TEST(FailedSave, AsksAndEndsWithoutSaving)
    {
        NoPlace main("missing");
        stop(main.program);
        ASSERT_EQ(main.outside.questions.size(), 1U);
        const std::string& question = main.outside.questions[0].text;
        EXPECT_NE(question.find((main.folder.path / "missing" / "vantini.txt").string()), std::string::npos)
            << question;
        EXPECT_NE(question.find("No such file or directory"), std::string::npos) << question;
        EXPECT_EQ(main.program.vantstart, nullptr);
        EXPECT_EQ(main.folder.entryCount(), 0U);
    }

    TEST(FailedSave, TriesAgainAsOftenAsItIsTold)
    {
        NoPlace main("missing");
        main.outside.answers = {true, true, false};
        stop(main.program);
        EXPECT_EQ(main.outside.questions.size(), 3U);
        EXPECT_EQ(main.program.vantstart, nullptr);
    }

    TEST(FailedSave, SavesOnceThereIsAPlace)
    {
        NoPlace main("missing");
        int questions = 0;
        main.program.outside.dialogs.ask = [&](const Message&) {
            ++questions;
            return std::filesystem::create_directory(main.folder.path / "missing");
        };
        stop(main.program);
        EXPECT_EQ(questions, 1);
        EXPECT_EQ(linesOf(readBytes(main.folder.path / "missing" / "vantini.txt")).size(), fieldsInAFile);
    }

    TEST(FailedSave, InAPathThroughAFile)
    {
        NoPlace main("file");
        writeBytes(main.folder.path / "file", "bytes");
        stop(main.program);
        ASSERT_EQ(main.outside.questions.size(), 1U);
        EXPECT_NE(main.outside.questions[0].text.find("Not a directory"), std::string::npos);
        EXPECT_EQ(readBytes(main.folder.path / "file"), "bytes");
    }

    TEST(FailedSave, LeavesTheOldFile)
    {
        MainForm main;
        writeBytes(main.folder.path / "vantini.txt", "old");
        {
            const FileSizeLimit full(100);
            stop(main.program);
        }
        ASSERT_EQ(main.outside.questions.size(), 1U);
        EXPECT_EQ(readBytes(main.folder.path / "vantini.txt"), "old");
        EXPECT_EQ(main.folder.entryCount(), 1U);
        EXPECT_EQ(main.program.vantstart, nullptr);
    }

    TEST(FailedSave, ComesBehindWhatWasSaid)
    {
        NoPlace main("missing");
        main.program.outside.said.push_back({"said before"});
        stop(main.program);
        ASSERT_EQ(main.outside.events.size(), 2U);
        EXPECT_EQ(main.outside.events[0], "message: said before");
    }
}
